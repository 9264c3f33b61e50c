#pragma once

#include "board/MoveAnimations.h"
#include "play/Move.h"

namespace veyrand::board {

// How a move looks: which of the seven animations, told by the move's rule, from where to where,
// and for how long.
struct Choreography {
    unsigned rule = 0;
    unsigned column = 0; // where it starts
    unsigned endingColumn = 0; // of a pair of blues; otherwise 0
    // Seconds at the usual tempo: after the start at which the last phase has run, and by which
    // input is blocked for longer than for any gesture.
    double ends = 0.0;
    double block = 0.0;
    friend bool operator==(const Choreography&, const Choreography&) = default;
};

// Of a move that there is on the line; the line is the one before the move.
[[nodiscard]] Choreography choreographyOf(const play::Move& move, const std::string& line);

// Shows the new line, first as a copy of the one before it.
void perform(MoveAnimations& animations, const Choreography& choreography, const std::string& line,
    unsigned row);

} // namespace veyrand::board
