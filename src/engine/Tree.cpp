#include "engine/Tree.h"

#include "engine/SeenLines.h"

#include <algorithm>

namespace veyrand::engine {

namespace {

constexpr std::size_t kNodesBetweenPathTests = 100;

unsigned pathCount(const TreeNode& node)
{
    unsigned count = 0;
    for (const TreeNode* at = &node; at != nullptr; at = at->parent()) {
        ++count;
    }
    return count;
}

} // namespace

Tree::Tree(Theorem root, std::shared_ptr<const Rules> rules)
    : m_root(std::move(root))
    , m_rules(std::move(rules))
{
}

Tree::Tree(Theorem root, std::shared_ptr<const Rules> rules, unsigned childLimit,
    unsigned theoremLengthLimit)
    : Tree(std::move(root), std::move(rules))
{
    makeTreeOfDepth(childLimit, theoremLengthLimit);
}

unsigned Tree::makeTreeOfDepth(
    unsigned childLimit, unsigned theoremLengthLimit, unsigned pathLimit, const Theorem* goal)
{
    if (!m_root.hasText() || !m_rules || childLimit == 0 || theoremLengthLimit == 0) {
        return 0;
    }
    const auto nodes = std::make_shared<Nodes>();
    nodes->emplace_back(nullptr, m_root, *m_rules);
    m_nodes = nodes;
    // The root's own line does not count as seen: derived again, it is kept once more, and a goal
    // equal to the root is found only then.
    SeenLines seen;
    unsigned examined = 0;
    for (unsigned i = 0; i < nodes->size(); ++i) {
        TreeNode& node = (*nodes)[i];
        node.makeChildren();
        auto children = node.takeChildren();
        for (TreeNode& child : children) {
            if (examined >= childLimit) {
                return kGoalNotFound;
            }
            const std::string& line = child.theorem().theorem();
            if (line.size() <= theoremLengthLimit && seen.insert(line)) {
                const bool found = goal != nullptr && line == goal->theorem();
                nodes->push_back(std::move(child));
                if (found) {
                    return i;
                }
            }
            ++examined;
        }
        const bool pathTested = !children.empty() && i % kNodesBetweenPathTests == 0;
        if (pathTested && pathCount(node) > pathLimit) {
            return kGoalNotFound;
        }
    }
    return kGoalNotFound;
}

bool Tree::makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit, const Theorem* goal)
{
    return makeTreeOfDepth(childLimit, theoremLengthLimit, kUsualPathLimit, goal) != kGoalNotFound;
}

void Tree::makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit)
{
    makeTreeOfDepth(childLimit, theoremLengthLimit, nullptr);
}

Path Tree::pathForNode(const TreeNode& node) const
{
    Path path;
    for (const TreeNode* at = &node; at != nullptr; at = at->parent()) {
        path.emplace_back(m_nodes, at); // shares in all the nodes, points at one
    }
    std::reverse(path.begin(), path.end());
    return path;
}

std::optional<Path> Tree::reversePath(const Path& path)
{
    return path.empty() ? std::nullopt : std::optional(Path(path.rbegin(), path.rend()));
}

} // namespace veyrand::engine
