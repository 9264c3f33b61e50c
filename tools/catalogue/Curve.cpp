#include "catalogue/Curve.h"

#include "progress/RuleSets.h"

#include <array>
#include <map>

namespace veyrand::catalogue {

namespace {

constexpr int kFirstLevelOfCurve = 2;
constexpr int kBreatherStage = 7;
constexpr double kBreather = 2.0; // bits by which it is easier than its place in the rise

// A level begins easier than the one before it ended. Its puzzles get longer and harder, with one
// to breathe at after two thirds of the way.
struct Rise {
    std::array<unsigned, progress::kLastStage> moves;
    double firstBits;
    double lastBits;
};

constexpr std::array<Rise, progress::kLastLevel - 1> kRises { {
    { { 1, 2, 3, 3, 4, 5, 4, 5, 6, 6 }, 2.0, 10.5 },
    { { 1, 2, 3, 4, 4, 5, 5, 6, 6, 7 }, 2.5, 12.5 },
    { { 1, 3, 3, 4, 5, 5, 5, 6, 6, 7 }, 4.0, 14.5 },
    { { 1, 3, 4, 5, 5, 6, 5, 6, 7, 7 }, 5.0, 16.0 },
    { { 4, 4, 5, 6, 6, 7, 6, 7, 7, 8 }, 7.0, 18.0 },
    { { 5, 5, 6, 6, 7, 7, 7, 8, 8, 8 }, 8.5, 19.5 },
    { { 5, 6, 6, 7, 7, 8, 7, 8, 9, 9 }, 10.0, 21.0 },
    { { 6, 7, 7, 8, 8, 9, 8, 9, 9, 10 }, 11.5, 22.0 },
    { { 7, 8, 8, 9, 9, 10, 9, 10, 10, 11 }, 13.0, 23.0 },
    { { 8, 9, 9, 10, 10, 11, 10, 11, 11, 11 }, 15.5, 24.0 },
} };

} // namespace

std::optional<Puzzle> givenPuzzle(Place place)
{
    static const std::array<Puzzle, progress::kLastStage> kFirstLevel { {
        { "YGR", "YGRGR", 1 },
        { "YG", "YGGGG", 2 },
        { "YR", "YRG", 1 },
        { "YR", "YRRG", 2 },
        { "YR", "YRGRG", 2 },
        { "YR", "YRRGRRG", 3 },
        { "YGR", "YGRGRGRGRG", 3 },
        { "YRRR", "YG", 1 },
        { "YRRRRRR", "YGG", 2 },
        { "YR", "YRGG", 4 },
    } };
    static const std::map<int, Puzzle> kFirstOfLevel {
        { 2, { "YRGGR", "YRR", 1 } },
        { 3, { "YRG", "GRY", 1 } },
        { 4, { "YRGG", "YRGBG", 1 } },
        { 5, { "YBRGB", "YBB", 1 } },
    };
    if (place.level == 1) {
        return kFirstLevel.at(static_cast<std::size_t>(place.stage - 1));
    }
    const auto first = kFirstOfLevel.find(place.level);
    return place.stage == 1 && first != kFirstOfLevel.end() ? std::optional(first->second)
                                                            : std::nullopt;
}

std::optional<unsigned> newMoveOf(int level)
{
    if (level < kFirstLevelOfCurve || level >= kFirstLevelOfAll) {
        return std::nullopt;
    }
    return static_cast<unsigned>(progress::highestRuleAt(level, 1)) - 1;
}

Wish wishAt(Place place)
{
    const Rise& rise = kRises.at(static_cast<std::size_t>(place.level - kFirstLevelOfCurve));
    const bool isBreather = place.stage == kBreatherStage;
    const double step = static_cast<double>(place.stage - 1) / (progress::kLastStage - 1);
    return {
        .moves = rise.moves.at(static_cast<std::size_t>(place.stage - 1)),
        .bits
        = rise.firstBits + (rise.lastBits - rise.firstBits) * step - (isBreather ? kBreather : 0),
        .isBreather = isBreather,
        .isLast = place.stage == progress::kLastStage,
    };
}

} // namespace veyrand::catalogue
