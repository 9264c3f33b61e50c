#include "input/MouseTrail.h"

#include <cmath>
#include <gmock/gmock.h>

namespace veyrand::input {

using ::testing::SizeIs;

TEST(MouseTrail, GoesTheWholeWayInStepsNoLongerThanAsked)
{
    const platform::Point from { .x = 10.0, .y = 20.0 };
    const platform::Point to { .x = 40.0, .y = -20.0 };
    platform::Point last = from;
    const auto places = trail(from, to, 18.0);
    EXPECT_THAT(places, SizeIs(3));
    for (const platform::Point& place : places) {
        EXPECT_LE(std::hypot(place.x - last.x, place.y - last.y), 18.0 + 1e-9);
        last = place;
    }
    EXPECT_EQ(last, to);
}

TEST(MouseTrail, AStepThatIsShortEnoughIsOneStep)
{
    EXPECT_THAT(trail({ .x = 0.0, .y = 0.0 }, { .x = 18.0, .y = 0.0 }, 18.0), SizeIs(1));
    EXPECT_THAT(trail({ .x = 0.0, .y = 0.0 }, { .x = 18.0 + 1e-9, .y = 0.0 }, 18.0), SizeIs(1));
    EXPECT_THAT(trail({ .x = 5.0, .y = 5.0 }, { .x = 5.0, .y = 5.0 }, 18.0), SizeIs(1));
}

} // namespace veyrand::input
