#include "catalogue/Candidates.h"

#include "platform/Random.h"

#include <algorithm>
#include <numeric>

namespace veyrand::catalogue {

void CandidateSource::explore(const std::string& root)
{
    m_root = root;
    m_reach.explore(packed(root), kMostMoves);
}

Candidates CandidateSource::draw(unsigned moves, std::size_t most, int highestRule)
{
    const Reach::Span span = m_reach.atDistance(moves);
    std::vector<std::size_t> lines(span.last - span.first);
    std::iota(lines.begin(), lines.end(), span.first);
    const std::size_t drawn = std::min(most, lines.size());
    Candidates candidates;
    for (std::size_t i = 0; i < drawn; ++i) {
        std::swap(lines[i], lines[i + below(lines.size() - i, m_random)]);
        if (const auto found = candidate(lines[i], highestRule)) {
            candidates.push_back(*found);
        }
    }
    return candidates;
}

std::optional<Candidate> CandidateSource::candidate(std::size_t line, int highestRule) const
{
    const engine::PackedLine goal = m_reach.line(line);
    const std::optional<ShortestWays> ways
        = goal.length() > 1 ? ShortestWays::find(m_reach, goal) : std::nullopt;
    if (!ways || ways->highestRule() > highestRule) {
        return std::nullopt;
    }
    Candidate made;
    made.metrics = measure(*ways, openMoves(highestRule));
    if (made.metrics.bits <= 0) {
        return std::nullopt;
    }
    made.puzzle = { m_root, goal.text(), ways->moves() };
    made.highestRule = ways->highestRule();
    made.interest = interest(*ways, made.metrics);
    return made;
}

bool HintGate::passes(const Puzzle& puzzle)
{
    m_reach.explore(packed(puzzle.root), puzzle.moves);
    const std::optional<ShortestWays> ways = ShortestWays::find(m_reach, packed(puzzle.goal));
    return ways && m_hints.leadsAllTheWay(*ways);
}

std::size_t below(std::size_t end, platform::Random& random)
{
    return random.next() % end;
}

} // namespace veyrand::catalogue
