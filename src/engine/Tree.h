#pragma once

#include "engine/Derivation.h"
#include "engine/PackedLine.h"
#include "engine/TreeLimits.h"
#include "engine/TreeNode.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <variant>

namespace veyrand::engine {

// The search behind solutions and hints. From one line it derives, breadth first, every line the
// moves can reach, skipping lines already seen, until the goal turns up or a limit is hit. Nodes
// stand in the order of their discovery, so the first path to a line is a shortest one; ties go to
// the earlier rule, then to the match further left.
//
// The search runs on packed lines where the rules and the root allow it, else on texts; the answers
// are the same. It keeps lines only, and makes nodes of them when asked for. A node or path handed
// out lives on after the tree. Making nodes changes what is kept, so a tree is for one thread at a
// time, even where it is const; nodes that have been handed out are anybody's to read.
class Tree {
public:
    // Nothing is built unless both limits are positive.
    Tree(Theorem root, SharedRules rules, unsigned childLimit, unsigned theoremLengthLimit);

    [[nodiscard]] const Theorem& root() const { return m_root; }
    [[nodiscard]] const SharedRules& rules() const { return m_rules; }

    // Builds anew. The answer is the index of the node whose child was the goal (the goal is then
    // the last node), kGoalNotFound when the build ended without it, and 0 when nothing was built
    // because the root, the rules or a limit is missing; the nodes then stay as they were.
    unsigned makeTreeOfDepth(const TreeLimits& limits, const Theorem* goal);

    // The same with a path limit of 100. True unless the goal was not found: a build that never
    // took place answers true as well.
    bool makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit, const Theorem& goal);

    void makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit);

    // Every kept node in order of discovery, the root first. None until a build has run. An index
    // at or beyond the count throws std::out_of_range, here and below.
    [[nodiscard]] std::size_t count() const;
    [[nodiscard]] NodePtr node(std::size_t index) const;
    [[nodiscard]] Nodes nodes() const;

    // One node's line, and the index of the node it came from, without making nodes.
    [[nodiscard]] Theorem lineAt(std::size_t index) const;
    [[nodiscard]] std::size_t parentOf(std::size_t index) const;

    // Children examined by the last build.
    [[nodiscard]] unsigned examined() const;

    // The first node that was derived (so never the root) with that line. A build with that line
    // for its goal would have ended at this very node.
    [[nodiscard]] std::optional<std::size_t> indexOfDerived(const Theorem& line) const;

    // From the root to the node of that index. Its nodes are the path's own.
    [[nodiscard]] Path pathTo(std::size_t index) const;

    // From the root of the node's tree to the node.
    [[nodiscard]] static Path pathForNode(const NodePtr& node);

    // The same elements in reverse; nothing for an empty path.
    [[nodiscard]] static std::optional<Path> reversePath(const Path& path);

private:
    using Arena = std::deque<TreeNode>; // never moves a node, so that parents can be pointed at
    using PackedDerivation = Derivation<PackedLine>;
    using PlainDerivation = Derivation<Theorem>;

    [[nodiscard]] const std::vector<std::uint32_t>& parents() const;

    Theorem m_root;
    SharedRules m_rules;
    std::variant<PackedDerivation, PlainDerivation> m_derivation;
    mutable std::shared_ptr<Arena> m_nodes; // made of the derivation on first use
};

} // namespace veyrand::engine
