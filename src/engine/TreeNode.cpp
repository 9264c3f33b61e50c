#include "engine/TreeNode.h"

namespace veyrand::engine {

TreeNode::TreeNode(const TreeNode* parent, Theorem theorem, SharedRules rules)
    : m_parent(parent)
    , m_theorem(std::move(theorem))
    , m_rules(std::move(rules))
{
}

void TreeNode::makeChildren()
{
    if (!m_theorem.hasText() || m_rules == nullptr) {
        return;
    }
    m_children.clear();
    for (const Rule& rule : *m_rules) {
        const unsigned matches = m_theorem.numberOfMatchesWithRule(rule);
        for (unsigned match = 0; match < matches; ++match) {
            m_children.emplace_back(this, *m_theorem.applyRule(rule, match), m_rules);
        }
    }
}

} // namespace veyrand::engine
