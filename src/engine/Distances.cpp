#include "engine/Distances.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace veyrand::engine {

namespace {

unsigned possible(unsigned longest)
{
    if (longest > Distances::kMostChips) {
        throw std::invalid_argument("distances are known for lines of up to "
            + std::to_string(Distances::kMostChips) + " chips only");
    }
    return longest;
}

} // namespace

Distances::Distances(const PackedMoves& moves, unsigned longest)
    : m_moves(moves)
    , m_longest(possible(longest))
    , m_addsNoYellow(moves.addNoYellow())
    , m_oneYellow(m_addsNoYellow ? m_longest : 0)
{
}

std::vector<std::uint64_t> Distances::countsFrom(PackedLine root)
{
    std::vector<std::uint64_t> counts;
    forEachDistance(root, [&](unsigned, const Lines& lines) { counts.push_back(lines.size()); });
    return counts;
}

std::size_t Distances::bytes() const
{
    return m_oneYellow.bytes() + m_any.bytes()
        + (m_lines.capacity() + m_next.capacity()) * sizeof(PackedLine);
}

bool Distances::hasTwoYellows(PackedLine line)
{
    const std::string text = line.text();
    return std::count(text.begin(), text.end(), 'Y') > 1;
}

} // namespace veyrand::engine
