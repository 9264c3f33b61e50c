#pragma once

#include "engine/TreeLimits.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace veyrand::engine {

// Every line one search has kept, in order of discovery, and for each the index of the line it came
// from (the first line, the root, came from none and names itself).
template <class Line> struct Derivation {
    std::vector<Line> lines;
    std::vector<std::uint32_t> parents;
    unsigned examined = 0; // children looked at, kept or dropped
    unsigned result = kGoalNotFound; // the index of the line whose child was the goal

    // Lines from the root to the given one, both included.
    [[nodiscard]] std::size_t pathLength(std::size_t index) const
    {
        std::size_t length = 1;
        for (; index != 0; index = parents[index]) {
            ++length;
        }
        return length;
    }
};

// The breadth-first search over lines of either kind, written into `kept` and remembering lines in
// `seen`; both are the caller's, so that searches one after another can share their memory. Moves
// must offer forEachChild as PackedMoves does; Seen, clear() and insert(line).
//
// The goal plays no part but to end the search early: without one, the same lines are kept in the
// same order, and more of them.
template <class Moves, class Seen>
void derive(const Moves& moves, const typename Moves::Line& root, const TreeLimits& limits,
    const typename Moves::Line* goal, Seen& seen, Derivation<typename Moves::Line>& kept)
{
    // How often the length of a path is looked at: it costs a walk up the tree.
    constexpr std::size_t kLinesBetweenPathChecks = 100;
    using Line = typename Moves::Line;

    // The root's own line is not counted as seen: it is kept once more when it is derived again, so
    // that a goal equal to the root can be found.
    seen.clear();
    kept.lines.assign(1, root);
    kept.parents.assign(1, 0);
    kept.result = kGoalNotFound;
    unsigned examined = 0;
    bool found = false;
    for (std::size_t i = 0; i < kept.lines.size() && examined < limits.children; ++i) {
        const unsigned before = examined;
        const Line line = kept.lines[i];
        moves.forEachChild(line, limits.theoremLength, [&](const Line& child) {
            if (examined >= limits.children) {
                return false;
            }
            if (child != Line() && seen.insert(child)) {
                kept.lines.push_back(child);
                kept.parents.push_back(static_cast<std::uint32_t>(i));
                if (goal != nullptr && child == *goal) {
                    found = true; // before it is counted
                    return false;
                }
            }
            ++examined;
            return true;
        });
        if (found) {
            kept.result = static_cast<unsigned>(i);
            break;
        }
        if (examined != before && i % kLinesBetweenPathChecks == 0
            && kept.pathLength(i) > limits.path) {
            break;
        }
    }
    kept.examined = examined;
}

} // namespace veyrand::engine
