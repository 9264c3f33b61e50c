#pragma once

#include "platform/Geometry.h"

#include <vector>

namespace veyrand::input {

// The places between two of the pointer's, the last one included, each no further from the one
// before than the step. A window system tells of a quick flick in one or two leaps; the game
// follows the way in between, so that a flick finds the chip it began on and lights what it
// crosses.
[[nodiscard]] std::vector<platform::Point> trail(
    platform::Point from, platform::Point to, double step);

// In game heights.
inline constexpr double kLargestStep = 0.02;

} // namespace veyrand::input
