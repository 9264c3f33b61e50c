#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

#include <algorithm>

namespace veyrand::controller {

using platform::SoundKind;

namespace {

using SettingsInForceTest = test::HeadlessPlay;

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

TEST_F(SettingsInForceTest, OtherStonesLieOnTheBoardAtOnceAndInTheHand)
{
    play("YRRR", "YB");
    press("chip-1-0");
    move("chip-2-0");
    choose(
        [](progress::Settings& settings) { settings.chips = progress::Settings::Chips::Letters; });
    int letters = 0;
    for (const present::DisplayItem& item : game().game().layers().displayList()) {
        const auto* const image = std::get_if<present::ImageContent>(&item.content);
        letters += image != nullptr && image->name.ends_with("Chip-letters") ? 1 : 0;
    }
    EXPECT_EQ(letters, 4 + 2 + 1); // the line, the goal and the lifted stone
    release("chip-3-0");
}

TEST_F(SettingsInForceTest, ASheetStaysWhileTheyAreChangedWithoutAnswers)
{
    choose([](progress::Settings& settings) { settings.answers = false; });
    game().controller().sheets().openMap();
    const auto shown = [this] {
        const auto all = game().game().layers().extras().shown();
        return std::count_if(all.begin(), all.end(),
            [](const auto& extra) { return extra.kind == present::ExtraKind::Sheet; });
    };
    ASSERT_EQ(shown(), 1);
    choose([](progress::Settings& settings) { settings.musicVolume = 40; });
    EXPECT_EQ(shown(), 1);
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
