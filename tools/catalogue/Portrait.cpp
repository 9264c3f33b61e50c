#include "catalogue/Portrait.h"

#include "catalogue/HumanSolver.h"

namespace veyrand::catalogue {

std::optional<Portrait> Painter::paint(const Puzzle& puzzle, MoveSet open)
{
    m_reach.explore(packed(puzzle.root), kMostMoves);
    return paint(m_reach, packed(puzzle.root), packed(puzzle.goal), open);
}

std::optional<Portrait> Painter::paint(
    const Reach& reach, engine::PackedLine root, engine::PackedLine goal, MoveSet open)
{
    const auto ways = ShortestWays::find(reach, goal);
    if (!ways) {
        return std::nullopt;
    }
    if (m_explored != std::pair(root, open)) {
        m_board.explore(root, open);
        m_explored = { root, open };
    }
    Portrait portrait;
    portrait.puzzle = { root.text(), goal.text(), ways->moves() };
    portrait.metrics = measure(*ways, open);
    portrait.highestRule = ways->highestRule();
    portrait.ideas = ideasOf(*ways);
    portrait.way = wayOf(*ways, open);
    portrait.kindness = m_board.kindnessTo(goal);
    portrait.steps = HumanSolver(root, goal, open).medianSteps();
    return portrait;
}

} // namespace veyrand::catalogue
