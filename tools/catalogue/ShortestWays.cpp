#include "catalogue/ShortestWays.h"

#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::catalogue {

std::optional<ShortestWays> ShortestWays::find(const Reach& reach, engine::PackedLine goal)
{
    const std::optional<std::size_t> end = reach.find(goal);
    if (!end || *end == 0) {
        return std::nullopt;
    }
    // Backwards, so that indices fall as the distance does.
    std::vector<std::size_t> found { *end };
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (const auto* origin = reach.originsBegin(found[i]);
             origin != reach.originsEnd(found[i]); ++origin) {
            if (std::find(found.begin(), found.end(), origin->line) == found.end()) {
                found.push_back(origin->line);
            }
        }
        if (found.size() > kMostLines) {
            return std::nullopt;
        }
    }
    std::sort(found.begin(), found.end());
    const auto placeOf = [&found](std::size_t index) {
        return static_cast<std::size_t>(
            std::lower_bound(found.begin(), found.end(), index) - found.begin());
    };

    ShortestWays ways;
    for (const std::size_t index : found) {
        ways.m_lines.push_back({ reach.line(index), reach.distance(index), {} });
    }
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (const auto* origin = reach.originsBegin(found[i]);
             origin != reach.originsEnd(found[i]); ++origin) {
            ways.m_lines[placeOf(origin->line)].ways.push_back({ i, origin->moves });
        }
    }
    // The search keeps the line that came upon another first.
    for (std::size_t index = *end; index != 0; index = reach.originsBegin(index)->line) {
        ways.m_first.push_back(placeOf(index));
    }
    ways.m_first.push_back(0);
    std::reverse(ways.m_first.begin(), ways.m_first.end());
    return ways;
}

std::uint64_t ShortestWays::count() const
{
    std::vector<std::uint64_t> solutions(m_lines.size(), 0);
    solutions.back() = 1;
    for (std::size_t i = m_lines.size() - 1; i-- > 0;) {
        for (const Way& way : m_lines[i].ways) {
            solutions[i] += solutions[way.to];
        }
    }
    return solutions.front();
}

bool ShortestWays::leadsThrough(MoveSet moves) const
{
    std::vector<bool> leads(m_lines.size(), false);
    leads.back() = true;
    for (std::size_t i = m_lines.size() - 1; i-- > 0;) {
        leads[i] = std::any_of(m_lines[i].ways.begin(), m_lines[i].ways.end(),
            [&](const Way& way) { return (way.moves & moves) != 0 && leads[way.to]; });
    }
    return leads.front();
}

MoveSet ShortestWays::needed() const
{
    MoveSet needed = 0;
    for (unsigned move = 0; move < progress::kMoveCount; ++move) {
        needed |= leadsThrough(kAllMoves & ~only(move)) ? 0 : only(move);
    }
    return needed;
}

int ShortestWays::highestRule() const
{
    int highest = 1;
    for (const Line& line : m_lines) {
        for (const Way& way : line.ways) {
            while ((openMoves(highest) & way.moves) == 0) {
                ++highest;
            }
        }
    }
    return highest;
}

} // namespace veyrand::catalogue
