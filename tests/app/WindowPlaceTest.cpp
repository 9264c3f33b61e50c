#include "app/WindowPlace.h"

#include "platform/MemoryPreferences.h"

#include <array>
#include <gtest/gtest.h>

namespace veyrand::app {

namespace {

const QRect kDesk(0, 24, 1440, 876); // what a panel at the top leaves of 1440x900
const QRect kRight(1440, 0, 1920, 1080);

} // namespace

TEST(WindowPlace, IsReadBackAsItWasSaved)
{
    platform::MemoryPreferences preferences;
    EXPECT_EQ(savedPlace(preferences), std::nullopt);
    const WindowPlace place { QRect(-20, 40, 1000, 640), true };
    savePlace(preferences, place);
    EXPECT_EQ(savedPlace(preferences), place);
}

TEST(WindowPlace, NonsenseIsAsGoodAsNothing)
{
    platform::MemoryPreferences preferences;
    preferences.setRecord("Window", { { "width", std::int64_t { 0 } } });
    EXPECT_EQ(savedPlace(preferences), std::nullopt);
    preferences.setRecord("Window", { { "width", std::string("wide") }, { "height", true } });
    EXPECT_EQ(savedPlace(preferences), std::nullopt);
    preferences.setRecord("Window",
        { { "x", std::int64_t { 1 } << 40 }, { "width", std::int64_t { 1 } << 40 },
            { "height", std::int64_t { 500 } } });
    const auto place = savedPlace(preferences);
    ASSERT_TRUE(place.has_value());
    EXPECT_TRUE(kDesk.contains(fittedTo({ kDesk }, place->geometry)));
}

TEST(WindowPlace, IsLeftAloneWhereItFits)
{
    const QRect wanted(100, 200, 800, 600);
    EXPECT_EQ(fittedTo({ kDesk, kRight }, wanted), wanted);
    const QRect beside(1500, 100, 1280, 800);
    EXPECT_EQ(fittedTo({ kDesk, kRight }, beside), beside);
}

TEST(WindowPlace, IsMovedAndShrunkAsLittleAsTheScreensAsk)
{
    struct Case {
        const char* what;
        QRect wanted;
        QRect fitted;
    };
    const std::array kCases {
        Case { "over the right edge", { 1000, 100, 800, 600 }, { 640, 100, 800, 600 } },
        Case { "under the panel", { 100, 0, 800, 600 }, { 100, 24, 800, 600 } },
        Case { "below and left", { -300, 700, 800, 600 }, { 0, 300, 800, 600 } },
        Case { "too large", { 10, 30, 3000, 2000 }, { 0, 24, 1440, 876 } },
        Case { "on a screen that has gone", { 2000, 100, 800, 600 }, { 640, 100, 800, 600 } },
    };
    for (const Case& each : kCases) {
        EXPECT_EQ(fittedTo({ kDesk }, each.wanted), each.fitted) << each.what;
    }
    // Mostly on the screen to the right.
    EXPECT_EQ(fittedTo({ kDesk, kRight }, { 1300, 100, 800, 600 }), QRect(1440, 100, 800, 600));
    EXPECT_EQ(fittedTo({}, { 1, 2, 3, 4 }), QRect(1, 2, 3, 4));
}

} // namespace veyrand::app
