#pragma once

#include "catalogue/Puzzle.h"

#include <string>
#include <utility>
#include <vector>

namespace veyrand::catalogue {

// A Classic puzzle for a person to look at: its two lines, what its level promises and whether it
// keeps that, its ideas, both measures of difficulty, solutions near par, the puzzles most like it
// and its shortest solutions, each a name and what is to be said. A puzzle of many solutions shows
// the first few.
using Description = std::vector<std::pair<std::string, std::string>>;
[[nodiscard]] Description description(std::size_t entry, const Puzzles& puzzles);

} // namespace veyrand::catalogue
