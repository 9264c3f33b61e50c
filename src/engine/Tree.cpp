#include "engine/Tree.h"

#include "engine/PackedLineSet.h"
#include "engine/PackedMoves.h"
#include "engine/PlainMoves.h"

#include <algorithm>

namespace veyrand::engine {

namespace {

// What a packed search works in. One after another uses it, so that a hint's many searches ask for
// little memory and always get the same.
struct PackedWorkspace {
    PackedLineSet seen;
    Derivation<PackedLine> kept;
};

// A search far beyond the game's own limits is a designer's; its memory is not kept.
constexpr unsigned kMostChildrenKeptInMind = 100000;

Derivation<PackedLine> derivePacked(const PackedMoves& moves, PackedLine root,
    const TreeLimits& limits, const std::optional<PackedLine>& goal)
{
    const auto deriveIn = [&](PackedWorkspace& workspace) {
        derive(moves, root, limits, goal ? &*goal : nullptr, workspace.seen, workspace.kept);
        return workspace.kept.trimmed();
    };
    if (limits.children > kMostChildrenKeptInMind) {
        PackedWorkspace ownWorkspace;
        return deriveIn(ownWorkspace);
    }
    thread_local PackedWorkspace workspace;
    return deriveIn(workspace);
}

Theorem theoremOf(PackedLine line)
{
    return Theorem(line.text());
}

const Theorem& theoremOf(const Theorem& line)
{
    return line;
}

template <class Line>
std::optional<std::size_t> indexOfDerivedIn(const Derivation<Line>& derivation, const Line& line)
{
    const auto begin = derivation.lines.begin();
    const auto found = begin == derivation.lines.end()
        ? begin
        : std::find(begin + 1, derivation.lines.end(), line);
    if (found == derivation.lines.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - begin);
}

} // namespace

Tree::Tree(Theorem root, SharedRules rules, unsigned childLimit, unsigned theoremLengthLimit)
    : m_root(std::move(root))
    , m_rules(std::move(rules))
{
    makeTreeOfDepth(childLimit, theoremLengthLimit);
}

unsigned Tree::makeTreeOfDepth(const TreeLimits& limits, const Theorem* goal)
{
    if (!m_root.hasText() || m_rules == nullptr || limits.children == 0
        || limits.theoremLength == 0) {
        return 0;
    }
    m_nodes = nullptr;
    const std::optional<PackedMoves> moves = PackedMoves::derive(*m_rules);
    const std::optional<PackedLine> root = PackedLine::pack(m_root.theorem());
    if (moves && root && limits.theoremLength <= PackedLine::kMostChips) {
        // A goal that cannot be packed cannot be derived either.
        m_derivation = derivePacked(*moves, *root, limits,
            goal != nullptr && goal->hasText() ? PackedLine::pack(goal->theorem()) : std::nullopt);
    } else {
        PlainLineSet seen;
        PlainDerivation derivation;
        derive(PlainMoves(m_rules), m_root, limits, goal, seen, derivation);
        m_derivation = derivation.trimmed();
    }
    return std::visit([](const auto& derivation) { return derivation.result; }, m_derivation);
}

bool Tree::makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit, const Theorem& goal)
{
    return makeTreeOfDepth(TreeLimits { childLimit, theoremLengthLimit }, &goal) != kGoalNotFound;
}

void Tree::makeTreeOfDepth(unsigned childLimit, unsigned theoremLengthLimit)
{
    makeTreeOfDepth(TreeLimits { childLimit, theoremLengthLimit }, nullptr);
}

const std::vector<std::uint32_t>& Tree::parents() const
{
    return std::visit(
        [](const auto& derivation) -> const std::vector<std::uint32_t>& {
            return derivation.parents;
        },
        m_derivation);
}

std::size_t Tree::count() const
{
    return parents().size();
}

unsigned Tree::examined() const
{
    return std::visit([](const auto& derivation) { return derivation.examined; }, m_derivation);
}

Theorem Tree::lineAt(std::size_t index) const
{
    return std::visit(
        [&](const auto& derivation) { return Theorem(theoremOf(derivation.lines.at(index))); },
        m_derivation);
}

std::size_t Tree::parentOf(std::size_t index) const
{
    return parents().at(index);
}

NodePtr Tree::node(std::size_t index) const
{
    if (m_nodes == nullptr) {
        m_nodes = std::make_shared<Arena>();
        for (std::size_t i = 0; i < count(); ++i) {
            m_nodes->emplace_back(i == 0 ? nullptr : &(*m_nodes)[parentOf(i)], lineAt(i), m_rules);
        }
    }
    return { m_nodes, &m_nodes->at(index) };
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

std::optional<std::size_t> Tree::indexOfDerived(const Theorem& line) const
{
    if (const auto* plain = std::get_if<PlainDerivation>(&m_derivation)) {
        return indexOfDerivedIn(*plain, line);
    }
    const std::optional<PackedLine> packed
        = line.hasText() ? PackedLine::pack(line.theorem()) : std::nullopt;
    return packed ? indexOfDerivedIn(std::get<PackedDerivation>(m_derivation), *packed)
                  : std::nullopt;
}

Path Tree::pathTo(std::size_t index) const
{
    std::vector<std::size_t> indices { index };
    while (indices.back() != 0) {
        indices.push_back(parentOf(indices.back()));
    }
    const auto nodes = std::make_shared<Arena>();
    Path path;
    for (auto i = indices.rbegin(); i != indices.rend(); ++i) {
        const TreeNode* parent = nodes->empty() ? nullptr : &nodes->back();
        path.emplace_back(nodes, &nodes->emplace_back(parent, lineAt(*i), m_rules));
    }
    return path;
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
