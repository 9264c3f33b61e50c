#include "engine/OneYellowSet.h"

#include <algorithm>

namespace veyrand::engine {

OneYellowSet::OneYellowSet(unsigned longest)
{
    for (std::size_t chips = 0; chips < m_step.size(); ++chips) {
        unsigned scale = 1;
        for (std::size_t rest = chips; rest != 0; rest >>= PackedLine::kBitsPerChip) {
            // Red, green and blue count 0, 1 and 2; so does the nothing beyond the last chip, 0.
            const auto chip = static_cast<unsigned>(rest & PackedLine::Blue);
            m_step[chips]
                = static_cast<std::uint16_t>(m_step[chips] + scale * (chip > 0 ? chip - 1 : 0));
            scale *= 3;
        }
    }
    std::uint64_t lines = 1; // the one of no chips
    std::uint64_t perPlace = 1;
    for (unsigned length = 1; length <= longest; ++length) {
        m_start[length] = lines;
        m_perPlace[length] = perPlace;
        lines += (length + 3) * perPlace; // a yellow in each place, or one more colour for none
        perPlace *= 3;
    }
    m_bits.assign(static_cast<std::size_t>(lines / kWordBits + 1), 0);
}

void OneYellowSet::clear()
{
    std::fill(m_bits.begin(), m_bits.end(), 0);
}

} // namespace veyrand::engine
