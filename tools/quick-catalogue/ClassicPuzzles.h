#pragma once

#include "Puzzles.h"

namespace veyrand::quick_catalogue {

// Entry 0, which is never played, and the puzzles of 1-1 to 11-10 in order. The ones the tutorial
// speaks of are given; every other one takes exactly the moves its place asks for, and the game's
// own search solves it with moves that are open there. In the levels that bring a new move, no
// solution without it is as short.
[[nodiscard]] Puzzles classicPuzzles(platform::Random& random, const Progress& progress);

} // namespace veyrand::quick_catalogue
