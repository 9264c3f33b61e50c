#pragma once

#include "engine/TreeNode.h"

#include <cstddef>
#include <deque>
#include <limits>
#include <memory>
#include <optional>

namespace veyrand::engine {

// What a build answers when it ends without meeting the goal: all bits one.
inline constexpr unsigned kGoalNotFound = std::numeric_limits<unsigned>::max();

// The bounds of one build.
struct TreeLimits {
    unsigned children = 0; // examined children, kept or dropped
    unsigned theoremLength = 0; // chips a kept line may have
    unsigned path = 100; // elements a path may have; tested at every hundredth node only
};

// The search behind solutions and hints. From one line it derives, breadth first, every line the
// moves can reach, skipping lines already seen, until the goal turns up or a limit is hit. Nodes
// stand in the order of their discovery, so the first path to a line is a shortest one; ties go to
// the earlier rule, then to the match further left.
//
// The nodes live as long as the tree or any node or path handed out by it.
class Tree {
public:
    // Nothing is built unless both limits are positive.
    Tree(Theorem root, SharedRules rules, unsigned childLimit, unsigned theoremLengthLimit);

    [[nodiscard]] const Theorem& root() const { return m_root; }
    [[nodiscard]] const SharedRules& rules() const { return m_rules; }

    // Every kept node in order of discovery, the root first. Empty until a build has run.
    [[nodiscard]] std::size_t count() const { return m_nodes ? m_nodes->size() : 0; }
    [[nodiscard]] NodePtr node(std::size_t index) const; // throws std::out_of_range
    [[nodiscard]] Nodes nodes() const;

    // Children examined by the last build.
    [[nodiscard]] unsigned examined() const { return m_examined; }

    // Builds anew. The answer is the index of the node whose child was the goal (the goal is then
    // the last node), kGoalNotFound when the build ended without it, and 0 when nothing was built
    // because the root, the rules or a limit is missing; the nodes then stay as they were.
    unsigned makeTreeOfDepth(const TreeLimits& limits, const Theorem* goal);

    // The same with a path limit of 100. True unless the goal was not found: a build that never
    // took place answers true as well.
    bool makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit, const Theorem& goal);

    void makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit);

    // From the root of the node's tree to the node.
    [[nodiscard]] static Path pathForNode(const NodePtr& node);

    // The same elements in reverse; nothing for an empty path.
    [[nodiscard]] static std::optional<Path> reversePath(const Path& path);

private:
    using Arena = std::deque<TreeNode>; // never moves a node, so that parents can be pointed at

    Theorem m_root;
    SharedRules m_rules;
    std::shared_ptr<Arena> m_nodes;
    unsigned m_examined = 0;
};

} // namespace veyrand::engine
