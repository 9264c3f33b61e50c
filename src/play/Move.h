#pragma once

namespace veyrand::play {

// The board's limits, counted with the start line.
inline constexpr unsigned kMostLines = 13;
inline constexpr unsigned kMostLinesForDrag = 11; // one fewer than a drop accepts, deliberately
inline constexpr unsigned kMostChips = 12;

// A move as it can be written down and replayed.
struct Move {
    unsigned rule = 0; // index into the seven
    unsigned match = 0; // index among the rule's matches on the line
    friend bool operator==(const Move&, const Move&) = default;
};

} // namespace veyrand::play
