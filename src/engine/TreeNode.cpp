#include "engine/TreeNode.h"

namespace veyrand::engine {

void TreeNode::makeChildren()
{
    std::vector<TreeNode> children;
    for (const Rule& rule : *m_rules) {
        const unsigned matches = m_theorem.numberOfMatchesWithRule(rule);
        for (unsigned index = 0; index < matches; ++index) {
            if (auto line = m_theorem.applyRule(rule, index)) {
                children.emplace_back(this, *std::move(line), *m_rules);
            }
        }
    }
    if (children.empty()) {
        m_children.reset();
    } else {
        m_children = std::move(children);
    }
}

std::vector<TreeNode> TreeNode::takeChildren()
{
    std::vector<TreeNode> taken = m_children ? *std::move(m_children) : std::vector<TreeNode> {};
    m_children.reset();
    return taken;
}

} // namespace veyrand::engine
