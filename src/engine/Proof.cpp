#include "engine/Proof.h"

namespace veyrand::engine {

Proof::Proof(Theorem root, Theorem goal, std::shared_ptr<const Rules> rules)
    : m_root(std::move(root))
    , m_goal(std::move(goal))
    , m_rules(std::move(rules))
    , m_lines { m_root }
    , m_tree(std::make_shared<Tree>(m_root, m_rules, 1, Analysis::kTheoremLengthLimit))
    , m_analysis(m_tree, m_rules)
{
}

bool Proof::applyRule(unsigned ruleIndex, unsigned matchIndex)
{
    const Theorem& last = m_lines.back();
    const Rule& rule = m_rules->at(ruleIndex);
    const unsigned count = last.numberOfMatchesWithRule(rule);
    if (count < matchIndex || count == 0) {
        return false;
    }
    auto line = last.applyRule(rule, matchIndex);
    m_lines.push_back(*std::move(line));
    return true;
}

bool Proof::removeLine(unsigned index)
{
    if (index >= m_lines.size()) {
        return false;
    }
    m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

bool Proof::checkSolved() const
{
    return !m_lines.empty() && m_lines.back().theorem() == m_goal.theorem();
}

std::optional<Path> Proof::solution() const
{
    return m_lines.empty() ? std::nullopt : m_analysis.findSolutionPath(m_lines.back(), m_goal);
}

} // namespace veyrand::engine
