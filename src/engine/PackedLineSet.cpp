#include "engine/PackedLineSet.h"

#include <algorithm>

namespace veyrand::engine {

namespace {

constexpr unsigned kWordBits = 64;
// The lines that a search for a solution keeps fit without growing.
constexpr unsigned kFewestBits = 15;

} // namespace

PackedLineSet::PackedLineSet()
    : m_table(std::size_t { 1 } << kFewestBits, 0)
    , m_shift(kWordBits - kFewestBits)
{
    checkPlaces();
}

void PackedLineSet::clear()
{
    std::fill(m_table.begin(), m_table.end(), 0);
}

// Where there is no memory for more, the set stays as it was.
void PackedLineSet::grow()
{
    std::vector<std::uint64_t> table(2 * m_table.size(), 0);
    m_table.swap(table);
    --m_shift;
    checkPlaces();
    for (const std::uint64_t word : table) {
        if (word != 0) {
            insert(PackedLine(word));
        }
    }
}

} // namespace veyrand::engine
