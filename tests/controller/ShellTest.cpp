#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class ShellTest : public test::HeadlessPlay {
protected:
    std::vector<std::string> tracked() { return game().game().view().hover().trackedButtons(); }
    bool choose(const char* item) { return game().menu().trigger(item); }
    double musicVolume() { return game().sounds().loop()->volume; }
};

} // namespace

TEST_F(ShellTest, AWindowTwiceAsWideShowsTheBoardAtFullHeightWithEqualBlackMargins)
{
    wait(1.0);
    game().resize({ 1920, 600 });
    const auto area = game().game().layers().backgroundLayer().rectInRoot();
    EXPECT_FLOAT_EQ(area.height, 600.0F);
    EXPECT_FLOAT_EQ(area.width, 960.0F);
    EXPECT_FLOAT_EQ(area.x, 480.0F);
    EXPECT_FLOAT_EQ(area.y, 0.0F);
}

TEST_F(ShellTest, AfterEachResizeTheTitlePageTheBoardOrTheDialogueIsTracked)
{
    wait(1.0);
    game().resize({ 900, 700 });
    EXPECT_THAT(tracked(),
        ElementsAre("button-classicbuttonoff", "button-endlessbuttonoff", "button-quitbuttonoff"));
    move("button-quitbuttonoff");
    EXPECT_EQ(object("button-quitbuttonon")->opacity(), 1.0);

    play("YR", "YB");
    game().resize({ 1200, 500 });
    EXPECT_THAT(tracked(),
        ElementsAre("button-lightbulboff", "button-movesbuttonoff", "button-menubuttonoff"));
    move("button-menubuttonoff");
    EXPECT_EQ(object("button-menubuttonon")->opacity(), 1.0);
    click("chip-0-0");
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));

    settle();
    game().controller().flow().returnToMenu();
    game().controller().dialogues().showDialogue(
        "ContinueGame", "StartNewGame", Dialogues::Question::ClassicGame);
    game().resize({ 800, 800 });
    EXPECT_THAT(tracked(), ElementsAre("fullScreen-1i", "fullScreen-2i"));
    move("fullScreen-1i");
    EXPECT_EQ(object("fullScreen-3i")->opacity(), 1.0);
}

TEST_F(ShellTest, MutedDuringAGameTheMusicPlaysOnAtVolumeNought)
{
    game().controller().flow().startClassicGame();
    EXPECT_EQ(musicVolume(), 1.0);
    ASSERT_TRUE(choose("Music"));
    EXPECT_FALSE(game().preferences().boolForKey("TRNPlayMusicKey"));
    EXPECT_EQ(musicVolume(), 0.0);
    ASSERT_TRUE(choose("Music"));
    EXPECT_EQ(musicVolume(), 1.0);
    EXPECT_EQ(game().sounds().loopsStarted(), 1) << "it goes on where it is";
}

TEST_F(ShellTest, MutedBeforeAGameTheMusicStartsUnheard)
{
    ASSERT_TRUE(choose("Music"));
    EXPECT_FALSE(game().sounds().loop().has_value());
    game().controller().flow().startClassicGame();
    EXPECT_EQ(musicVolume(), 0.0);
}

TEST_F(ShellTest, TheSwitchesAreSavedUnderTheirKeys)
{
    EXPECT_TRUE(game().preferences().boolForKey("TRNPlayMusicKey"));
    EXPECT_TRUE(game().preferences().boolForKey("TRNPlayEffectsKey"));
    ASSERT_TRUE(choose("Music"));
    ASSERT_TRUE(choose("Sound Effects"));
    EXPECT_FALSE(game().preferences().boolForKey("TRNPlayMusicKey"));
    EXPECT_FALSE(game().preferences().boolForKey("TRNPlayEffectsKey"));
}

TEST(Switches, AreAsTheyWereLeft)
{
    platform::MemoryPreferences preferences;
    preferences.setValue("TRNPlayMusicKey", false);
    preferences.setValue("TRNPlayEffectsKey", true);
    const MenuChoices menu(preferences);
    EXPECT_FALSE(menu.isOn(menuItem(MenuItemId::Music)));
    EXPECT_TRUE(menu.isOn(menuItem(MenuItemId::SoundEffects)));
}

TEST_F(ShellTest, GamesAreStartedFromTheTitlePageOnly)
{
    wait(1.0);
    ASSERT_TRUE(choose("Classic Game"));
    EXPECT_FALSE(lines().empty());
    click("fullScreen"); // How to Play, stage 1, and a hint where to click
    settle();
    game().controller().messages().dismiss();
    EXPECT_FALSE(choose("Classic Game"));
    EXPECT_FALSE(choose("Endless Game"));
    game().controller().flow().returnToMenu();
    wait(1.0);
    EXPECT_TRUE(choose("Endless Game"));
    EXPECT_EQ(game().controller().messages().page(), "endlessGameLockedMessage");
}

TEST_F(ShellTest, NothingOpensOverAPageANoteADialogueOrABlock)
{
    const auto nothingOpens = [this] {
        for (const char* item : { "Classic Game", "Endless Game", "How to Play", "Moves" }) {
            EXPECT_FALSE(choose(item)) << item;
        }
        // Nor by their shortcuts, which ask no menu first.
        const std::string page = game().controller().messages().page();
        const int question = game().controller().dialogueState();
        for (const char* keys : { "Ctrl+N", "Ctrl+E", "F1", "F2" }) {
            game().key(keys);
        }
        EXPECT_EQ(game().controller().messages().page(), page);
        EXPECT_EQ(game().controller().dialogueState(), question);
    };
    wait(1.0);
    game().controller().pages().show("howToPlayMessageWindow");
    wait(2.0); // no block any more
    nothingOpens();
    game().controller().messages().dismiss();
    EXPECT_TRUE(game().controller().canOpenPage());

    game().controller().dialogues().showDialogue(
        "ContinueGame", "StartNewGame", Dialogues::Question::ClassicGame);
    wait(2.0);
    nothingOpens();
    game().controller().messages().dismiss();
    game().controller().dialogues().dismiss();
    EXPECT_TRUE(game().controller().canOpenPage());

    play({ .root = "YGR", .goal = "YGRGR", .par = 2, .level = 1, .stage = 1 });
    click("chip-1-0"); // a note says where to click instead
    wait(2.0);
    ASSERT_TRUE(game().game().view().tutorialWindow());
    nothingOpens();
    game().controller().messages().dismiss();
    EXPECT_TRUE(game().controller().canListMoves());

    game().game().view().block().startBlockClick(0.5);
    nothingOpens();
    wait(0.6);
    EXPECT_TRUE(game().controller().canListMoves());
}

TEST_F(ShellTest, HowToPlayFromTheMenuLeadsNowhere)
{
    wait(1.0);
    game().controller().messages().setDisplayMessageWindowOnClick(9); // left by a hint's page
    ASSERT_TRUE(choose("How to Play"));
    EXPECT_EQ(game().controller().messages().page(), "howToPlayMessageWindow");
    EXPECT_EQ(game().controller().messages().displayMessageWindowOnClick(), 0);
    wait(1.1);
    click("fullScreen");
    EXPECT_EQ(game().controller().messages().page(), "");
    EXPECT_THAT(test::keysFrom(table(), "fullScreen"), IsEmpty());
    EXPECT_THAT(tracked(),
        ElementsAre("button-classicbuttonoff", "button-endlessbuttonoff", "button-quitbuttonoff"));
}

TEST_F(ShellTest, MovesNeedsAPuzzleOnTheBoard)
{
    wait(1.0);
    EXPECT_FALSE(choose("Moves"));
    play("YR", "YB");
    ASSERT_TRUE(choose("Moves"));
    EXPECT_EQ(game().controller().messages().page(), "movesMessageWindow");
}

TEST_F(ShellTest, MovesListsNothingOnceTheClassicGameIsOver)
{
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 11, .stage = 10 });
    click("chip-1-0");
    wait(8.0);
    click("fullScreen"); // the congratulations
    wait(1.0);
    ASSERT_TRUE(game().controller().canOpenPage());
    EXPECT_FALSE(choose("Moves"));
    EXPECT_TRUE(choose("How to Play"));
}

TEST_F(ShellTest, QuitAndAboutAreAlwaysThere)
{
    game().controller().pages().show("howToPlayMessageWindow");
    EXPECT_TRUE(choose("About Veyrand"));
    EXPECT_EQ(game().menu().timesAbout(), 1);
    game().key("Ctrl+Q");
    EXPECT_TRUE(game().quit().terminated());
}

} // namespace veyrand::controller
