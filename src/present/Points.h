#pragma once

#include "platform/Geometry.h"

namespace veyrand::present {

// Layers and extras keep single precision; a place is worked out in double.
[[nodiscard]] inline platform::PointF point(double x, double y)
{
    return { .x = static_cast<float>(x), .y = static_cast<float>(y) };
}

} // namespace veyrand::present
