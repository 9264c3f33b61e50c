#pragma once

#include "controller/GameController.h"

namespace veyrand::headless {

// How far somebody has come.
struct Career {
    progress::Place standing { 6, 7 };
    bool isOver = false; // the last puzzle is solved too
    int daysInARow = 12;
};

// What such a player has solved, for the pictures of the pages that show it: each solution is one,
// most of them at par, and one that took its time in every few.
[[nodiscard]] play::Results resultsToShow(controller::GameController& game, const Career& career);

// A solution that takes as many lines as twelve, far from the shortest.
[[nodiscard]] play::Result longSolution(const play::CodedPuzzle& puzzle);

inline constexpr progress::Place kRoundabout { 5, 8 }; // whose solution leaves the shortest ways

} // namespace veyrand::headless
