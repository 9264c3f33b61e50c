#include "engine/SolutionSearch.h"

#include <algorithm>

namespace veyrand::engine {

namespace {

// The 13 rows of a board, and a few for the lines that take the place of removed ones.
constexpr std::size_t kMostTrees = 16;

} // namespace

SolutionSearch::SolutionSearch(SharedRules rules)
    : m_rules(std::move(rules))
{
}

const Tree& SolutionSearch::treeFrom(const Theorem& root)
{
    const auto known = std::find_if(
        m_trees.begin(), m_trees.end(), [&](const Tree& tree) { return tree.root() == root; });
    if (known != m_trees.end()) {
        m_trees.splice(m_trees.begin(), m_trees, known);
        return m_trees.front();
    }
    if (m_trees.size() == kMostTrees) {
        m_trees.pop_back();
    }
    m_trees.emplace_front(root, m_rules, 0, 0).makeTreeOfDepth(kSolutionLimits, nullptr);
    return m_trees.front();
}

std::optional<Path> SolutionSearch::path(const Theorem& from, const Theorem& to)
{
    const Tree& tree = treeFrom(from);
    const std::optional<std::size_t> goal = tree.indexOfDerived(to);
    if (!goal) {
        return std::nullopt;
    }
    return tree.pathTo(*goal);
}

unsigned SolutionSearch::result(const Theorem& from, const Theorem& to)
{
    const Tree& tree = treeFrom(from);
    if (tree.count() == 0) {
        return 0; // nothing was built
    }
    const std::optional<std::size_t> goal = tree.indexOfDerived(to);
    return goal ? static_cast<unsigned>(tree.parentOf(*goal)) : kGoalNotFound;
}

} // namespace veyrand::engine
