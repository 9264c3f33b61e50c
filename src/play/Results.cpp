#include "play/Results.h"

#include "play/Decide.h"
#include "play/JournalText.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace veyrand::play {

namespace {

constexpr std::string_view kDay = "day ";
constexpr std::string_view kKnows = "knows all moves";
constexpr std::string_view kBeforeCheck = " #";

std::string textOf(const std::vector<Move>& moves)
{
    std::string text;
    for (const Move& move : moves) {
        text += (text.empty() ? "" : ",") + std::to_string(move.rule) + '.'
            + std::to_string(move.match);
    }
    return text;
}

// Up to the separator, which goes too.
std::string_view takeWord(std::string_view& text, char separator)
{
    const std::string_view word = text.substr(0, text.find(separator));
    text.remove_prefix(std::min(text.size(), word.size() + 1));
    return word;
}

std::optional<unsigned> numberIn(std::string_view text)
{
    unsigned number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, number);
    return fault == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

std::optional<std::vector<Move>> movesIn(std::string_view text)
{
    std::vector<Move> moves;
    while (!text.empty()) {
        std::string_view move = takeWord(text, ',');
        const auto rule = numberIn(takeWord(move, '.'));
        const auto match = numberIn(move);
        if (!rule || !match) {
            return std::nullopt;
        }
        moves.push_back({ *rule, *match });
    }
    return moves;
}

bool doSolve(const std::vector<Move>& moves, const CodedPuzzle& puzzle)
{
    std::optional<engine::Theorem> line = engine::Theorem(puzzle.root);
    for (const Move& move : moves) {
        line = line ? lineAfter(*line, move) : std::nullopt;
    }
    return line == engine::Theorem(puzzle.goal);
}

std::string lineOf(const std::string& name, const Result& result)
{
    return name + ' ' + codeOf(result.puzzle.root, result.puzzle.goal).value_or("-") + ' '
        + std::to_string(result.par) + ' ' + textOf(result.moves) + ' '
        + std::to_string(result.hints) + ' ' + progress::textOf(result.solvedOn)
        + (result.seconds > 0 ? ' ' + std::to_string(result.seconds) : "");
}

std::optional<Result> resultIn(std::string_view text)
{
    const auto puzzle = readCode(takeWord(text, ' '));
    const auto par = numberIn(takeWord(text, ' '));
    const auto moves = movesIn(takeWord(text, ' '));
    const auto hints = numberIn(takeWord(text, ' '));
    const auto date = progress::dateIn(takeWord(text, ' '));
    const auto seconds = text.empty() ? std::optional(0U) : numberIn(text);
    if (!std::holds_alternative<CodedPuzzle>(puzzle) || !par || !moves || !hints || !date
        || !seconds || !doSolve(*moves, std::get<CodedPuzzle>(puzzle))) {
        return std::nullopt;
    }
    return Result { std::get<CodedPuzzle>(puzzle), *par, *moves, *hints, *date, *seconds };
}

} // namespace

bool isBetter(const Result& a, const Result& b)
{
    return a.moves.size() != b.moves.size() ? a.moves.size() < b.moves.size() : a.hints < b.hints;
}

bool Results::add(const std::string& name, const Result& result)
{
    if (const auto day = progress::dateIn(name);
        day && progress::countsForItsDay(*day, result.solvedOn)) {
        m_days.insert(*day);
    }
    const auto [place, isNew] = m_results.try_emplace(name, result);
    if (!isNew && !isBetter(result, place->second)) {
        return false;
    }
    place->second = result;
    return true;
}

void Results::join(const Results& others)
{
    // Of two that are as good the older stays, so that it is all one who joins whom.
    const auto isOlder = [](const Result& a, const Result& b) {
        return a.solvedOn != b.solvedOn ? a.solvedOn < b.solvedOn : lineOf({}, a) < lineOf({}, b);
    };
    for (const auto& [name, result] : others.m_results) {
        const auto [place, isNew] = m_results.try_emplace(name, result);
        Result& mine = place->second;
        if (!isNew && !isBetter(mine, result)
            && (isBetter(result, mine) || isOlder(result, mine))) {
            mine = result;
        }
    }
    m_days.insert(others.m_days.begin(), others.m_days.end());
    m_knowsAllMoves = m_knowsAllMoves || others.m_knowsAllMoves;
}

const Result* Results::of(const std::string& name) const
{
    const auto found = m_results.find(name);
    return found == m_results.end() ? nullptr : &found->second;
}

std::set<progress::CalendarDate> Results::daysInTime() const
{
    return m_days;
}

std::vector<std::string> Results::lines() const
{
    std::vector<std::string> lines { "veyrand-results 1" };
    const auto add
        = [&lines](std::string text) { lines.push_back(JournalWriter().checked(std::move(text))); };
    if (m_knowsAllMoves) {
        add(std::string(kKnows));
    }
    for (const progress::CalendarDate& day : m_days) {
        add(std::string(kDay) + progress::textOf(day));
    }
    for (const auto& [name, result] : m_results) {
        add(lineOf(name, result));
    }
    return lines;
}

Results::Read Results::read(std::string_view text)
{
    Read read;
    takeWord(text, '\n');
    while (!text.empty()) {
        const std::string_view line = takeWord(text, '\n');
        std::string_view words = line.substr(0, line.rfind(kBeforeCheck));
        if (JournalWriter().checked(std::string(words)) != line) {
            ++read.damaged;
            continue;
        }
        if (words == kKnows) {
            read.results.m_knowsAllMoves = true;
            continue;
        }
        if (words.substr(0, kDay.size()) == kDay) {
            if (const auto day = progress::dateIn(words.substr(kDay.size()))) {
                read.results.m_days.insert(*day);
            }
            continue;
        }
        const std::string name(takeWord(words, ' '));
        if (const auto result = resultIn(words)) {
            read.results.add(name, *result);
        } else {
            ++read.damaged;
        }
    }
    return read;
}

std::string nameOf(const progress::Place& place)
{
    return std::to_string(place.level) + '-' + std::to_string(place.stage);
}

Statistics statisticsOf(
    const Results& results, const progress::Place& standing, const progress::CalendarDate& today)
{
    Statistics statistics;
    const auto reached = progress::catalogueIndex(standing);
    for (int level = 1; level <= progress::kLastLevel; ++level) {
        for (int stage = 1; stage <= progress::kLastStage; ++stage) {
            const Result* const result = results.of(nameOf(progress::Place { level, stage }));
            if (result == nullptr && progress::catalogueIndex({ level, stage }) >= reached) {
                continue;
            }
            auto& ofLevel = statistics.levels.at(static_cast<std::size_t>(level - 1));
            ++ofLevel.solved;
            ++statistics.solved;
            if (result != nullptr) {
                ofLevel.atPar += result->over() == 0 ? 1 : 0;
                statistics.atPar += result->over() == 0 ? 1 : 0;
                statistics.over += result->over();
                statistics.hints += result->hints;
                const auto most = static_cast<unsigned>(statistics.byOver.size() - 1);
                ++statistics.byOver.at(std::min(result->over(), most));
            }
        }
    }
    for (const auto& [name, result] : results.all()) {
        statistics.seconds += result.seconds;
        if (progress::dateIn(name)) {
            ++statistics.daily;
            statistics.hints += result.hints;
        } else if (name.find('-') == std::string::npos) {
            ++statistics.others;
            statistics.hints += result.hints;
        }
    }
    statistics.streak = progress::streakOf(results.daysInTime(), today);
    return statistics;
}

} // namespace veyrand::play
