#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veyrand::engine {

// A line in one machine word, for the searches: two bits a chip, the first chip lowest, and a
// single set bit above the last chip, which tells how long the line is. Two lines are equal exactly
// when their words are.
//
// Only lines of the game's four letters fit, up to 31 chips. A word of zero is no line at all.
class PackedLine {
public:
    static constexpr unsigned kMostChips = 31;
    static constexpr unsigned kBitsPerChip = 2;

    enum Chip : std::uint64_t { Yellow, Red, Green, Blue };
    static constexpr std::string_view kLetters = "YRGB"; // in that order

    constexpr PackedLine() = default;
    constexpr explicit PackedLine(std::uint64_t word)
        : m_word(word)
    {
    }

    // Nothing for a line that does not fit.
    [[nodiscard]] static constexpr std::optional<PackedLine> pack(std::string_view text)
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

    [[nodiscard]] std::string text() const;
    [[nodiscard]] constexpr std::uint64_t word() const { return m_word; }
    [[nodiscard]] constexpr unsigned length() const // in chips
    {
        return static_cast<unsigned>(63 - __builtin_clzll(m_word)) / kBitsPerChip;
    }

    friend bool operator==(PackedLine a, PackedLine b) { return a.m_word == b.m_word; }
    friend bool operator!=(PackedLine a, PackedLine b) { return a.m_word != b.m_word; }

private:
    std::uint64_t m_word = 0;
};

} // namespace veyrand::engine
