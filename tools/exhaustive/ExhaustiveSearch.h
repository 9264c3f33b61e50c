#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

// A second opinion on every par. It shares nothing with the game: lines are plain strings, the
// moves are written out by hand, and there is no limit but the board's twelve chips. So it must not
// include anything of the engine's, and it is worth its name only as long as it does not.

namespace veyrand::exhaustive {

// Every line that one move makes of this one, of twelve chips at most.
[[nodiscard]] std::vector<std::string> linesAfter(const std::string& line);

// Distances from one root, found breadth first: every line of one distance before any of the next.
class ExhaustiveSearch {
public:
    explicit ExhaustiveSearch(const std::string& root);

    // The fewest moves to the goal; nothing when it is further away than `most`, or cannot be
    // reached at all.
    [[nodiscard]] std::optional<unsigned> distanceTo(const std::string& goal, unsigned most);

private:
    void goOneFurther();

    std::unordered_map<std::string, unsigned> m_distances;
    std::vector<std::string> m_furthest; // all lines of the greatest distance so far
    unsigned m_distance = 0;
};

} // namespace veyrand::exhaustive
