#include "catalogue/Curve.h"

#include "progress/RuleSets.h"

#include <array>
#include <map>

namespace veyrand::catalogue {

namespace {

constexpr int kFirstLevelOfCurve = 2;

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

} // namespace veyrand::catalogue
