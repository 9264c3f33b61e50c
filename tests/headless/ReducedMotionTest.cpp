#include "platform/fakes/NotedMotionWish.h"
#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

#include <cmath>
#include <map>

namespace veyrand::headless {

namespace {

using Settings = progress::Settings;

HeadlessGame::Options with(Settings::ReducedMotion motion, platform::MotionWish* desktop = nullptr)
{
    platform::MemoryPreferences preferences;
    Settings settings;
    settings.reducedMotion = motion;
    writeSettings(preferences, settings);
    HeadlessGame::Options options;
    if (const auto record = preferences.record(progress::kSettingsKey)) {
        options.preferences.records.emplace(progress::kSettingsKey, *record);
    }
    options.motionWish = desktop;
    return options;
}

// Watches the pictures of the game frame by frame.
class Watched : public test::HeadlessPlay {
protected:
    using HeadlessPlay::HeadlessPlay;

    // How bright, at most, anything was while it went from one place to another.
    double brightestOnItsWay(double seconds)
    {
        constexpr double kFrame = 0.01;
        constexpr float kNowhere = 0.01F; // points
        double brightest = 0.0;
        for (double elapsed = 0.0; elapsed < seconds; elapsed += kFrame) {
            std::map<std::uint64_t, present::DisplayItem> now;
            for (const auto& item : game().game().layers().displayList()) {
                const auto before = m_before.find(item.layer);
                const bool moved = before != m_before.end()
                    && (std::abs(before->second.rect.x - item.rect.x) > kNowhere
                        || std::abs(before->second.rect.y - item.rect.y) > kNowhere);
                if (moved) {
                    brightest = std::max(brightest, static_cast<double>(item.opacity));
                }
                now.emplace(item.layer, item);
            }
            m_before = std::move(now);
            wait(kFrame);
        }
        return brightest;
    }

private:
    std::map<std::uint64_t, present::DisplayItem> m_before;
};

class StillGame : public Watched {
protected:
    StillGame()
        : Watched(with(Settings::ReducedMotion::On))
    {
    }
};

class MovingGame : public Watched { };

} // namespace

// What jumps is nearly dark when it does: as dark as a frame of its way allows.
constexpr double kAlmostGone = 0.1;

TEST_F(StillGame, AMoveIsSeenToFadeAndNotToFly)
{
    play("YRGG", "YB");
    click("chip-0-0");
    EXPECT_LT(brightestOnItsWay(3.0), kAlmostGone);
    EXPECT_EQ(row(1), "YRGGRGG");
}

TEST_F(StillGame, NothingShakesItsHead)
{
    play("YRGG", "YB");
    click("chip-3-0");
    EXPECT_LT(brightestOnItsWay(1.0), kAlmostGone);
}

TEST_F(StillGame, ASolvedPuzzleIsCelebratedWithoutFlights)
{
    play("YR", "YRR");
    click("chip-0-0");
    EXPECT_LT(brightestOnItsWay(9.0), kAlmostGone);
}

TEST_F(StillGame, AMissedDropFadesAway)
{
    play("YRRR", "YB");
    press("chip-1-0");
    game().release({ .x = 1.2, .y = 0.3 });
    EXPECT_LT(brightestOnItsWay(1.0), kAlmostGone);
}

TEST_F(MovingGame, AMoveIsSeenToFly)
{
    play("YRGG", "YB");
    click("chip-0-0");
    EXPECT_GT(brightestOnItsWay(3.0), 0.9);
}

class FollowingGame : public Watched {
protected:
    FollowingGame()
        : Watched(with(Settings::ReducedMotion::System, &m_desktop))
    {
        m_desktop.wish(false);
    }
    void choose(Settings::ReducedMotion motion)
    {
        Settings settings = progress::readSettings(game().preferences());
        settings.reducedMotion = motion;
        progress::writeSettings(game().preferences(), settings);
        game().controller().settingsChanged();
    }
    [[nodiscard]] bool isCalm()
    {
        return game().game().layers().scene().motionTaste() == present::MotionTaste::Reduced;
    }
    platform::NotedMotionWish& desktop() { return m_desktop; }

private:
    inline static platform::NotedMotionWish m_desktop;
};

TEST_F(FollowingGame, HeedsTheDesktopWheneverItChangesItsMind)
{
    EXPECT_FALSE(isCalm());
    desktop().wish(true);
    EXPECT_TRUE(isCalm());
    desktop().wish(false);
    EXPECT_FALSE(isCalm());
}

TEST_F(FollowingGame, PutsThePlayersOwnWordBeforeTheDesktops)
{
    desktop().wish(true);
    choose(Settings::ReducedMotion::Off);
    EXPECT_FALSE(isCalm());
    desktop().wish(false);
    choose(Settings::ReducedMotion::On);
    EXPECT_TRUE(isCalm());
}

TEST(ReducedMotion, FollowsNoDesktopWhereThereIsNone)
{
    HeadlessGame game(with(Settings::ReducedMotion::System));
    EXPECT_EQ(game.game().layers().scene().motionTaste(), present::MotionTaste::Full);
}

} // namespace veyrand::headless
