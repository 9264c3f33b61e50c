#pragma once

#include "engine/Theorem.h"
#include "play/Gesture.h"

#include <optional>
#include <vector>

namespace veyrand::play {

// What the game is doing with the puzzle.
enum class Phase {
    None, // no puzzle is in play
    Playing,
    HintFlying, // a hint's pieces are on their way to becoming a line
    WalkingBack, // a hint takes bad lines back, one after another
    Celebrating, // the goal has been made
    Leaving, // given up for a puzzle of another par
};

// What a lesson accepts. Given a drag, nothing but that drag; else nothing but that click, and
// drags as always.
struct Lesson {
    std::optional<Click> click;
    std::optional<Drag> drag;
    friend bool operator==(const Lesson&, const Lesson&) = default;
};

// Everything that decides what a gesture means. It refers to the lines and must not outlive them.
struct Position {
    const std::vector<engine::Theorem>& lines; // the start line first
    const engine::Theorem& goal;
    int open = 0; // how many moves: those whose labels carry the numbers 1 to that
    std::optional<Lesson> lesson {};
    Phase phase = Phase::Playing;
};

} // namespace veyrand::play
