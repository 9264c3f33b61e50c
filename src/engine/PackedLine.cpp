#include "engine/PackedLine.h"

namespace veyrand::engine {

std::string PackedLine::text() const
{
    std::string text;
    for (std::uint64_t rest = m_word; rest > 1; rest >>= kBitsPerChip) {
        text.push_back(kLetters[rest & Blue]);
    }
    return text;
}

} // namespace veyrand::engine
