#pragma once

#include "engine/Rule.h"
#include "engine/Theorem.h"

#include <list>
#include <memory>
#include <vector>

namespace veyrand::engine {

// One derived line, with a link to the line it came from. A node owns its children; its parent is
// owned by whoever made it and must outlive it. It stays where it was made, as its children point
// at it.
class TreeNode {
public:
    // A root has no parent. A node without rules has no children.
    TreeNode(const TreeNode* parent, Theorem theorem, SharedRules rules);
    TreeNode(const TreeNode&) = delete;
    TreeNode& operator=(const TreeNode&) = delete;
    ~TreeNode() = default;

    [[nodiscard]] const TreeNode* parent() const { return m_parent; }
    [[nodiscard]] const Theorem& theorem() const { return m_theorem; }
    [[nodiscard]] const SharedRules& rules() const { return m_rules; }

    // Empty before makeChildren, and after it when no rule applies.
    [[nodiscard]] const std::list<TreeNode>& children() const { return m_children; }

    // Derives every line one move away: rule by rule, and within a rule match by match. Two ways to
    // the same line make two children.
    void makeChildren();

private:
    const TreeNode* m_parent;
    Theorem m_theorem;
    SharedRules m_rules;
    std::list<TreeNode> m_children;
};

// A node together with the tree that keeps it: holding one keeps its whole ancestry alive, long
// after the search that made it is gone.
using NodePtr = std::shared_ptr<const TreeNode>;
using Nodes = std::vector<NodePtr>;

// Nodes from a start line (first) to some line derived from it (last). One less than its size is
// the number of moves.
using Path = std::vector<NodePtr>;

} // namespace veyrand::engine
