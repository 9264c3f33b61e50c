#include "engine/PackedLine.h"

namespace veyrand::engine {

namespace {

constexpr std::string_view kLetters = "YRGB"; // in the order of PackedLine::Chip

} // namespace

std::optional<PackedLine> PackedLine::pack(std::string_view text)
{
    if (text.size() > kMostChips) {
        return std::nullopt;
    }
    std::uint64_t word = 1;
    for (std::size_t i = text.size(); i-- > 0;) {
        const std::size_t chip = kLetters.find(text[i]);
        if (chip == std::string_view::npos) {
            return std::nullopt;
        }
        word = word << kBitsPerChip | chip;
    }
    return PackedLine(word);
}

std::string PackedLine::text() const
{
    std::string text;
    for (std::uint64_t rest = m_word; rest > 1; rest >>= kBitsPerChip) {
        text.push_back(kLetters[rest & Blue]);
    }
    return text;
}

} // namespace veyrand::engine
