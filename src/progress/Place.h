#pragma once

#include <cstdint>
#include <limits>

namespace veyrand::progress {

inline constexpr int kLastLevel = 11;
inline constexpr int kLastStage = 10; // of every level

// The two ways to play: the 110 places in their order, or puzzles of one par without end.
enum class Mode { Classic, Endless };

// A place in the Classic game, from 1-1 to 11-10.
struct Place {
    int level = 1;
    int stage = 1;
    friend bool operator==(const Place&, const Place&) = default;
};

// Where the puzzle of a place stands in the catalogue: 1 for 1-1, 110 for 11-10. Entry 0 is
// nobody's. Any numbers may be asked about; those of no place of the game lead to no entry, or to
// another's.
[[nodiscard]] inline std::int64_t catalogueIndex(Place position)
{
    return std::int64_t { position.level } * kLastStage + position.stage - kLastStage;
}

// The place after this one; the last one follows itself, and everything beyond it.
[[nodiscard]] inline Place nextPlace(Place position)
{
    constexpr Place kLast { kLastLevel, kLastStage };
    if (position.level > kLastLevel || position == kLast) {
        return kLast;
    }
    if (position.stage == kLastStage) {
        return { position.level + 1, 1 };
    }
    const bool hasNext = position.stage < std::numeric_limits<int>::max();
    return { position.level, position.stage + (hasNext ? 1 : 0) };
}

} // namespace veyrand::progress
