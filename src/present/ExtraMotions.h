#pragma once

#include "present/Extra.h"
#include "present/Extras.h"

namespace veyrand::present {

// How an extra that ends by itself looks at one moment: its strength, and how far it is from its
// place (game heights).
struct ExtraPose {
    double opacity = 1.0;
    double x = 0.0;
    double y = 0.0;
    double scale = 1.0;
    double glow = 0.0; // what it lights on the board, in game heights
};

// The pose so many seconds after its start. Where motion is to be reduced nothing leaves its place,
// and what would have moved is told by light alone.
[[nodiscard]] ExtraPose poseOf(const Extra& extra, double elapsed, MotionTaste taste);

} // namespace veyrand::present
