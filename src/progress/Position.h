#pragma once

namespace veyrand::progress {

inline constexpr int kLastLevel = 11;
inline constexpr int kLastStage = 10; // of every level

// A place in the Classic game, from 1-1 to 11-10.
struct Position {
    int level = 1;
    int stage = 1;
    friend bool operator==(const Position&, const Position&) = default;
};

// Where the puzzle of a place stands in the catalogue: 1 for 1-1, 110 for 11-10. Entry 0 is
// nobody's.
[[nodiscard]] inline int catalogueIndex(Position position)
{
    return position.stage - kLastStage + position.level * kLastStage;
}

// The place after this one; the last one follows itself.
[[nodiscard]] inline Position nextPosition(Position position)
{
    const Position next = position.stage == kLastStage
        ? Position { position.level + 1, 1 }
        : Position { position.level, position.stage + 1 };
    return next.level > kLastLevel ? Position { kLastLevel, kLastStage } : next;
}

} // namespace veyrand::progress
