#pragma once

#include "catalogue/Puzzle.h"

#include <cstdint>

namespace veyrand::catalogue {

// As many puzzles as the Endless game draws from, in random order, none of them one of `taken`. The
// same seed makes the same puzzles on every machine. Throws std::runtime_error when the roots give
// too few.
[[nodiscard]] Puzzles endlessPuzzles(
    std::uint32_t seed, const Puzzles& taken, const Progress& progress);

// How many there are of each par, from 0, and of each number of chips of the root. Players ask for
// 3 to 10 moves; one and eleven are the ends of the scale. The three roots of two chips and the
// nine of three cannot carry as many puzzles as the others without tiring.
[[nodiscard]] const std::vector<std::size_t>& endlessPuzzlesOfMoves();
[[nodiscard]] const std::vector<std::size_t>& endlessPuzzlesOfRootLength();

// The steps of the human-like solver that a puzzle of some moves may take, so that a par tells what
// to expect: of what can be drawn, the middle three fifths, cut where they lie fifteen times apart.
struct StepsWanted {
    unsigned fewest = 0;
    unsigned most = 0;
};
[[nodiscard]] StepsWanted endlessStepsOfMoves(unsigned moves);

// From so many moves on none is solved by always taking the line most like the goal.
inline constexpr unsigned kFewestMovesWithoutGreed = 5;

// Puzzles that the same moves in the same order solve. Of one move there are but seven ways.
inline constexpr std::size_t kMostOfEndlessWay = 3;

// A root may serve one puzzle in a hundred.
[[nodiscard]] std::size_t mostUsesOfEndlessRoot();

} // namespace veyrand::catalogue
