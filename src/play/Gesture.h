#pragma once

#include <variant>

namespace veyrand::play {

// What the player does to the lines, whatever with: a mouse, a key, a script. Rows and columns
// count from 0; the start line is row 0.

struct Click {
    unsigned row = 0;
    unsigned column = 0;
    friend bool operator==(const Click&, const Click&) = default;
};

// A chip dropped onto a place of the board.
struct Drag {
    unsigned fromRow = 0;
    unsigned from = 0;
    unsigned toRow = 0;
    unsigned to = 0;
    friend bool operator==(const Drag&, const Drag&) = default;
};

// The row is taken back, and every row below it.
struct Remove {
    unsigned row = 0;
    friend bool operator==(const Remove&, const Remove&) = default;
};

using Gesture = std::variant<Click, Drag, Remove>;

} // namespace veyrand::play
