#include "present/Timing.h"

namespace veyrand::present {

namespace {

// One coordinate of the cubic that starts at 0, ends at 1 and has the two control values.
double bezier(double control1, double control2, double t)
{
    const double u = 1.0 - t;
    return 3.0 * u * u * t * control1 + 3.0 * u * t * t * control2 + t * t * t;
}

// The curve's x grows with its parameter, so halving finds the parameter; 40 steps are past single
// precision and cost less than one chip's pixels.
double parameterAt(double x)
{
    double low = 0.0;
    double high = 1.0;
    for (int step = 0; step < 40; ++step) {
        const double middle = 0.5 * (low + high);
        (bezier(0.42, 0.58, middle) < x ? low : high) = middle;
    }
    return 0.5 * (low + high);
}

} // namespace

float progressOf(Timing timing, double fraction)
{
    if (fraction <= 0.0) {
        return 0.0F;
    }
    if (fraction >= 1.0) {
        return 1.0F;
    }
    switch (timing) {
    case Timing::EaseInEaseOut:
        return static_cast<float>(bezier(0.0, 1.0, parameterAt(fraction)));
    case Timing::EaseOut:
        return static_cast<float>(1.0 - (1.0 - fraction) * (1.0 - fraction));
    case Timing::Jump:
        return fraction < 0.5 ? 0.0F : 1.0F;
    case Timing::Linear:
        break;
    }
    return static_cast<float>(fraction);
}

} // namespace veyrand::present
