#include "desktop/qt/FramePace.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyrand::desktop::qt {

TEST(FramePace, FramesStayOnTheDisplaysGridWhateverTheirWorkTakes)
{
    for (const double rate : { 60.0, 120.0, 59.94 }) {
        FramePace pace;
        double now = 5.0;
        pace.begin(now);
        for (int frame = 1; frame <= 1000; ++frame) {
            const double work = 0.001 * (frame % 4); // and the timer is never quite exact
            now += work;
            now += pace.untilNext(now, rate);
            EXPECT_NEAR(now, 5.0 + frame / rate, 1e-9) << rate << " a second, frame " << frame;
        }
    }
}

TEST(FramePace, AFrameThatIsTooLateLosesFramesButNotItsPlace)
{
    FramePace pace;
    pace.begin(0.0);
    EXPECT_NEAR(pace.untilNext(0.035, 100.0), 0.005, 1e-12) << "two are lost";
    EXPECT_NEAR(pace.untilNext(0.040, 100.0), 0.010, 1e-12);
}

TEST(FramePace, AnotherRateHoldsFromTheNextFrameOn)
{
    FramePace pace;
    pace.begin(0.0);
    EXPECT_NEAR(pace.untilNext(0.0, 60.0), 1.0 / 60.0, 1e-12);
    EXPECT_NEAR(pace.untilNext(1.0 / 60.0, 120.0), 1.0 / 120.0, 1e-12);
    EXPECT_NEAR(pace.untilNext(1.0, 0.0), 1.0 / 60.0, 1.0 / 60.0) << "an unknown rate";
}

} // namespace veyrand::desktop::qt
