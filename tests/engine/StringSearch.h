#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace veyrand::engine {

// The seven moves and the search once more, from nothing but the rules of the game: no patterns, no
// packed words, no shared code. What the engine is held against.
[[nodiscard]] std::vector<std::string> neighboursByHand(const std::string& line);

// How many moves lie between a root and each line that can be derived from it without a line of
// more chips than given. The root is in it only if it is derived again.
using DistanceByLine = std::unordered_map<std::string, unsigned>;
[[nodiscard]] DistanceByLine distancesByHand(
    const std::string& root, unsigned mostMoves, std::size_t mostChips);

// The same within all the limits of a search for a solution: the lines that it can find.
[[nodiscard]] DistanceByLine solutionsByHand(const std::string& root);

} // namespace veyrand::engine
