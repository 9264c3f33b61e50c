#include "Command.h"
#include "FileResources.h"
#include "JsonOf.h"
#include "play/DailyPuzzles.h"
#include "play/PuzzleCode.h"
#include "play/Refusal.h"
#include "play/Ways.h"

#include <algorithm>
#include <cmath>

namespace veyrand::workshop {

namespace {

engine::PackedLine lineOfBoard(const std::string& text)
{
    const auto line = engine::PackedLine::pack(text);
    if (!line || text.empty() || text.size() > play::kMostChips) {
        throw UsageError("a line of the board has 1 to " + std::to_string(play::kMostChips)
            + " chips Y, R, G and B: " + text);
    }
    return *line;
}

class Code final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("START", m_start, "The start line")->check(plainLine());
        arguments.add_option("GOAL", m_goal, "The goal")->check(plainLine());
        arguments.add_option("--read", m_code, "A code, to be told its two lines");
    }

    Json run() override
    {
        if (m_code.has_value() == (m_start.has_value() || m_goal.has_value())
            || m_start.has_value() != m_goal.has_value()) {
            throw UsageError("code takes START and GOAL, or --read CODE");
        }
        if (m_code) {
            return puzzleIn(*m_code);
        }
        static_cast<void>(lineOfBoard(*m_start));
        static_cast<void>(lineOfBoard(*m_goal));
        return play::codeOf(*m_start, *m_goal).value();
    }

private:
    static Json puzzleIn(const std::string& code)
    {
        const auto read = play::readCode(play::codeInLink(code));
        if (const auto* const fault = std::get_if<play::CodeFault>(&read)) {
            throw UsageError(play::wordsOf(*fault));
        }
        const auto& puzzle = std::get<play::CodedPuzzle>(read);
        return { { "start", puzzle.root }, { "goal", puzzle.goal } };
    }

    std::optional<std::string> m_start;
    std::optional<std::string> m_goal;
    std::optional<std::string> m_code;
};

class VerdictCommand final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("START", m_start, "The start line")->required()->check(plainLine());
        arguments.add_option("GOAL", m_goal, "The goal")->required()->check(plainLine());
    }

    Json run() override
    {
        const engine::PackedLine start = lineOfBoard(m_start);
        const engine::PackedLine goal = lineOfBoard(m_goal);
        if (!play::hasOneYellowAtMost(start)) {
            throw UsageError("a start line has one yellow chip: " + m_start);
        }
        static play::WaySearch search;
        const auto ways = search.find(start, goal);
        if (!ways) {
            return { { "unreachable", true } };
        }
        constexpr double kHundredths = 100.0;
        return { { "par", ways->moves() }, { "solutions", ways->count() },
            { "needed", labelsOf(ways->needed()) },
            { "bits", std::round(ways->bits() * kHundredths) / kHundredths } };
    }

private:
    // The moves by the numbers that the player knows them by.
    static Json labelsOf(play::MoveSet moves)
    {
        std::vector<unsigned> labels;
        for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
            if ((moves & play::only(rule)) != 0) {
                labels.push_back(play::labelOf(rule));
            }
        }
        std::sort(labels.begin(), labels.end());
        return labels;
    }

    std::string m_start;
    std::string m_goal;
};

class Daily final : public Command {
public:
    void declare(CLI::App& arguments) override
    {
        arguments.add_option("DATE", m_date, "The day, such as 2026-11-21")->required();
        arguments.add_option("--data", m_folder, "The folder of the list")
            ->check(CLI::ExistingDirectory);
    }

    Json run() override
    {
        const auto date = progress::dateIn(m_date);
        if (!date) {
            throw UsageError(m_date + ": no date, such as 2026-11-21");
        }
        const play::DailyPuzzles puzzles(
            FileResources(m_folder).dataNamed("DailyPuzzles", "txt").value_or(""));
        const play::CodedPuzzle* const puzzle = puzzles.on(*date);
        if (puzzle == nullptr) {
            throw UsageError(m_folder + "/DailyPuzzles.txt: " + puzzles.fault());
        }
        const auto ways
            = play::WaySearch().find(lineOfBoard(puzzle->root), lineOfBoard(puzzle->goal));
        return { { "start", puzzle->root }, { "goal", puzzle->goal },
            { "par", ways ? Json(ways->moves()) : Json(nullptr) } };
    }

private:
    std::string m_date;
    std::string m_folder = dataFolder();
};

} // namespace

std::vector<CommandEntry> practiceCommands()
{
    return { entry<Code>("code", "The code of a puzzle, or the puzzle of a code"),
        entry<VerdictCommand>("verdict", "Whether and how a goal can be reached on the board"),
        entry<Daily>("daily", "The puzzle of a day") };
}

} // namespace veyrand::workshop
