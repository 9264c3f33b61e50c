#include "catalogue/ClassicMaker.h"

#include "catalogue/Curve.h"
#include "catalogue/Reach.h"
#include "progress/Catalogue.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace veyrand::catalogue {

namespace {

// A yellow chip and up to six others for a start, up to twelve chips for a goal.
bool isLine(const std::string& text, std::size_t most)
{
    return text.size() <= most && text.find_first_not_of("YRGB") == std::string::npos
        && std::count(text.begin(), text.end(), 'Y') <= 1;
}

unsigned parOf(const std::string& place, const std::string& root, const std::string& goal)
{
    constexpr std::size_t kLongestRoot = 7;
    if (!isLine(root, kLongestRoot) || !isLine(goal, kMostChips)) {
        throw std::invalid_argument(place + ": " + root + ' ' + goal + " are no two lines");
    }
    Reach reach;
    reach.explore(packed(root), kMostMoves);
    const auto end = reach.find(packed(goal));
    if (!end || *end == 0) {
        throw std::invalid_argument(place + ": " + root + " does not become " + goal + " in 1 to "
            + std::to_string(kMostMoves) + " moves");
    }
    return reach.distance(*end);
}

} // namespace

Puzzles classicPuzzles(const std::string& choice)
{
    Puzzles puzzles { { "YR", "YRG", 1 } };
    for (int stage = 1; stage <= progress::kLastStage; ++stage) {
        puzzles.push_back(givenPuzzle({ 1, stage }).value());
    }
    std::istringstream lines(choice);
    for (std::string place, root, goal; lines >> place;) {
        if (puzzles.size() == progress::kClassicEntries) {
            throw std::invalid_argument(place + " comes after the last place");
        }
        const std::string wanted = nameOf(placeOfEntry(puzzles.size()));
        if (place != wanted || !(lines >> root >> goal)) {
            throw std::invalid_argument("a start and a goal for " + wanted + " are missing");
        }
        puzzles.push_back({ root, goal, parOf(place, root, goal) });
    }
    if (puzzles.size() != progress::kClassicEntries) {
        throw std::invalid_argument("it ends before " + nameOf(placeOfEntry(puzzles.size())));
    }
    return puzzles;
}

} // namespace veyrand::catalogue
