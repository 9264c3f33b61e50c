#include "headless/SmallSteps.h"

#include <algorithm>
#include <cmath>

namespace veyrand::headless {

using platform::Point;

std::vector<Point> smallSteps(Point from, Point to)
{
    constexpr double kLargestStep = 0.02; // game heights
    const double distance = std::hypot(to.x - from.x, to.y - from.y);
    const int count = std::max(1, static_cast<int>(std::ceil(distance / kLargestStep)));
    std::vector<Point> steps;
    for (int step = 1; step < count; ++step) {
        const double share = static_cast<double>(step) / count;
        steps.push_back(
            { .x = from.x + (to.x - from.x) * share, .y = from.y + (to.y - from.y) * share });
    }
    steps.push_back(to);
    return steps;
}

} // namespace veyrand::headless
