#pragma once

#include "catalogue/Puzzle.h"

#include <cstdint>

namespace veyrand::catalogue {

// Entry 0, which is never played, and the puzzles of 1-1 to 11-10 in order. The same seed makes the
// same puzzles on every machine. Throws std::runtime_error when a place finds no puzzle.
[[nodiscard]] Puzzles classicPuzzles(std::uint32_t seed, const Progress& progress);

} // namespace veyrand::catalogue
