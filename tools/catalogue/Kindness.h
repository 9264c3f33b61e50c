#pragma once

#include "catalogue/Reach.h"

#include <cstdint>
#include <vector>

namespace veyrand::catalogue {

// How a puzzle treats somebody who errs.
struct Kindness {
    // Solutions of one move more than par, and of two: without a line twice, at most kMostCounted.
    static constexpr unsigned kMostCounted = 1000;
    unsigned oneMore = 0;
    unsigned twoMore = 0;

    // Steps off every shortest solution, from a line that is on one; and those of them after which
    // the goal cannot be made any more on what is left of the board.
    unsigned wrongSteps = 0;
    unsigned deadSteps = 0;

    [[nodiscard]] bool hasNearPar() const { return oneMore + twoMore > 0; }
};

// Everything that a player with these moves can make of a root on a board of 13 lines, and how far
// each line of it is from a goal.
class Board {
public:
    void explore(engine::PackedLine root, MoveSet open);
    [[nodiscard]] Kindness kindnessTo(engine::PackedLine goal);

private:
    static constexpr unsigned kFar = 99;

    void measureFrom(std::uint32_t goal);
    void countSolutions(std::uint32_t line, unsigned left, unsigned& count);

    LineNumbers m_numbers;
    std::vector<engine::PackedLine> m_lines;
    std::vector<std::uint8_t> m_distances; // from the root
    std::vector<std::vector<std::uint32_t>> m_next;
    std::vector<std::vector<std::uint32_t>> m_before;
    std::vector<std::uint8_t> m_toGoal;
    std::vector<bool> m_isOnWay;
};

// Whether always taking the line most like the goal solves the puzzle, whichever of equals one
// takes.
[[nodiscard]] bool fallsToGreed(engine::PackedLine root, engine::PackedLine goal, MoveSet open);

} // namespace veyrand::catalogue
