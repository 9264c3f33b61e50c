#pragma once

#include "catalogue/ShortestWays.h"

#include <string_view>

namespace veyrand::catalogue {

// What makes a puzzle what it is, measured along the solution that the game's own search finds.
struct Metrics {
    // The sum of log2(lines that can be made / those of them on a shortest solution) over its
    // steps: who plays at random finds a shortest solution about once in 2^bits tries.
    double bits = 0;
    std::uint64_t solutions = 0; // different shortest ones
    MoveSet needed = 0; // moves without which none is as short
    unsigned traps = 0; // steps where the line that looks most like the goal is a wrong one
    unsigned detour = 0; // chips by which the solution outgrows both root and goal
    unsigned changes = 0; // steps made with another move than the step before
    unsigned variety = 0; // different moves
    unsigned longestRun = 0; // most steps running with the same move
};

// For a player with these moves open.
[[nodiscard]] Metrics measure(const ShortestWays& ways, MoveSet open);

// How much a player might enjoy it, whatever its difficulty: about 0 to 8.
[[nodiscard]] double interest(const ShortestWays& ways, const Metrics& metrics);

// How pleasing a line is to look at, 0 to about 2: short, of one colour, symmetric, or a pattern.
[[nodiscard]] double looks(std::string_view line);

// Whether a puzzle is pleasing enough to end a level with.
[[nodiscard]] bool isMemorable(const Puzzle& puzzle);

// Chips to add, drop or replace to make one line of the other.
[[nodiscard]] unsigned difference(std::string_view a, std::string_view b);

} // namespace veyrand::catalogue
