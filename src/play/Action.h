#pragma once

#include "play/Gesture.h"
#include "play/Move.h"
#include "progress/Place.h"

#include <cstdint>
#include <string>
#include <variant>

namespace veyrand::play {

// A game is a list of actions: a puzzle and what was done to it. Each is complete, so that
// replaying a list draws no lot and searches for nothing.

// A new puzzle. The purse it begins with is saved - spent.
struct Puzzle {
    progress::Mode mode = progress::Mode::Classic;
    progress::Place place {}; // 1-1 in an Endless game, where it says nothing
    std::string root;
    std::string goal;
    int par = 0; // in lines, the start line included
    std::int64_t saved = 0; // points in the player's record
    std::int64_t spent = 0; // points that hints have cost since
    friend bool operator==(const Puzzle&, const Puzzle&) = default;
};

// What a click on the light bulb came to. Each has cost a hint's price.
struct Hint {
    enum class Kind {
        Good, // the last line is marked as a good one
        Back, // bad lines are taken back until `left` stand, and the last one is marked
        Pieces, // the pieces of the next line are shown
        Line, // the next line is made, by `move`
        Nothing, // there was nothing to tell
    };
    Kind kind = Kind::Nothing;
    unsigned left = 0; // of Back
    Move move {}; // of Line
    friend bool operator==(const Hint&, const Hint&) = default;
};

struct Undo {
    friend bool operator==(const Undo&, const Undo&) = default;
};

struct Redo {
    friend bool operator==(const Redo&, const Redo&) = default;
};

// The puzzle is given up for an Endless one of another par.
struct Leave {
    int par = 0;
    friend bool operator==(const Leave&, const Leave&) = default;
};

using Action = std::variant<Puzzle, Move, Remove, Hint, Undo, Redo, Leave>;

} // namespace veyrand::play
