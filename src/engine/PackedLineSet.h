#pragma once

#include "engine/PackedLine.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace veyrand::engine {

// The lines a search has seen: an open hash table of words that is never more than half full, with
// zero, which is no line, for an empty place. It keeps its size when it is cleared, for the next
// search.
class PackedLineSet {
public:
    PackedLineSet();

    void clear();

    // True when the line was not yet there.
    bool insert(PackedLine line)
    {
        std::size_t place = hash(line);
        while (m_table[place] != 0) {
            if (m_table[place] == line.word()) {
                return false;
            }
            place = (place + 1) & m_mask;
        }
        m_table[place] = line.word();
        if (++m_count > m_mask / 2) {
            grow();
        }
        return true;
    }

    [[nodiscard]] std::size_t bytes() const { return m_table.size() * sizeof(std::uint64_t); }

private:
    [[nodiscard]] std::size_t hash(PackedLine line) const
    {
        constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;
        return static_cast<std::size_t>(line.word() * kGoldenRatio >> m_shift);
    }
    void grow();
    void resize(unsigned bits);

    std::vector<std::uint64_t> m_table;
    std::size_t m_mask = 0;
    std::size_t m_count = 0;
    unsigned m_shift = 0;
};

} // namespace veyrand::engine
