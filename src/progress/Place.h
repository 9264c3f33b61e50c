#pragma once

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
// nobody's.
[[nodiscard]] inline int catalogueIndex(Place position)
{
    return position.stage - kLastStage + position.level * kLastStage;
}

// The place after this one; the last one follows itself.
[[nodiscard]] inline Place nextPlace(Place position)
{
    const Place next = position.stage == kLastStage ? Place { position.level + 1, 1 }
                                                    : Place { position.level, position.stage + 1 };
    return next.level > kLastLevel ? Place { kLastLevel, kLastStage } : next;
}

} // namespace veyrand::progress
