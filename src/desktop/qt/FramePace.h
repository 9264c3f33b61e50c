#pragma once

namespace veyrand::desktop::qt {

// When frames are due while something moves: on a grid of the display's period that begins with the
// first, so that neither the work of a frame nor a timer's rounding ever adds up. A frame that
// comes too late loses the ones it has missed, not its place on the grid.
class FramePace {
public:
    // A movement begins with the frame that is shown now (s).
    void begin(double now) { m_due = now; }

    // How long to wait (s) for the next frame of a display with so many a second.
    [[nodiscard]] double untilNext(double now, double rate);

private:
    double m_due = 0.0;
};

} // namespace veyrand::desktop::qt
