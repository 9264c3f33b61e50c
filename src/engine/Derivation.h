#pragma once

#include "engine/TreeLimits.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace veyrand::engine {

// Every line one search has kept, in order of discovery, and for each the index of the line it came
// from (the first line, the root, came from none and names itself). The lists may be longer than
// the count: what lies behind it is scratch.
template <class Line> struct Derivation {
    std::vector<Line> lines;
    std::vector<std::uint32_t> parents;
    std::size_t count = 0;
    unsigned examined = 0; // children looked at, kept or dropped
    unsigned result = kGoalNotFound; // the index of the line whose child was the goal

    // Makes sure that so many more lines can be written behind the last one. There is room for a
    // parent wherever there is for a line, also after memory has run out in between.
    void makeRoomFor(std::size_t more)
    {
        if (lines.size() - count < more) {
            const std::size_t room = 2 * lines.size() + more;
            parents.resize(room);
            lines.resize(room);
        }
    }

    // The same without the scratch.
    [[nodiscard]] Derivation trimmed() const
    {
        const auto kept = static_cast<std::ptrdiff_t>(count);
        return { { lines.begin(), lines.begin() + kept },
            { parents.begin(), parents.begin() + kept }, count, examined, result };
    }

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
// must offer childrenOf as PackedMoves does; Seen, clear() and insert(line), which is false for
// what is no line.
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
    kept.count = 0;
    kept.makeRoomFor(1);
    kept.lines[0] = root;
    kept.parents[0] = 0;
    kept.count = 1;
    kept.result = kGoalNotFound;
    typename Moves::Children children;
    unsigned examined = 0;
    for (std::size_t i = 0; i < kept.count && examined < limits.children; ++i) {
        moves.childrenOf(Line(kept.lines.data()[i]), limits.theoremLength, children);
        seen.makeRoomFor(kept.count + children.size());
        kept.makeRoomFor(children.size());
        const std::size_t looked
            = std::min<std::size_t>(children.size(), limits.children - examined);
        Line* const lines = kept.lines.data();
        std::uint32_t* const parents = kept.parents.data();
        std::size_t count = kept.count;
        for (std::size_t c = 0; c < looked; ++c) {
            // Written behind the last line either way, where it stays only if the count grows.
            const Line& child = children.begin()[static_cast<std::ptrdiff_t>(c)];
            lines[count] = child;
            parents[count] = static_cast<std::uint32_t>(i);
            const bool isNew = seen.insert(child);
            count += static_cast<std::size_t>(isNew);
            // Asked in this order because the last cannot be foreseen.
            if (goal != nullptr && child == *goal && isNew) {
                kept.count = count;
                kept.result = static_cast<unsigned>(i);
                kept.examined = examined + static_cast<unsigned>(c); // the goal is not counted
                return;
            }
        }
        kept.count = count;
        examined += static_cast<unsigned>(looked);
        if (children.size() > 0 && i % kLinesBetweenPathChecks == 0
            && kept.pathLength(i) > limits.path) {
            break;
        }
    }
    kept.examined = examined;
}

} // namespace veyrand::engine
