#pragma once

#include "platform/Geometry.h"

namespace veyrand::controller {

// Where the overlay window lies, from the lower left corner of the main window's frame: two thirds
// of the game area in size, and a quarter of itself from the corner, which centres it on a game
// area that fills the window. The game area is the largest rectangle of the game's shape in the
// view. Points.
[[nodiscard]] platform::RectF overlayFrame(platform::Size view, platform::Size game);

} // namespace veyrand::controller
