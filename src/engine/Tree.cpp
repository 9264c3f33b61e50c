#include "engine/Tree.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <unordered_set>

namespace veyrand::engine {

namespace {

// How often the length of a path is looked at: it costs a walk up the tree.
constexpr std::size_t kNodesBetweenPathChecks = 100;

std::size_t pathLength(const TreeNode& node)
{
    std::size_t length = 0;
    for (const TreeNode* n = &node; n != nullptr; n = n->parent()) {
        ++length;
    }
    return length;
}

} // namespace

Tree::Tree(Theorem root, SharedRules rules, unsigned childLimit, unsigned theoremLengthLimit)
    : m_root(std::move(root))
    , m_rules(std::move(rules))
{
    makeTreeOfDepth(childLimit, theoremLengthLimit);
}

NodePtr Tree::node(std::size_t index) const
{
    if (index >= count()) {
        throw std::out_of_range("no such node in the tree");
    }
    return { m_nodes, &(*m_nodes)[index] };
}

Nodes Tree::nodes() const
{
    Nodes nodes;
    nodes.reserve(count());
    for (std::size_t i = 0; i < count(); ++i) {
        nodes.push_back(node(i));
    }
    return nodes;
}

unsigned Tree::makeTreeOfDepth(const TreeLimits& limits, const Theorem* goal)
{
    if (!m_root.hasText() || m_rules == nullptr || limits.children == 0
        || limits.theoremLength == 0) {
        return 0;
    }
    m_nodes = std::make_shared<Arena>();
    m_examined = 0;
    Arena& nodes = *m_nodes;
    nodes.emplace_back(nullptr, m_root, m_rules);

    // The root's own line is not counted as seen: it is kept once more when it is derived again, so
    // that a goal equal to the root can be found.
    std::unordered_set<std::string> seen;
    for (std::size_t i = 0; i < nodes.size() && m_examined < limits.children; ++i) {
        nodes[i].makeChildren();
        // The children are taken out of the node, so that memory holds the kept ones only.
        std::vector<TreeNode> children = nodes[i].takeChildren();
        for (TreeNode& child : children) {
            if (m_examined >= limits.children) {
                return kGoalNotFound;
            }
            const std::string& line = child.theorem().theorem();
            if (line.size() <= limits.theoremLength && seen.insert(line).second) {
                nodes.push_back(std::move(child));
                if (goal != nullptr && nodes.back().theorem() == *goal) {
                    return static_cast<unsigned>(i); // found before it is counted
                }
            }
            ++m_examined;
        }
        if (!children.empty() && i % kNodesBetweenPathChecks == 0
            && pathLength(nodes[i]) > limits.path) {
            break;
        }
    }
    return kGoalNotFound;
}

bool Tree::makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit, const Theorem& goal)
{
    return makeTreeOfDepth(TreeLimits { childLimit, theoremLengthLimit }, &goal) != kGoalNotFound;
}

void Tree::makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit)
{
    makeTreeOfDepth(TreeLimits { childLimit, theoremLengthLimit }, nullptr);
}

Path Tree::pathForNode(const NodePtr& node)
{
    Path path;
    for (const TreeNode* n = node.get(); n != nullptr; n = n->parent()) {
        path.emplace_back(node, n);
    }
    std::reverse(path.begin(), path.end());
    return path;
}

std::optional<Path> Tree::reversePath(const Path& path)
{
    if (path.empty()) {
        return std::nullopt;
    }
    return Path(path.rbegin(), path.rend());
}

} // namespace veyrand::engine
