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

// A root may serve one puzzle in a hundred.
[[nodiscard]] std::size_t mostUsesOfEndlessRoot();

} // namespace veyrand::catalogue
