#pragma once

#include "catalogue/Puzzle.h"

#include <string>
#include <utility>
#include <vector>

namespace veyrand::catalogue {

// A Classic puzzle for a person to look at: its two lines, its metrics and its shortest solutions,
// each a name and what is to be said. A puzzle of many solutions shows the first few.
using Description = std::vector<std::pair<std::string, std::string>>;
[[nodiscard]] Description description(std::size_t entry, const Puzzle& puzzle);

} // namespace veyrand::catalogue
