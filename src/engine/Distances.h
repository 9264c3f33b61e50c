#pragma once

#include "engine/OneYellowSet.h"
#include "engine/PackedLine.h"
#include "engine/PackedLineSet.h"
#include "engine/PackedMoves.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace veyrand::engine {

// Exact distances: how many moves each line is away from a root, over everything that can be
// reached without passing a length limit, with none of the other limits of a Tree. For the
// designers, who want to know rather than to be answered in time. One object serves any number of
// roots and keeps its memory between them.
class Distances {
public:
    // Beyond this no computer has the memory for all lines.
    static constexpr unsigned kMostChips = 16;

    // The limit is in chips. Throws std::invalid_argument above kMostChips.
    Distances(const PackedMoves& moves, unsigned longest);

    // Calls visit(distance, lines) with all lines of each distance, nearest first. Distance 0 is
    // the root alone.
    template <class Visit> void forEachDistance(PackedLine root, const Visit& visit)
    {
        if (m_addsNoYellow && !hasTwoYellows(root) && root.length() <= m_longest) {
            m_oneYellow.clear();
            run(root, m_oneYellow, visit);
        } else {
            m_any.clear();
            run(root, m_any, visit);
        }
    }

    // How many lines there are at each distance, the root's own first.
    [[nodiscard]] std::vector<std::uint64_t> countsFrom(PackedLine root);

    // What is held at the moment.
    [[nodiscard]] std::size_t bytes() const;

private:
    using Lines = std::vector<PackedLine>;

    [[nodiscard]] static bool hasTwoYellows(PackedLine line);

    template <class Seen, class Visit> void run(PackedLine root, Seen& seen, const Visit& visit)
    {
        m_lines.assign(1, root);
        std::size_t found = 1;
        seen.makeRoomFor(found);
        seen.insert(root);
        for (unsigned distance = 0; !m_lines.empty(); ++distance) {
            visit(distance, static_cast<const Lines&>(m_lines));
            m_next.clear();
            for (const PackedLine line : m_lines) {
                m_moves.childrenOf(line, m_longest, m_children);
                seen.makeRoomFor(found + m_children.size());
                for (const PackedLine child : m_children) {
                    if (child != PackedLine() && seen.insert(child)) {
                        m_next.push_back(child);
                        ++found;
                    }
                }
            }
            m_lines.swap(m_next);
        }
    }

    PackedMoves m_moves;
    unsigned m_longest;
    bool m_addsNoYellow;
    OneYellowSet m_oneYellow;
    PackedLineSet m_any;
    Lines m_lines; // of the distance at hand
    Lines m_next;
    PackedMoves::Children m_children;
};

} // namespace veyrand::engine
