#pragma once

#include "platform/Geometry.h"

#include <vector>

namespace veyrand::headless {

// The places where a hand is seen on its way, the last of them the end; at least one.
std::vector<platform::Point> smallSteps(platform::Point from, platform::Point to);

} // namespace veyrand::headless
