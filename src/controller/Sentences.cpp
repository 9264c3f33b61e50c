#include "controller/Sentences.h"

#include <algorithm>
#include <cstdlib>

namespace veyrand::controller {

namespace {

// A sentence may begin with a mark, whose words know nothing of that. Of the letters beyond ASCII
// those of the western languages have their capitals 32 places before them as well.
std::string withCapital(std::string text)
{
    constexpr char kToCapital = 'a' - 'A';
    const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const bool isPlain = !text.empty() && text.front() >= 'a' && text.front() <= 'z';
    const bool isAccented = text.size() > 1 && byte(0) == 0xC3 && byte(1) >= 0xA0 && byte(1) < 0xBF
        && byte(1) != 0xB7; // which is a sign
    if (isPlain || isAccented) {
        char& letter = text[isPlain ? 0 : 1];
        letter = static_cast<char>(letter - kToCapital);
    }
    return text;
}

} // namespace

std::string Sentences::text(std::string_view id, language::Arguments arguments) const
{
    return withCapital(m_texts.text("spoken." + std::string(id), arguments));
}

std::string Sentences::counting(std::string_view id, std::int64_t number) const
{
    return text(id, { { "count", number }, { "number", m_names.inWords(number) } });
}

std::string Sentences::message(const std::string& title, const std::string& body) const
{
    const bool isClosed = title.empty() || title.find_last_of(".!?)") + 1 == title.size();
    return title + (isClosed ? "" : ".") + (title.empty() || body.empty() ? "" : " ") + body;
}

std::string Sentences::titlePage() const
{
    return text("titlePage");
}

std::string Sentences::moveMade(unsigned label) const
{
    return text("move", { { "move", std::int64_t { label } } });
}

std::string Sentences::newLine(unsigned row, const std::string& line) const
{
    const std::string chips = m_names.chips(line);
    return row == 0 ? text("startLineIs", { { "chips", chips } })
                    : text("lineIs", { { "row", std::int64_t { row } }, { "chips", chips } });
}

std::string Sentences::toPar(int moves) const
{
    if (moves == 0) {
        return text("parUsedUp");
    }
    return counting(moves > 0 ? "toPar" : "pastPar", std::abs(moves));
}

std::string Sentences::solved(std::int64_t points, int over) const
{
    if (over == 0) {
        return text("solvedAtPar", { { "points", points } });
    }
    const std::int64_t count = std::abs(over);
    return text(over > 0 ? "solvedOverPar" : "solvedUnderPar",
        { { "count", count }, { "number", m_names.inWords(count) }, { "points", points } });
}

std::string Sentences::solvedInPractice(int over) const
{
    return over == 0 ? text("practiceAtPar")
                     : counting(over > 0 ? "practiceOverPar" : "practiceUnderPar", std::abs(over));
}

std::string Sentences::removed(unsigned lines) const
{
    return counting("takenBack", std::int64_t { lines });
}

std::string Sentences::lastLineIs(unsigned row, const std::string& line) const
{
    const std::string chips = m_names.chips(line);
    return row == 0 ? text("lastIsStartLine", { { "chips", chips } })
                    : text("lastIsLine", { { "row", std::int64_t { row } }, { "chips", chips } });
}

std::string Sentences::undone() const
{
    return text("undone");
}

std::string Sentences::redone() const
{
    return text("redone");
}

std::string Sentences::goodSoFar() const
{
    return text("goodSoFar");
}

std::string Sentences::nothingToHint() const
{
    return text("nothingToHint");
}

std::string Sentences::linePlaced() const
{
    return text("linePlaced");
}

std::string Sentences::classicPuzzle(int level, int stage) const
{
    return text("classicPuzzle",
        { { "level", std::int64_t { level } }, { "stage", std::int64_t { stage } } });
}

std::string Sentences::endlessPuzzle() const
{
    return text("endlessPuzzle");
}

std::string Sentences::practicePuzzle(const std::string& caption) const
{
    return text("practicePuzzle", { { "name", caption } });
}

std::string Sentences::puzzle(const std::string& goal, const std::string& start, int par) const
{
    const std::int64_t moves = std::max(par, 0);
    return text("puzzle",
        { { "count", moves }, { "number", m_names.inWords(moves) }, { "goal", m_names.chips(goal) },
            { "start", m_names.chips(start) } });
}

std::string Sentences::lifted(char letter, const std::vector<unsigned>& columns) const
{
    std::vector<std::string> places;
    places.reserve(columns.size());
    for (const unsigned column : columns) {
        places.push_back(
            m_texts.text("spoken.place", { { "place", std::int64_t { column + 1 } } }));
    }
    return text(
        "lifted", { { "chip", m_names.chip(letter) }, { "places", m_names.listed(places) } });
}

std::string Sentences::cannotBeLifted() const
{
    return text("cannotBeLifted");
}

std::string Sentences::hasBeenPutBack() const
{
    return text("hasBeenPutBack");
}

std::string Sentences::goalIs(const std::string& line) const
{
    return m_texts.text("spoken.goalIs", { { "chips", m_names.chips(line) } });
}

std::string Sentences::difference(const std::string& line, const std::string& goal) const
{
    if (line == goal) {
        return text("isGoal");
    }
    const std::size_t shorter = std::min(line.size(), goal.size());
    std::size_t same = 0;
    while (same < shorter && line[same] == goal[same]) {
        ++same;
    }
    const auto rest = [this, same](const std::string& chipsOfIt) {
        return same < chipsOfIt.size() ? m_names.chips(chipsOfIt.substr(same))
                                       : m_texts.text("spoken.nothingMore");
    };
    const auto count = static_cast<std::int64_t>(same);
    return text(same == 0 ? "firstDiffer" : "firstAreSame",
        { { "count", count }, { "number", m_names.inWords(count) }, { "line", rest(line) },
            { "goal", rest(goal) } });
}

std::string Sentences::points(std::int64_t points) const
{
    return text("points", { { "points", points } });
}

std::string Sentences::parAndMade(int par, int moves) const
{
    const std::int64_t made = std::max(moves, 0);
    const std::string madeInWords = m_texts.text(made == 0 ? "spoken.madeNone" : "spoken.made",
        { { "count", made }, { "number", m_names.inWords(made) } });
    const std::int64_t count = std::max(par, 0);
    return text("parAndMade",
        { { "count", count }, { "number", m_names.inWords(count) }, { "made", madeInWords } });
}

std::string Sentences::noPuzzle() const
{
    return text("noPuzzle");
}

std::string Sentences::nothingSaid() const
{
    return text("nothingSaid");
}

std::string Sentences::choices(const std::vector<std::string>& names) const
{
    return text("choices", { { "names", m_names.listed(names) } });
}

std::string Sentences::noChoices() const
{
    return text("noChoices");
}

} // namespace veyrand::controller
