#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

namespace veyrand::controller {

using platform::SoundKind;

namespace {

class SettingsInForceTest : public test::HeadlessPlay {
protected:
    template <class Change> void choose(Change&& change)
    {
        progress::Settings settings = progress::readSettings(game().preferences());
        change(settings);
        progress::writeSettings(game().preferences(), settings);
        game().controller().settingsChanged();
    }
};

} // namespace

TEST_F(SettingsInForceTest, VolumesAreHeardWhileTheyAreMoved)
{
    EXPECT_EQ(game().sounds().volume(SoundKind::Music), 100);
    EXPECT_EQ(game().sounds().volume(SoundKind::Effects), 100);
    choose([](progress::Settings& settings) { settings.musicVolume = 40; });
    EXPECT_EQ(game().sounds().volume(SoundKind::Music), 40);
    EXPECT_EQ(game().sounds().volume(SoundKind::Effects), 100);
    choose([](progress::Settings& settings) { settings.effectsVolume = 0; });
    EXPECT_EQ(game().sounds().volume(SoundKind::Effects), 0);
}

TEST_F(SettingsInForceTest, TheTempoIsThatOfTheNextMove)
{
    choose([](progress::Settings& settings) { settings.tempo = progress::Settings::Tempo::Slow; });
    EXPECT_EQ(game().controller().context().tempo.speed(), progress::Settings::Tempo::Slow);
}

TEST(SettingsInForce, HoldFromTheFirstMoment)
{
    headless::HeadlessGame::Options options;
    options.preferences.records["Settings"] = { { "MusicVolume", std::int64_t { 30 } },
        { "EffectsVolume", std::int64_t { 70 } }, { "ReducedMotion", std::string("on") } };
    headless::HeadlessGame game(options);
    EXPECT_EQ(game.sounds().volume(SoundKind::Music), 30);
    EXPECT_EQ(game.sounds().volume(SoundKind::Effects), 70);
    EXPECT_EQ(game.game().layers().scene().motionTaste(), present::MotionTaste::Reduced);
}

} // namespace veyrand::controller
