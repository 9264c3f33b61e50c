#pragma once

#include "platform/Geometry.h"

namespace veyrand::input {

// What lies before the board and takes presses before the board does: pages of the view's own,
// which no hit test of the board finds. Places are in game heights, origin at the board's lower
// left.
class Foreground {
public:
    Foreground() = default;
    Foreground(const Foreground&) = delete;
    Foreground& operator=(const Foreground&) = delete;
    virtual ~Foreground() = default;

    // Whether a press there would be its own.
    [[nodiscard]] virtual bool covers(platform::Point place) const = 0;
    // The button goes down; true when this is the foreground's, and so is what follows until it is
    // let go.
    virtual bool pressed(platform::Point place) = 0;
    virtual void released(platform::Point place) = 0;
    // The pointer is there; true when the board must not answer to it.
    virtual bool hovered(platform::Point place) = 0;
};

} // namespace veyrand::input
