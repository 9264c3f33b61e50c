#pragma once

#include "catalogue/Steps.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace veyrand::catalogue {

// Finds the number under which a line was entered: an open hash table that is never more than half
// full.
class LineNumbers {
public:
    LineNumbers();

    void clear();

    // The line's number; `next`, which it then has, if it had none.
    std::uint32_t numberOf(engine::PackedLine line, std::uint32_t next);

    [[nodiscard]] std::optional<std::uint32_t> find(engine::PackedLine line) const;

private:
    struct Place {
        engine::PackedLine line;
        std::uint32_t number = 0;
    };
    [[nodiscard]] std::size_t placeOf(engine::PackedLine line) const;
    void grow();

    std::vector<Place> m_table;
    std::size_t m_count = 0;
};

// Every line within some moves of a root, with its exact distance and every way to make it out of a
// line that is one move nearer: no limit but the board's 12 chips. The lines stand in the order in
// which the game's search meets them, the root first.
class Reach {
public:
    // A line one move nearer to the root, and the moves that lead from there.
    struct Origin {
        std::uint32_t line = 0;
        MoveSet moves = 0;
    };

    // One object serves any number of roots and keeps its memory between them.
    void explore(engine::PackedLine root, unsigned mostMoves);

    [[nodiscard]] std::size_t count() const { return m_lines.size(); }
    [[nodiscard]] engine::PackedLine line(std::size_t index) const { return m_lines[index]; }
    [[nodiscard]] unsigned distance(std::size_t index) const { return m_distances[index]; }

    // Nothing for a line further away than was explored.
    [[nodiscard]] std::optional<std::size_t> find(engine::PackedLine line) const;

    // The indices of the lines at one distance: from first to before last.
    struct Span {
        std::size_t first = 0;
        std::size_t last = 0;
    };
    [[nodiscard]] Span atDistance(unsigned moves) const;

    // In the order of the lines they name. None for the root.
    [[nodiscard]] const Origin* originsBegin(std::size_t index) const
    {
        return m_origins.data() + m_starts[index];
    }
    [[nodiscard]] const Origin* originsEnd(std::size_t index) const
    {
        return m_origins.data() + m_starts[index + 1];
    }

private:
    struct Edge {
        std::uint32_t from = 0;
        std::uint32_t to = 0;
        MoveSet moves = 0;
    };
    void addEdgesFrom(std::uint32_t index);
    void sortEdges();

    std::vector<engine::PackedLine> m_lines;
    std::vector<std::uint8_t> m_distances;
    std::vector<std::uint32_t> m_starts; // where each line's origins begin, and the end of all
    std::vector<Origin> m_origins;
    std::vector<Edge> m_edges;
    std::vector<std::size_t> m_firsts; // the first line of each distance, and the end of all
    LineNumbers m_numbers;
};

} // namespace veyrand::catalogue
