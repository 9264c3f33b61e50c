#include "catalogue/SolutionText.h"

#include "catalogue/Certificate.h"
#include "catalogue/Metrics.h"

#include <algorithm>
#include <stdexcept>

namespace veyrand::catalogue {

namespace {

constexpr std::size_t kMostSolutionsShown = 12;

// The label of the move as the player sees it: the first two indices are crossed.
std::string labelOf(unsigned rule)
{
    return '#' + std::to_string(rule == 0 ? 2 : rule == 1 ? 1 : rule + 1);
}

// Walks every solution from a line on, until enough have been written.
void write(const ShortestWays& ways, std::size_t at, const std::string& before,
    std::vector<std::string>& solutions)
{
    const auto& line = ways.lines()[at];
    if (line.ways.empty()) {
        solutions.push_back(before);
        return;
    }
    for (const ShortestWays::Way& way : line.ways) {
        if (solutions.size() == kMostSolutionsShown) {
            return;
        }
        const auto rule = static_cast<unsigned>(__builtin_ctz(way.moves));
        write(ways, way.to, before + "  " + labelOf(rule) + ' ' + ways.lines()[way.to].line.text(),
            solutions);
    }
}

std::string drawn(const std::string& line)
{
    std::string chips;
    for (const char chip : line) {
        chips += chips.empty() ? "" : " ";
        chips += chip;
    }
    return chips;
}

} // namespace

Description description(std::size_t entry, const Puzzle& puzzle)
{
    Reach reach;
    reach.explore(packed(puzzle.root), kMostMoves);
    const auto ways = ShortestWays::find(reach, packed(puzzle.goal));
    if (!ways) {
        throw std::runtime_error(puzzle.root + " never becomes " + puzzle.goal);
    }
    const MoveSet open = openMoves(highestRuleOf(Game::Classic, entry));
    const Metrics metrics = measure(*ways, open);
    Description all { { "place", nameOf(placeOfEntry(entry)) }, { "start", drawn(puzzle.root) },
        { "goal", drawn(puzzle.goal) }, { "par in moves", std::to_string(ways->moves()) },
        { "bits", textOfBits(metrics.bits) },
        { "shortest solutions", std::to_string(metrics.solutions) },
        { "rules needed", textOf(metrics.needed) }, { "traps", std::to_string(metrics.traps) },
        { "detour in chips", std::to_string(metrics.detour) },
        { "changes of move", std::to_string(metrics.changes) },
        { "different moves", std::to_string(metrics.variety) },
        { "interest", textOfBits(interest(*ways, metrics)) } };
    std::vector<std::string> solutions;
    write(*ways, 0, puzzle.root, solutions);
    for (std::size_t i = 0; i < solutions.size(); ++i) {
        all.emplace_back("solution " + std::to_string(i + 1), solutions[i]);
    }
    return all;
}

} // namespace veyrand::catalogue
