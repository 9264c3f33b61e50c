#pragma once

#include "catalogue/Reach.h"

#include <optional>
#include <vector>

namespace veyrand::catalogue {

// All shortest solutions of one puzzle at once: the lines that occur on any of them, and the steps
// between them. Many solutions share few lines, so nothing has to be cut short to look at every
// one; only a tangle of more than kMostLines lines is refused.
class ShortestWays {
public:
    static constexpr std::size_t kMostLines = 300;

    struct Way {
        std::size_t to = 0; // index of a line
        MoveSet moves = 0; // each of them leads there
    };
    struct Line {
        engine::PackedLine line;
        unsigned distance = 0; // from the root
        std::vector<Way> ways; // on towards the goal
    };

    // Nothing when the goal is the root, was not reached or its solutions are a tangle.
    [[nodiscard]] static std::optional<ShortestWays> find(
        const Reach& reach, engine::PackedLine goal);

    // From the root, which is first, to the goal, which is last: nearer to the root first.
    [[nodiscard]] const std::vector<Line>& lines() const { return m_lines; }
    [[nodiscard]] unsigned moves() const { return m_lines.back().distance; }

    // How many different solutions there are; two that differ in a line are different.
    [[nodiscard]] std::uint64_t count() const;

    // The moves without which there is no solution as short.
    [[nodiscard]] MoveSet needed() const;

    // How many moves must be open so that every step of every solution can be made: 1 to 7.
    [[nodiscard]] int highestRule() const;

    // The lines the game's own search walks, root and goal included, as indices.
    [[nodiscard]] const std::vector<std::size_t>& firstSolution() const { return m_first; }

private:
    [[nodiscard]] bool leadsThrough(MoveSet moves) const;

    std::vector<Line> m_lines;
    std::vector<std::size_t> m_first;
};

} // namespace veyrand::catalogue
