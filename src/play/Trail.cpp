#include "play/Trail.h"

#include "play/Decide.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::play {

namespace {

using engine::PackedLine;

PackedLine packed(const std::string& line)
{
    return PackedLine::pack(line).value_or(PackedLine());
}

// The moves by which the shortest ways go on from their first line.
MoveSet firstMovesOf(const Ways& ways)
{
    MoveSet moves = 0;
    for (const Ways::Way& way : ways.lines().front().on) {
        moves |= way.moves;
    }
    return moves;
}

bool goesOnTo(const Ways& ways, std::size_t from, PackedLine line)
{
    const auto& on = ways.lines()[from].on;
    return std::any_of(on.begin(), on.end(),
        [&](const Ways::Way& way) { return ways.lines()[way.to].line == line; });
}

std::size_t placeOn(const Ways& ways, PackedLine line, unsigned distance)
{
    const auto& lines = ways.lines();
    const auto found = std::find_if(lines.begin(), lines.end(),
        [&](const Ways::Line& each) { return each.line == line && each.distance == distance; });
    return static_cast<std::size_t>(found - lines.begin());
}

} // namespace

std::vector<TrailStep> trailOf(const CodedPuzzle& puzzle, const std::vector<Move>& moves)
{
    std::vector<TrailStep> trail { { .line = puzzle.root } };
    engine::Theorem line(puzzle.root);
    for (const Move& move : moves) {
        const auto next = lineAfter(line, move);
        if (!next) {
            break;
        }
        line = *next;
        trail.push_back({ .line = line.theorem(), .move = move });
    }
    return trail;
}

std::vector<TrailStep> trailOf(const Ways& ways, std::uint64_t number, MoveSet open)
{
    std::vector<TrailStep> trail;
    PackedLine before;
    for (const PackedLine line : ways.way(number)) {
        const auto standing = static_cast<unsigned>(trail.size());
        trail.push_back({ .line = line.text() });
        if (standing > 0) {
            trail.back().move
                = moveBetween(before, line, movesWith(standing) & open).value_or(Move {});
        }
        before = line;
    }
    return trail;
}

// One search serves for as long as the solution keeps to a shortest way.
void markWhereItLeaves(std::vector<TrailStep>& trail, WaySearch& search, MoveSet open)
{
    const PackedLine goal = packed(trail.back().line);
    auto ways = search.find(packed(trail.front().line), goal, 1, open);
    std::size_t at = 0; // of the line before, on the ways
    for (std::size_t row = 1; row < trail.size() && ways; ++row) {
        const PackedLine line = packed(trail[row].line);
        const unsigned left = ways->moves() - ways->lines()[at].distance;
        if (goesOnTo(*ways, at, line)) {
            at = placeOn(*ways, line, ways->lines()[at].distance + 1);
            continue;
        }
        if (at != 0) {
            ways = search.find(packed(trail[row - 1].line), goal, static_cast<unsigned>(row), open);
        }
        trail[row].instead = ways ? firstMovesOf(*ways) : 0;
        if (row + 1 == trail.size()) {
            break;
        }
        ways = search.find(line, goal, static_cast<unsigned>(row) + 1, open);
        trail[row].more = ways ? ways->moves() + 1 - left : 0;
        at = 0;
    }
}

std::optional<engine::Range> stonesOf(const std::string& line, const Move& move)
{
    auto range = matchOf(engine::Theorem(line), move);
    if (range && move.rule == progress::kDoubling) {
        range->length = 1; // what follows the yellow is doubled, but nobody touches it
    }
    return range;
}

} // namespace veyrand::play
