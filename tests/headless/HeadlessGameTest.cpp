#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::headless {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class HeadlessHand : public test::HeadlessPlay { };

} // namespace

TEST_F(HeadlessHand, BeginsAtTheTitlePageWithTheGamesOwnPages)
{
    wait(1.0);
    EXPECT_TRUE(table().contains("button-classicbuttonon"));
    EXPECT_EQ(game().game().script().errors, "");
    click("button-classicbuttonon");
    wait(2.0);
    EXPECT_EQ(game().currentGame().level(), 1);
    EXPECT_EQ(game().controller().messages().page(), "howToPlayMessageWindow");
}

TEST_F(HeadlessHand, ClicksAndDragsAreMoves)
{
    play("YRRR", "YB");
    drag("chip-1-0", "chip-3-0");
    settle();
    EXPECT_THAT(lines(), ElementsAre("YRRR", "YG"));
    click("chip-0-1");
    settle();
    EXPECT_THAT(lines(), ElementsAre("YRRR", "YG", "YGG"));
    EXPECT_EQ(row(2), "YGG");
}

TEST_F(HeadlessHand, APressWithAModifierIsNone)
{
    play("YR", "YB");
    const auto place = *game().centreOf("chip-0-0");
    game().press(place, HeadlessGame::Modifier::Held);
    game().release(place);
    settle();
    EXPECT_THAT(lines(), ElementsAre("YR"));
    game().click(place);
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
}

TEST_F(HeadlessHand, AReleaseThatNeverComesLeavesNothingBehind)
{
    play("YRRR", "YB");
    press("chip-1-0");
    move("chip-2-0");
    EXPECT_EQ(dragImages().size(), 1U);
    game().cancelGesture();
    settle();
    EXPECT_THAT(dragImages(), IsEmpty());
    EXPECT_THAT(lines(), ElementsAre("YRRR"));
}

TEST_F(HeadlessHand, APointerThatLeavesPutsTheLightOut)
{
    play("YR", "YB");
    move("button-menubuttonoff");
    EXPECT_EQ(object("button-menubuttonon")->opacity(), 1.0);
    game().leave();
    EXPECT_EQ(object("button-menubuttonon")->opacity(), 0.0);
}

TEST_F(HeadlessHand, TheBoardIsFittedIntoEveryView)
{
    play("YR", "YB");
    game().resize({ .width = 400, .height = 900 });
    click("chip-0-0");
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
}

TEST_F(HeadlessHand, FullScreenIsAsLargeAsTheScreen)
{
    game().resize({ .width = 800, .height = 600 });
    game().key("F11");
    wait(1.0);
    EXPECT_TRUE(game().window().isInFullScreenMode());
    EXPECT_EQ(game().viewSize().width, 1440.0);
    EXPECT_EQ(game().viewSize().height, 900.0);
}

TEST(HeadlessGame, WithoutDataStillShowsItsTitlePage)
{
    HeadlessGame game({});
    game.launch();
    game.wait(1.0);
    EXPECT_TRUE(game.gameData().gameObjects().contains("button-quitbuttonon"));
}

TEST(HeadlessGame, IsPlayedWithoutALaunchToo)
{
    HeadlessGame game({});
    game.play({ .root = "YR", .goal = "YB", .par = 2, .level = 5, .stage = 1 });
    game.wait(1.0);
    game.click(*game.centreOf("chip-0-0"));
    EXPECT_EQ(game.controller().proof()->lines().size(), 2U);
}

TEST(HeadlessMenu, ChoosesNothingUnderAnUnknownNameOrAnEmptyOne)
{
    HeadlessGame game({});
    game.launch();
    EXPECT_FALSE(game.menu().trigger("Moves")) << "no puzzle is on the board";
    EXPECT_FALSE(game.menu().trigger(""));
    EXPECT_FALSE(game.menu().trigger("Music Box"));
    EXPECT_FALSE(game.menu().triggerKeys(""));
    EXPECT_TRUE(game.menu().trigger("Music"));
}

TEST(HeadlessMenu, LeavesTheKeysOfAnItemThatMayNotBeChosenToTheSheet)
{
    HeadlessGame game({});
    game.launch();
    controller::PuzzleShelf& shelf = game.controller().shelf();
    shelf.add("37T8649F2MEJ");
    game.controller().sheets().openMine();
    for (const char* const keys : { "F2", "X", "Return" }) {
        game.key(keys);
    }
    EXPECT_TRUE(shelf.puzzles().all().front().name.ends_with('x'));
}

} // namespace veyrand::headless
