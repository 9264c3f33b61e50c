#pragma once

#include "engine/OneYellowSet.h"
#include "play/Steps.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace veyrand::play {

// The moves that the board accepts with so many lines on it, which are clicks in the end; and
// those that are open where the player has so many of them.
[[nodiscard]] MoveSet movesWith(unsigned standing);
[[nodiscard]] MoveSet openMoves(int count);

// All shortest ways from one line to another that the board accepts: lines of 12 chips at most, 13
// lines in all, no drag from the twelfth on, and the moves that are open. Exact: what a Ways says
// has been proven. Two ways that differ in a line are different.
class Ways {
public:
    // A line on one of them, and how it goes on towards the goal.
    struct Way {
        std::size_t to = 0; // index of a line
        MoveSet moves = 0; // each of them leads there
    };
    struct Line {
        engine::PackedLine line;
        unsigned distance = 0; // moves from the first line
        std::vector<Way> on {};
        std::vector<std::size_t> from {}; // indices of the lines before it
        std::uint64_t count = 0; // ways from the first line to here
    };

    // From the first line to the goal, which is last: nearer to the first line first, and those of
    // one distance in the order in which a search meets them.
    [[nodiscard]] const std::vector<Line>& lines() const { return m_lines; }
    [[nodiscard]] unsigned moves() const { return m_lines.back().distance; }
    [[nodiscard]] std::uint64_t count() const { return m_lines.back().count; }
    // The lines of one of them, both ends included. The first is the one that a search that ends
    // at the goal finds.
    [[nodiscard]] std::vector<engine::PackedLine> way(std::uint64_t number) const;
    // The moves without which none is as short.
    [[nodiscard]] MoveSet needed() const;
    // How hard: who plays at random finds a shortest way about once in 2^bits tries.
    [[nodiscard]] double bits() const;

private:
    friend class WaySearch;

    [[nodiscard]] bool leadsThrough(MoveSet moves) const;

    std::vector<Line> m_lines;
    unsigned m_standing = 1; // lines on the board, the first one included
    MoveSet m_open = kAllMoves;
};

// Finds them. One object serves any number of questions, and keeps its memory between them.
class WaySearch {
public:
    WaySearch();

    // With so many lines on the board, of which `from` is the last. Nothing when the goal cannot be
    // reached on this board. A goal that stands already is to be made again. `from` must have one
    // yellow at most.
    [[nodiscard]] std::optional<Ways> find(engine::PackedLine from, engine::PackedLine goal,
        unsigned standing = 1, MoveSet open = kAllMoves);

private:
    [[nodiscard]] std::optional<unsigned> search(
        engine::PackedLine goal, unsigned standing, unsigned most, MoveSet open);
    [[nodiscard]] Ways trace(
        engine::PackedLine goal, unsigned standing, unsigned moves, MoveSet open) const;

    engine::OneYellowSet m_seen;
    std::vector<engine::PackedLine> m_lines; // by distance
    std::vector<std::size_t> m_firsts; // the first line of each distance
};

// Whether a line has one yellow at most, as every line of the game has.
[[nodiscard]] bool hasOneYellowAtMost(engine::PackedLine line);

} // namespace veyrand::play
