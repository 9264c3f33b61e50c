#include "input/MouseTrail.h"

#include <algorithm>
#include <cmath>

namespace veyrand::input {

std::vector<platform::Point> trail(platform::Point from, platform::Point to, double step)
{
    // Places that were made of steps of just this length must not be cut again for a last digit.
    constexpr double kTolerance = 1e-6;
    const double distance = std::hypot(to.x - from.x, to.y - from.y);
    const int count = std::max(1, static_cast<int>(std::ceil(distance / step - kTolerance)));
    std::vector<platform::Point> places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 1; i < count; ++i) {
        const double share = static_cast<double>(i) / count;
        places.push_back(
            { .x = from.x + (to.x - from.x) * share, .y = from.y + (to.y - from.y) * share });
    }
    places.push_back(to);
    return places;
}

} // namespace veyrand::input
