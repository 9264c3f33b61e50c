#include "engine/Proof.h"

namespace veyrand::engine {

namespace {

// Just enough of a tree for an analysis to have one.
constexpr unsigned kTreeChildLimit = 1;

} // namespace

Proof::Proof(Theorem root, Theorem goal, SharedRules rules)
    : m_root(std::move(root))
    , m_goal(std::move(goal))
    , m_rules(std::move(rules))
    , m_lines { m_root }
    , m_tree(std::make_shared<const Tree>(
          m_root, m_rules, kTreeChildLimit, kSolutionLimits.theoremLength))
    , m_analysis(m_tree, m_rules)
{
}

bool Proof::applyRule(unsigned rule, unsigned match)
{
    const Theorem& last = m_lines.at(m_lines.size() - 1); // none left: beyond the end
    const Rule& applied = m_rules->at(rule);
    const unsigned matches = last.numberOfMatchesWithRule(applied);
    if (matches < match || matches == 0) {
        return false;
    }
    m_lines.push_back(*last.applyRule(applied, match));
    return true;
}

void Proof::appendLine(Theorem line)
{
    m_lines.push_back(std::move(line));
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
    return !m_lines.empty() && m_lines.back() == m_goal;
}

std::optional<Path> Proof::solution() const
{
    return m_analysis.findSolutionPathFromTheorem(m_lines.at(m_lines.size() - 1), m_goal);
}

} // namespace veyrand::engine
