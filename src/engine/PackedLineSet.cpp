#include "engine/PackedLineSet.h"

#include <algorithm>

namespace veyrand::engine {

namespace {

constexpr unsigned kWordBits = 64;
// The lines that a search for a solution keeps fit without growing.
constexpr unsigned kFewestBits = 15;

} // namespace

PackedLineSet::PackedLineSet()
{
    resize(kFewestBits);
}

void PackedLineSet::clear()
{
    std::fill(m_table.begin(), m_table.end(), 0);
}

void PackedLineSet::grow()
{
    const std::vector<std::uint64_t> old = std::move(m_table);
    resize(kWordBits - m_shift + 1);
    for (const std::uint64_t word : old) {
        if (word != 0) {
            insert(PackedLine(word));
        }
    }
}

void PackedLineSet::resize(unsigned bits)
{
    m_table.assign(std::size_t { 1 } << bits, 0);
    m_shift = kWordBits - bits;
}

} // namespace veyrand::engine
