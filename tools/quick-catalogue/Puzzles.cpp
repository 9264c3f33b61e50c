#include "Puzzles.h"

namespace veyrand::quick_catalogue {

Derivations::Derivations(const std::string& root, engine::SharedRules rules)
    : m_tree([&] {
        auto tree = std::make_shared<engine::Tree>(engine::Theorem(root), rules, 0U, 0U);
        tree->makeTreeOfDepth(engine::kSolutionLimits, nullptr);
        return tree;
    }())
    , m_analysis(m_tree, rules)
{
    for (const engine::NodePtr& node : m_tree->nodes()) {
        std::size_t moves = 0;
        for (const engine::TreeNode* at = node->parent(); at != nullptr; at = at->parent()) {
            ++moves;
        }
        if (node->theorem().theorem() != root) {
            m_goals.resize(std::max(m_goals.size(), moves + 1));
            m_goals[moves].push_back(node);
        }
    }
}

const engine::Nodes& Derivations::goals(unsigned moves) const
{
    static const engine::Nodes kNone;
    return moves < m_goals.size() ? m_goals[moves] : kNone;
}

std::string Derivations::ruleSequence(const engine::NodePtr& node) const
{
    return m_analysis.ruleSequenceForNode(node).value_or("");
}

int Derivations::score(const engine::NodePtr& node) const
{
    return m_analysis.scoreNode(node);
}

unsigned shortestSolution(
    const std::string& root, const std::string& goal, engine::SharedRules rules)
{
    const engine::Analysis analysis(nullptr, std::move(rules));
    const auto path
        = analysis.findSolutionPathFromTheorem(engine::Theorem(root), engine::Theorem(goal));
    return path ? static_cast<unsigned>(path->size()) - 1 : 0;
}

std::vector<std::string> roots(std::string_view letters, std::size_t fewest, std::size_t most)
{
    std::vector<std::string> all;
    std::vector<std::string> ofOneLength { "Y" };
    for (std::size_t chips = 1; chips <= most; ++chips) {
        std::vector<std::string> longer;
        for (const std::string& line : ofOneLength) {
            for (const char letter : letters) {
                longer.push_back(line + letter);
            }
        }
        ofOneLength = std::move(longer);
        if (chips >= fewest) {
            all.insert(all.end(), ofOneLength.begin(), ofOneLength.end());
        }
    }
    return all;
}

std::string text(const Puzzles& puzzles)
{
    std::string all;
    for (const Puzzle& puzzle : puzzles) {
        all += all.empty() ? "" : "\n";
        all += puzzle.root + '\n' + puzzle.goal + '\n' + std::to_string(puzzle.moves);
    }
    return all;
}

} // namespace veyrand::quick_catalogue
