#pragma once

#include "catalogue/Puzzle.h"
#include "play/Steps.h"

#include <string>

namespace veyrand::catalogue {

using play::forEachMatch;
using play::gameMoves;
using play::Move;
using play::moveBetween;
using play::Step;
using play::stepsFrom;

// A line of the game's letters; throws std::runtime_error for any other.
[[nodiscard]] engine::PackedLine packed(const std::string& line);

// Whether the board makes the one line of the other by some gesture, with so many moves open and so
// many lines standing.
[[nodiscard]] bool hasGesture(engine::PackedLine from, engine::PackedLine to,
    engine::PackedLine goal, int highestRule, std::size_t standing);

} // namespace veyrand::catalogue
