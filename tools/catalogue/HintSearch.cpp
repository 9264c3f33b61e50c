#include "catalogue/HintSearch.h"

#include "engine/HintHelper.h"
#include "engine/SolutionSearch.h"

#include <algorithm>

namespace veyrand::catalogue {

std::optional<HintSearch::Lines> HintSearch::solution(const Lines& proof, engine::PackedLine goal)
{
    engine::derive(gameMoves(), proof.back(), engine::kSolutionLimits, &goal, m_seen, m_kept);
    if (m_kept.result == engine::kGoalNotFound) {
        return std::nullopt;
    }
    Lines way { goal };
    for (std::size_t index = m_kept.result; index != 0; index = m_kept.parents[index]) {
        way.push_back(m_kept.lines[index]);
    }
    way.push_back(proof.back());
    std::reverse(way.begin(), way.end());
    // The line they share counts once.
    const bool fits = proof.size() + way.size() - 1 <= engine::kMostLines;
    return fits ? std::optional(way) : std::nullopt;
}

std::optional<engine::PackedLine> HintSearch::nextLine(const Lines& proof, engine::PackedLine goal)
{
    const std::optional<Lines> way = solution(proof, goal);
    if (!way
        || std::find_first_of(way->begin() + 1, way->end(), proof.begin(), proof.end())
            != way->end()) {
        return std::nullopt;
    }
    return way->at(1);
}

bool HintSearch::leadsAllTheWay(const ShortestWays& ways)
{
    const auto& lines = ways.lines();
    const engine::PackedLine goal = lines.back().line;
    for (std::size_t i = lines.size() - 1; i-- > 0;) {
        const std::optional<Lines> way = solution({ lines[i].line }, goal);
        if (!way || way->size() != ways.moves() - lines[i].distance + 1) {
            return false;
        }
    }
    return true;
}

} // namespace veyrand::catalogue
