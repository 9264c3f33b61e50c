#pragma once

#include "engine/PackedLine.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace veyrand::engine {

// The lines a search has seen: an open hash table of words that is never more than a third full,
// with zero, which is no line, for an empty place. It keeps its size when it is cleared, for the
// next search.
class PackedLineSet {
public:
    PackedLineSet();

    void clear();

    // Makes sure that the set can hold so many lines in all.
    void makeRoomFor(std::size_t lines)
    {
        while (lines > m_table.size() / kPlacesPerLine) {
            grow();
        }
    }

    // True when the line was not yet there and is one. There must be room for it.
    //
    // Whether a line is new cannot be foreseen, and a wrong guess of the processor costs more than
    // all the rest. So nothing here branches on it: a place is where the search ends when it is
    // empty or holds the line, that is when the smaller of two numbers is zero, and it is written
    // either way. Most searches end where they begin.
    bool insert(PackedLine line)
    {
        std::uint64_t* const table = m_table.data();
        const std::size_t last = lastPlace();
        std::size_t place = hash(line);
        std::uint64_t there = table[place];
        while (std::min(there, there ^ line.word()) != 0) {
            place = (place + 1) & last;
            there = table[place];
        }
        const bool isNew = there < line.word(); // nothing, or the line itself, is there
        table[place] = line.word();
        return isNew;
    }

    [[nodiscard]] std::size_t bytes() const { return m_table.size() * sizeof(std::uint64_t); }

private:
    static constexpr std::size_t kPlacesPerLine = 3;

    [[nodiscard]] std::size_t lastPlace() const
    {
        return static_cast<std::size_t>(~std::uint64_t { 0 } >> m_shift);
    }
    [[nodiscard]] std::size_t hash(PackedLine line) const
    {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;
        return static_cast<std::size_t>(line.word() * kGoldenRatio >> m_shift);
    }
    void grow();
    // Whether every hash is a place of the table is asked whenever there is another: to have the
    // library ask at every line took a tenth of a search.
    void checkPlaces() const { static_cast<void>(m_table.at(lastPlace())); }

    std::vector<std::uint64_t> m_table;
    unsigned m_shift; // so many of the hash's bits are too many
};

} // namespace veyrand::engine
