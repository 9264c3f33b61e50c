#include "engine/Analysis.h"

#include "engine/Regex.h"
#include "platform/Log.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

namespace veyrand::engine {

namespace {

// A line shorter than each of these is worth a point more.
constexpr std::size_t kShortLine = 8;
constexpr std::size_t kVeryShortLine = 5;

template <class List> std::optional<List> nothingIfEmpty(List list)
{
    return list.empty() ? std::nullopt : std::optional<List>(std::move(list));
}

std::vector<std::size_t> indicesOfLines(
    const Nodes& nodes, const std::unordered_set<std::string>& lines)
{
    std::vector<std::size_t> indices;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (lines.contains(nodes[i]->theorem().theorem())) {
            indices.push_back(i);
        }
    }
    return indices;
}

} // namespace

Analysis::Analysis(std::shared_ptr<const Tree> tree, SharedRules rules)
    : m_tree(std::move(tree))
    , m_rules(std::move(rules))
    , m_packedMoves(m_rules ? PackedMoves::derive(*m_rules) : std::nullopt)
    , m_search(std::make_shared<SolutionSearch>(m_rules))
{
}

std::optional<Path> Analysis::findSolutionPathFromTheorem(
    const Theorem& from, const Theorem& to, unsigned pathLimit) const
{
    std::optional<Path> path = m_search->path(from, to);
    if (path && path->size() > pathLimit) {
        return std::nullopt;
    }
    return path;
}

int Analysis::findTreeCountFromTheorem(
    const Theorem& from, const Theorem& to, unsigned /*pathLimit*/) const
{
    return static_cast<int>(m_search->result(from, to));
}

int Analysis::ruleIndexFromTheorem(const Theorem& from, const Theorem& to) const
{
    int found = kNoRule;
    if (!from.hasText() || !to.hasText()) {
        return found; // no move makes a line without a text, which is not the one of no chips
    }
    for (std::size_t rule = 0; rule < m_rules->size(); ++rule) {
        if (leadsTo(rule, from, to)) {
            found = static_cast<int>(rule);
        }
    }
    return found;
}

bool Analysis::leadsTo(std::size_t rule, const Theorem& from, const Theorem& to) const
{
    const std::optional<PackedLine> packedFrom = PackedLine::pack(from.theorem());
    const std::optional<PackedLine> packedTo = PackedLine::pack(to.theorem());
    if (m_packedMoves && packedFrom && packedTo) {
        PackedMoves::Children children;
        m_packedMoves->childrenByRule(rule, *packedFrom, PackedLine::kMostChips, children);
        return std::find(children.begin(), children.end(), *packedTo) != children.end();
    }
    const unsigned matches = from.numberOfMatchesWithRule((*m_rules)[rule]);
    for (unsigned match = 0; match < matches; ++match) {
        if (from.applyRule((*m_rules)[rule], match) == to) {
            return true;
        }
    }
    return false;
}

std::optional<std::string> Analysis::ruleSequenceForPath(const Path& path) const
{
    std::string sequence;
    for (std::size_t i = 1; i < path.size(); ++i) {
        sequence
            += std::to_string(ruleIndexFromTheorem(path[i - 1]->theorem(), path[i]->theorem()));
    }
    return nothingIfEmpty(std::move(sequence));
}

std::optional<std::string> Analysis::ruleSequenceForNode(const NodePtr& node) const
{
    return ruleSequenceForPath(Tree::pathForNode(node));
}

int Analysis::scoreRuleSequence(std::string_view sequence) const
{
    int score = 0;
    for (std::size_t rule = 0; rule < m_tree->rules()->size(); ++rule) {
        const std::string digit = std::to_string(rule);
        std::string thrice = digit;
        thrice.append(digit).append(digit);
        if (isMatchedByRegex(sequence, digit)) {
            score += 1;
        }
        if (isMatchedByRegex(sequence, thrice)) {
            score -= 2;
        }
    }
    return score;
}

int Analysis::scoreNode(const NodePtr& node) const
{
    const std::size_t length = node->theorem().theorem().size();
    int score = scoreRuleSequence(ruleSequenceForNode(node).value_or(""));
    score += length < kShortLine ? 1 : 0;
    score += length < kVeryShortLine ? 1 : 0;
    return score;
}

Nodes Analysis::rankNodes(const std::optional<Nodes>& nodes) const
{
    if (!nodes) {
        return {};
    }
    std::vector<int> scores;
    for (const NodePtr& node : *nodes) {
        scores.push_back(scoreNode(node));
    }
    const int best = scores.empty() ? -1 : *std::max_element(scores.begin(), scores.end());
    Nodes ranked;
    for (int score = best; score > best / 2; --score) {
        for (std::size_t i = 0; i < scores.size(); ++i) {
            if (scores[i] == score) {
                ranked.push_back((*nodes)[i]);
            }
        }
    }
    return ranked;
}

std::optional<Nodes> Analysis::findNodesWithTheorem(const Theorem& theorem) const
{
    Nodes found;
    for (const NodePtr& node : m_tree->nodes()) {
        if (node->theorem() == theorem) {
            found.push_back(node);
        }
    }
    return nothingIfEmpty(std::move(found));
}

std::optional<std::vector<Path>> Analysis::findPathsWithTheorem(const Theorem& theorem) const
{
    std::vector<Path> paths;
    for (const NodePtr& node : findNodesWithTheorem(theorem).value_or(Nodes())) {
        paths.push_back(Tree::pathForNode(node));
    }
    return nothingIfEmpty(std::move(paths));
}

std::optional<Analysis::ShortestPath> Analysis::findShortestPath(const Theorem& theorem) const
{
    const std::optional<std::vector<Path>> paths = findPathsWithTheorem(theorem);
    if (!paths) {
        return std::nullopt;
    }
    if (paths->size() == 1) {
        return *paths;
    }
    return *std::min_element(paths->begin(), paths->end(),
        [](const Path& a, const Path& b) { return a.size() < b.size(); });
}

std::optional<Nodes> Analysis::nodesOfPathLength(unsigned n) const
{
    Nodes found;
    for (const NodePtr& node : m_tree->nodes()) {
        if (Tree::pathForNode(node).size() == n) {
            found.push_back(node);
        }
    }
    return nothingIfEmpty(std::move(found));
}

std::optional<Nodes> Analysis::uniqueNodesOfPathLength(unsigned n, platform::Log& log) const
{
    const std::string length = std::to_string(n);
    const std::optional<Nodes> list = nodesOfPathLength(n);
    log.write("Compiling list for: " + length);

    std::vector<std::string> earlierLines;
    for (const NodePtr& node : m_tree->nodes()) {
        if (Tree::pathForNode(node).size() < n) {
            earlierLines.push_back(node->theorem().theorem());
        }
    }
    log.write(
        "Thinning list for: " + length + " (" + std::to_string(earlierLines.size()) + " to thin)");

    const std::vector<std::size_t> noted
        = indicesOfLines(list.value_or(Nodes()), { earlierLines.begin(), earlierLines.end() });
    log.write("Deleting list for: " + length + " (" + std::to_string(noted.size()) + " to delete)");

    std::optional<Nodes> unique = list;
    if (unique) {
        removeNotedNodes(*unique, noted);
    }
    log.write("Finished Deleting: " + length);
    return unique;
}

void removeNotedNodes(Nodes& nodes, const std::vector<std::size_t>& noted)
{
    for (std::size_t k = 0; k < noted.size(); ++k) {
        const std::size_t position = noted[k] + k;
        if (position >= nodes.size()) {
            throw std::out_of_range("removal beyond the end of the node list");
        }
        nodes.erase(nodes.begin() + static_cast<std::ptrdiff_t>(position));
    }
}

} // namespace veyrand::engine
