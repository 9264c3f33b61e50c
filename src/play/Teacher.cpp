#include "play/Teacher.h"

#include "progress/RuleSets.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace veyrand::play {

namespace {

using engine::PackedLine;

constexpr std::size_t kMostKnown = 100'000;

// Beyond the board's edge a search is soon without end: it goes so far, and then says nothing.
constexpr unsigned kLongestBeyond = 20; // chips
constexpr std::size_t kMostBeyond = 20'000; // lines

bool holdsColour(PackedLine line, char colour)
{
    return line.text().find(colour) != std::string::npos;
}

// The colours from which a stone of this one can come.
std::string_view sourcesOf(char colour)
{
    switch (colour) {
    case 'G':
        return "GR";
    case 'B':
        return "BGR";
    case 'R':
        return "R";
    default:
        return "Y";
    }
}

bool canCome(char colour, PackedLine line)
{
    const std::string_view sources = sourcesOf(colour);
    return std::any_of(
        sources.begin(), sources.end(), [line](char source) { return holdsColour(line, source); });
}

// The moves that cannot be made without a stone of the colour.
MoveSet movesThatNeed(char colour)
{
    switch (colour) {
    case 'Y':
        return only(progress::kDoubling) | only(progress::kFlip);
    case 'R':
        return only(progress::kGreenToEnd) | only(progress::kThreeReds);
    case 'G':
        return only(progress::kTwoGreens) | only(progress::kSplitGreens);
    default:
        return only(progress::kDropBetweenBlues);
    }
}

} // namespace

std::string_view nameOf(DeadEnd why)
{
    constexpr std::array<std::string_view, 4> kNames { "", "colour gone", "too few lines",
        "too long" };
    return kNames.at(static_cast<std::size_t>(why));
}

Teacher::Teacher(const engine::Theorem& goal, MoveSet open)
    : m_goal(PackedLine::pack(goal.theorem()).value_or(PackedLine()))
    , m_open(open)
{
}

const Teacher::Known& Teacher::know(PackedLine line, unsigned standing)
{
    const Place place { line.word(), standing };
    const auto known = m_known.find(place);
    if (known != m_known.end()) {
        return known->second;
    }
    if (m_known.size() > kMostKnown) {
        m_known.clear();
    }
    const auto ways = m_search.find(line, m_goal, standing, m_open);
    if (!ways) {
        return m_known.emplace(place, Known {}).first->second;
    }
    // The lines of every shortest way are known with it.
    const auto& lines = ways->lines();
    for (const Ways::Line& each : lines) {
        if (each.distance < ways->moves()) {
            m_known.emplace(Place { each.line.word(), standing + each.distance },
                Known { ways->moves() - each.distance, lines[each.on.front().to].line });
        }
    }
    return m_known.at(place);
}

Advice Teacher::about(const std::vector<engine::Theorem>& lines)
{
    Advice advice;
    std::vector<PackedLine> rows;
    rows.reserve(lines.size());
    for (const engine::Theorem& line : lines) {
        rows.push_back(PackedLine::pack(line.theorem()).value_or(PackedLine()));
    }
    const auto standing = static_cast<unsigned>(rows.size());
    advice.moves = know(rows.back(), standing).moves;
    if (advice.moves) {
        return advice;
    }
    // Whatever leads to a good line is good: the good ones come first.
    unsigned bad = standing - 1;
    while (advice.goodRow + 1 < bad) {
        const unsigned middle = (advice.goodRow + bad) / 2;
        (know(rows[middle], middle + 1).moves ? advice.goodRow : bad) = middle;
    }
    explain(advice, rows.back(), rows[advice.goodRow], advice.goodRow);
    return advice;
}

std::optional<engine::Theorem> Teacher::next(const std::vector<engine::Theorem>& lines)
{
    const auto last = PackedLine::pack(lines.back().theorem());
    if (!last) {
        return std::nullopt;
    }
    const Known& known = know(*last, static_cast<unsigned>(lines.size()));
    return known.moves ? std::optional(engine::Theorem(known.next.text())) : std::nullopt;
}

// Whether the goal, or every way from the last good line, needs a stone of the colour.
bool Teacher::needs(char colour, PackedLine from, unsigned standing)
{
    return holdsColour(m_goal, colour)
        || !m_search.find(from, m_goal, standing, m_open & ~movesThatNeed(colour));
}

void Teacher::explain(Advice& advice, PackedLine last, PackedLine good, unsigned row)
{
    for (const char colour : PackedLine::kLetters) {
        if (!canCome(colour, last) && holdsColour(good, colour) && needs(colour, good, row + 1)) {
            advice.why = DeadEnd::ColourGone;
            advice.colour = colour;
            return;
        }
    }
    // Were the board empty but for this line, no line of it would be missing.
    if (m_search.find(last, m_goal, 1, m_open)) {
        advice.why = DeadEnd::TooFewLines;
    } else if (leadsOnPastTheEdge(last, kMostLines - 1)) {
        advice.why = DeadEnd::TooLong;
    }
}

// Whether the goal could be reached if lines might have more chips than the board has columns.
bool Teacher::leadsOnPastTheEdge(PackedLine line, unsigned moves) const
{
    std::unordered_set<std::uint64_t> seen { line.word() };
    std::vector<PackedLine> lines { line };
    engine::PackedMoves::Children children;
    std::size_t first = 0;
    for (unsigned made = 1; made <= moves; ++made) {
        const std::size_t end = lines.size();
        for (std::size_t i = first; i < end; ++i) {
            for (unsigned rule = 0; rule < progress::kMoveCount; ++rule) {
                if ((m_open & only(rule)) == 0) {
                    continue;
                }
                gameMoves().childrenByRule(rule, lines[i], kLongestBeyond, children);
                for (const PackedLine child : children) {
                    if (child == m_goal) {
                        return true;
                    }
                    if (child != PackedLine() && lines.size() < kMostBeyond
                        && seen.insert(child.word()).second) {
                        lines.push_back(child);
                    }
                }
            }
        }
        first = end;
    }
    return false;
}

} // namespace veyrand::play
