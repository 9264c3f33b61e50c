#include "headless/SmallSteps.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyrand::headless {

TEST(SmallSteps, EndWhereTheHandStopsAndNeverLeapAChip)
{
    const platform::Point from { .x = 0.1, .y = 0.9 };
    const platform::Point to { .x = 1.5, .y = 0.05 };
    platform::Point last = from;
    for (const platform::Point step : smallSteps(from, to)) {
        EXPECT_LE(std::hypot(step.x - last.x, step.y - last.y), 0.02 + 1e-12);
        last = step;
    }
    EXPECT_EQ(last.x, to.x);
    EXPECT_EQ(last.y, to.y);
}

TEST(SmallSteps, AreOneWhereTheHandRests)
{
    EXPECT_EQ(smallSteps({ .x = 0.5, .y = 0.5 }, { .x = 0.5, .y = 0.5 }).size(), 1U);
}

} // namespace veyrand::headless
