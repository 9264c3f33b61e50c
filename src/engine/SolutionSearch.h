#pragma once

#include "engine/Rule.h"
#include "engine/Theorem.h"
#include "engine/Tree.h"

#include <list>
#include <optional>

namespace veyrand::engine {

// The limits of every search for a solution.
inline constexpr TreeLimits kSolutionLimits { 15000, 12, 13 };

// Finds ways from one line to another. The goal plays no part in the order in which a search meets
// its lines, so one tree answers every goal of its root: the trees of the roots last asked about
// are kept, enough of them for every row of a board, and a second hint on the same board costs next
// to nothing. Every proof has one, through its analysis. For one thread at a time: every question
// changes what is kept.
class SolutionSearch {
public:
    explicit SolutionSearch(SharedRules rules);

    // The tree that answers every goal from this line. It stays until as many other roots as are
    // kept have been asked for.
    [[nodiscard]] const Tree& treeFrom(const Theorem& root);

    // A shortest way, both lines included; nothing when there is none.
    [[nodiscard]] std::optional<Path> path(const Theorem& from, const Theorem& to);

    // What a build with that goal would answer.
    [[nodiscard]] unsigned result(const Theorem& from, const Theorem& to);

private:
    SharedRules m_rules;
    std::list<Tree> m_trees; // the last one asked for first
};

} // namespace veyrand::engine
