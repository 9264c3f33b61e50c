#pragma once

#include "catalogue/Puzzle.h"

namespace veyrand::catalogue {

// The Classic catalogue of a choice: a line such as "8-4 YRGRR RRGRY" for each place from 2-1 on,
// in order. Entry 0, which is never played, and level 1, which is the tutorial's, come before them.
// The pars are exact. Throws std::invalid_argument, with the reason, for a choice that is none.
[[nodiscard]] Puzzles classicPuzzles(const std::string& choice);

} // namespace veyrand::catalogue
