#pragma once

#include "engine/PackedLine.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace veyrand::engine {

// A set of lines with one yellow chip at most, one bit a line: such a line is its length, the place
// of the yellow and a number to base three. Up to 12 chips that is 4 million bits, where a bit for
// every word would take eight times as many.
class OneYellowSet {
public:
    explicit OneYellowSet(unsigned longest);

    void clear();

    // There is always room for every line.
    void makeRoomFor(std::size_t /*lines*/) { }

    // True when the line was not yet there. It must have one yellow at most, and at most `longest`
    // chips.
    bool insert(PackedLine line)
    {
        const std::uint64_t index = indexOf(line);
        const std::uint64_t bit = std::uint64_t { 1 } << (index % kWordBits);
        std::uint64_t& word = m_bits[static_cast<std::size_t>(index / kWordBits)];
        const bool isNew = (word & bit) == 0;
        word |= bit;
        return isNew;
    }

    [[nodiscard]] std::size_t bytes() const { return m_bits.size() * sizeof(std::uint64_t); }

private:
    static constexpr unsigned kWordBits = 64;
    static constexpr unsigned kChipsPerStep = 6;
    static constexpr unsigned kStepBits = PackedLine::kBitsPerChip * kChipsPerStep;
    static constexpr std::uint64_t kLinesPerStep = 729; // three to the sixth

    [[nodiscard]] std::uint64_t indexOf(PackedLine line) const
    {
        constexpr std::uint64_t kLowerBits = 0x5555555555555555U;
        const unsigned length = line.length();
        const std::uint64_t end = std::uint64_t { 1 } << (PackedLine::kBitsPerChip * length);
        const std::uint64_t chips = line.word() ^ end;
        // Yellow is the one chip whose two bits are both clear. A line without one has its first
        // clear pair behind its last chip, and so a place of its own: one behind the last.
        const std::uint64_t yellow = ~(chips | chips >> 1) & kLowerBits;
        const auto shift = static_cast<unsigned>(__builtin_ctzll(yellow));
        const std::uint64_t before = chips & ((std::uint64_t { 1 } << shift) - 1);
        std::uint64_t others = before | (chips ^ before) >> PackedLine::kBitsPerChip;

        std::uint64_t number = 0;
        for (std::uint64_t scale = 1; others != 0; scale *= kLinesPerStep) {
            number += scale * m_step[others & (m_step.size() - 1)];
            others >>= kStepBits;
        }
        return m_start[length] + shift / PackedLine::kBitsPerChip * m_perPlace[length] + number;
    }

    std::array<std::uint16_t, std::size_t { 1 } << kStepBits> m_step {}; // six chips as a number
    std::array<std::uint64_t, PackedLine::kMostChips + 1> m_start {}; // of the lines of each length
    std::array<std::uint64_t, PackedLine::kMostChips + 1> m_perPlace {};
    std::vector<std::uint64_t> m_bits;
};

} // namespace veyrand::engine
