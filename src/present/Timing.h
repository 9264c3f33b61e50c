#pragma once

namespace veyrand::present {

enum class Timing { Linear, EaseInEaseOut, EaseOut, Jump };

// How far an animation has come, 0 to 1, when the given fraction of its time has passed. The eased
// curve is the cubic with control points (0.42, 0) and (0.58, 1); what only eases out starts at
// full speed, and what jumps is half the time here and half the time there.
float progressOf(Timing timing, double fraction);

} // namespace veyrand::present
