#include "engine/Analysis.h"

namespace veyrand::engine {

std::optional<Path> Analysis::findSolutionPath(
    const Theorem& from, const Theorem& to, unsigned limit) const
{
    Tree search(from, m_rules);
    if (search.makeTreeOfDepth(kChildLimit, kTheoremLengthLimit, kPathLimit, &to)
        == Tree::kGoalNotFound) {
        return std::nullopt;
    }
    Path path = search.pathForNode(search.nodes()->back());
    return path.size() > limit ? std::nullopt : std::optional(std::move(path));
}

std::optional<unsigned> Analysis::ruleIndex(const Theorem& from, const Theorem& to) const
{
    std::optional<unsigned> noted;
    for (unsigned rule = 0; rule < m_rules->size(); ++rule) {
        const unsigned matches = from.numberOfMatchesWithRule((*m_rules)[rule]);
        for (unsigned match = 0; match < matches; ++match) {
            if (from.applyRule((*m_rules)[rule], match)->theorem() == to.theorem()) {
                noted = rule;
                break;
            }
        }
    }
    return noted;
}

} // namespace veyrand::engine
