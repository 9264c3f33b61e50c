#pragma once

namespace veyrand::board {

// What drawing the buttons asks of the input above: their hit areas, made anew.
class ButtonTracking {
public:
    ButtonTracking() = default;
    ButtonTracking(const ButtonTracking&) = delete;
    ButtonTracking& operator=(const ButtonTracking&) = delete;
    virtual ~ButtonTracking() = default;

    virtual void establishButtonTracking() = 0;
};

} // namespace veyrand::board
