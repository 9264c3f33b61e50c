#pragma once

#include "catalogue/ShortestWays.h"

#include <string>
#include <vector>

namespace veyrand::catalogue {

// A solution as two puzzles are compared by it: the labels of its moves, and its lines.
struct Way {
    std::string moves; // "1244": a digit for each, as the player sees it
    std::vector<std::string> lines; // one more than moves
};

// The solution that the game's own search finds, for a player with these moves open.
[[nodiscard]] Way wayOf(const ShortestWays& ways, MoveSet open);

// How much playing one feels like playing the other, 0 to 1: half by the order of the moves, half
// by the lines that one passes through. 1 for the same solution.
[[nodiscard]] double likeness(const Way& a, const Way& b);

} // namespace veyrand::catalogue
