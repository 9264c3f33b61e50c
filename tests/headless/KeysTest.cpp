#include "headless/KeyPlayer.h"
#include "progress/PlayerKeys.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::test {

class Keys : public HeadlessPlay {
protected:
    Keys()
        : HeadlessPlay(endlessIsOpen())
    {
        wait(1.0);
    }

    KeyPlayer& player() { return m_player; }
    [[nodiscard]] std::string focus() { return m_player.focus(); }
    void key(std::string_view keys) { game().key(keys); }
    [[nodiscard]] std::vector<std::string> rings()
    {
        std::vector<std::string> keys;
        for (const auto& extra : game().game().layers().extras().shown()) {
            if (extra.kind == present::ExtraKind::Focus) {
                keys.push_back(extra.key);
            }
        }
        return keys;
    }

private:
    static Options endlessIsOpen()
    {
        Options options;
        options.preferences.values[std::string(progress::kEndlessGameUnlockedKey)] = true;
        return options;
    }

    KeyPlayer m_player { game() };
};

using Strings = std::vector<std::string>;

TEST_F(Keys, SolveClassicFromTheFirstPuzzleToTheLast)
{
    ASSERT_TRUE(player().press("button-classicbuttonon"));
    for (int puzzle = 0; puzzle < 110; ++puzzle) {
        SCOPED_TRACE(puzzle);
        ASSERT_EQ(game().currentGame().level(), puzzle / 10 + 1);
        ASSERT_EQ(game().currentGame().stage(), puzzle % 10 + 1);
        ASSERT_TRUE(player().solvePuzzle());
    }
    EXPECT_EQ(game().currentGame().score(), 110 * 150);
}

TEST_F(Keys, SolveFiftyEndlessPuzzlesOfManyPars)
{
    ASSERT_TRUE(player().press("button-endlessbuttonon"));
    for (int puzzle = 0; puzzle < 50; ++puzzle) {
        SCOPED_TRACE(puzzle);
        ASSERT_TRUE(player().solvePuzzle());
        if (puzzle % 6 == 5) {
            ASSERT_TRUE(player().press("button-harderbuttonon"));
        }
    }
    EXPECT_EQ(game().currentGame().par(), 12);
}

TEST_F(Keys, TheRingIsSeenOnceAKeyWasUsedAndGoesWithTheMouse)
{
    play("YRGG", "YRB");
    EXPECT_EQ(rings(), Strings {});
    key("Right");
    EXPECT_EQ(rings(), Strings { "chip-0-0" });
    move("chip-3-0");
    EXPECT_EQ(rings(), Strings {});
    key("Right");
    EXPECT_EQ(rings(), Strings { "chip-0-0" });
    press("chip-3-0");
    EXPECT_EQ(rings(), Strings {});
    EXPECT_EQ(focus(), "");
}

TEST_F(Keys, TheRingIsSeenWithoutAnswersToo)
{
    game().menu().trigger("Answers");
    play("YRGG", "YRB");
    key("Right");
    EXPECT_EQ(rings(), Strings { "chip-0-0" });
}

TEST_F(Keys, ArrowsVisitWhatCanBeActivatedAlone)
{
    play("YRGG", "YRB"); // the red is not the last chip, and no drop starts there
    key("Right");
    key("Right");
    EXPECT_EQ(focus(), "chip-2-0");
    key("Right");
    EXPECT_EQ(focus(), "chip-3-0");
    key("Right");
    EXPECT_EQ(focus(), "chip-3-0");
    key("Left");
    key("Left");
    EXPECT_EQ(focus(), "chip-0-0");
    key("Left"); // nothing is beside the start line but the panel
    EXPECT_EQ(focus(), "button-lightbulbon");
    key("Down");
    EXPECT_EQ(focus(), "button-movesbuttonon");
    key("Right");
    EXPECT_EQ(focus(), "chip-0-0");
}

TEST_F(Keys, TabGoesFromGroupToGroupAndBack)
{
    play("YRGG", "YRB");
    click("chip-0-0");
    settle();
    for (const char* const stop :
        { "chip-0-1", "delete-1", "button-lightbulbon", "chip-0-1", "delete-1" }) {
        key("Tab");
        EXPECT_EQ(focus(), stop);
    }
    key("Shift+Tab");
    EXPECT_EQ(focus(), "chip-0-1");
    key("Shift+Tab");
    EXPECT_EQ(focus(), "button-lightbulbon");
}

TEST_F(Keys, HomeEndAndDigitsGoAlongTheRow)
{
    play("YRGG", "YRB");
    key("End");
    EXPECT_EQ(focus(), "chip-3-0");
    key("Home");
    EXPECT_EQ(focus(), "chip-0-0");
    key("3");
    EXPECT_EQ(focus(), "chip-2-0");
    key("2"); // no move starts there
    EXPECT_EQ(focus(), "chip-2-0");
    key("Ctrl+Right");
    EXPECT_EQ(focus(), "chip-3-0");
    key("Ctrl+Left");
    EXPECT_EQ(focus(), "chip-0-0");
}

TEST_F(Keys, TheTenthColumnIsThatOfTheZero)
{
    play("YRGRGRGRGGRR", "YRB");
    key("0");
    EXPECT_EQ(focus(), "chip-9-0");
}

TEST_F(Keys, ReturnClicksAndTheFocusFollowsToTheNewLine)
{
    play("YRG", "YGG");
    key("1");
    key("Return");
    EXPECT_EQ(lines(), (Strings { "YRG", "YRGRG" }));
    settle();
    EXPECT_EQ(focus(), "chip-0-1");
}

TEST_F(Keys, SpaceLiftsAndOnlyTargetsThatAreMovesAreVisited)
{
    play("BYBRB", "YGG"); // the middle blue can be dropped to both sides
    key("3");
    key("Space");
    EXPECT_EQ(focus(), "chip-0-0");
    EXPECT_EQ(game().controller().focus().stops().size(), 2U);
    key("Right");
    EXPECT_EQ(focus(), "chip-4-0");
    key("Right");
    EXPECT_EQ(focus(), "chip-4-0");
    key("Space");
    EXPECT_EQ(lines(), (Strings { "BYBRB", "BYBB" }));
}

TEST_F(Keys, EscapePutsTheLiftedChipBack)
{
    play("BYB", "YGG");
    key("1");
    key("Space");
    EXPECT_FALSE(dragImages().empty());
    key("Esc");
    EXPECT_EQ(focus(), "chip-0-0");
    settle();
    EXPECT_TRUE(dragImages().empty());
    EXPECT_EQ(lines(), Strings { "BYB" });
    EXPECT_FLOAT_EQ(layer("chip-0-0")->shownOpacity(), 1.0F);
}

TEST_F(Keys, AMouseThatMovesPutsBackWhatAKeyLifted)
{
    play("BYB", "YGG");
    key("1");
    key("Space");
    move("chip-1-0");
    settle();
    EXPECT_TRUE(dragImages().empty());
    EXPECT_EQ(game().game().view().keyLifted(), "");
}

TEST_F(Keys, BackspaceTakesTheLastLineBack)
{
    play("YRG", "YGG");
    key("Backspace");
    EXPECT_EQ(lines(), Strings { "YRG" });
    click("chip-0-0");
    settle();
    sounds();
    key("Backspace");
    EXPECT_EQ(lines(), Strings { "YRG" });
    EXPECT_EQ(sounds(), Strings { "DeleteDing" });
}

TEST_F(Keys, HAsksForAHintAndMListsTheMoves)
{
    play("YRG", "YGG");
    key("M");
    EXPECT_EQ(game().controller().messages().page(), "movesMessageWindow");
    settle();
    EXPECT_EQ(focus(), "fullScreen");
    key("Space"); // the list has two pages
    settle();
    key("Space");
    settle();
    key("H");
    EXPECT_EQ(game().controller().messages().page(), "stopHintClick"); // too few points
    settle();
    key("Esc");
    EXPECT_EQ(game().controller().messages().page(), "");
}

TEST_F(Keys, LettersThatSpeakCanBeSwitchedOff)
{
    play("YRG", "YGG");
    game().listen();
    const std::vector<const char*> speaking { "G", "L", "D", "P", "R", "Shift+H" };
    for (const char* const keys : speaking) {
        wait(0.1);
        key(keys);
        EXPECT_EQ(game().takeAnnouncements().size(), 1U) << keys;
    }
    game().menu().trigger("Spoken Keys");
    for (const char* const keys : speaking) {
        wait(0.1);
        key(keys);
        EXPECT_EQ(game().takeAnnouncements(), Strings {}) << keys;
    }
    key("M"); // plays, and does not speak
    EXPECT_EQ(game().controller().messages().page(), "movesMessageWindow");
}

TEST_F(Keys, AKeyIntoABlockIsAPressThatIsLostAndRememberedIfWished)
{
    play("YR", "YGG");
    key("1");
    key("Return");
    wait(1.0);
    key("Return");
    settle();
    EXPECT_EQ(lines().size(), 2U);

    game().menu().trigger("Remember a Press");
    key("Return");
    wait(1.0);
    key("Return");
    EXPECT_EQ(lines().size(), 3U);
    settle();
    EXPECT_EQ(lines().size(), 4U);
}

TEST_F(Keys, AKeyHeldDownWalksButDoesNotPressAgain)
{
    using Press = controller::GameController::Press;
    play("YRGG", "YGG");
    key("End");
    EXPECT_TRUE(game().controller().key("Left", Press::Repeated));
    EXPECT_EQ(focus(), "chip-2-0");
    EXPECT_FALSE(game().controller().key("Return", Press::Repeated));
    EXPECT_EQ(lines(), Strings { "YRGG" });
}

TEST_F(Keys, ANoteIsReadFirstAndThenPlayGoesOnBesideIt)
{
    play("YRGG", "YRB");
    key("1");
    game().controller().pages().show("stage1Help");
    settle();
    EXPECT_EQ(focus(), "fullScreen");
    key("3");
    EXPECT_EQ(focus(), "chip-2-0");
    key("Return"); // closes the note and plays, as a press does
    EXPECT_EQ(game().controller().messages().page(), "");
    EXPECT_EQ(lines(), (Strings { "YRGG", "YRGBG" }));

    game().controller().pages().show("stage1Help");
    settle();
    key("Return"); // of a note that has just opened, closes it alone
    EXPECT_EQ(game().controller().messages().page(), "");
    EXPECT_EQ(lines().size(), 2U);
}

TEST_F(Keys, ANewBoardPutsTheFocusOnItsLine)
{
    key("Down");
    EXPECT_EQ(focus(), "button-classicbuttonon");
    key("Return");
    settle();
    while (!game().controller().messages().page().empty()) {
        key("Return");
        settle();
    }
    EXPECT_EQ(focus(), "chip-0-0");
}

TEST_F(Keys, TheFocusWaitsForTheNextPuzzleWhileOneIsCelebrated)
{
    play("YR", "YRG");
    key("2");
    key("Return");
    for (int tenths = 0; tenths < 64; ++tenths) {
        wait(0.1);
        EXPECT_THAT(focus(), ::testing::AnyOf("", ::testing::StartsWith("chip-")));
    }
    settle();
    EXPECT_THAT(focus(), ::testing::StartsWith("chip-"));
}

TEST_F(Keys, AQuestionIsAnsweredAmongItsTwoAnswers)
{
    play("YRGG", "YRB");
    game().controller().dialogues().showDialogue(
        "ContinueGame", "StartNewGame", controller::Dialogues::Question::ReturnToMenu);
    settle();
    key("Down");
    EXPECT_EQ(focus(), "fullScreen-3i");
    key("Down");
    EXPECT_EQ(focus(), "fullScreen-4i");
    key("Tab");
    EXPECT_EQ(focus(), "fullScreen-4i");
    key("Return");
    EXPECT_EQ(game().controller().dialogueState(), 0);
    EXPECT_TRUE(table().contains("label-veyrand"));
}

TEST_F(Keys, UndoPutsTheLiftedChipBackFirst)
{
    play("YBYB", "YGG");
    click("chip-0-0");
    settle();
    key("2");
    key("Space");
    EXPECT_EQ(game().game().view().keyLifted(), "chip-1-1");
    key("Ctrl+Z");
    EXPECT_EQ(game().game().view().keyLifted(), "");
    settle();
    EXPECT_EQ(lines(), Strings { "YBYB" });
    EXPECT_TRUE(dragImages().empty());
}

// The desktop may have a use for them.
TEST_F(Keys, ThatMeanNothingNowAreNotTaken)
{
    using Press = controller::GameController::Press;
    EXPECT_FALSE(game().controller().key("Ctrl+C", Press::First)) << "there is nothing to copy";
    play("YRGG", "YRB");
    controller::GameController& board = game().controller();
    EXPECT_FALSE(board.key("F9", Press::First));
    EXPECT_TRUE(board.key("Right", Press::First));
    EXPECT_TRUE(board.key("Right", Press::Repeated)) << "which goes on";
    EXPECT_FALSE(board.key("Return", Press::Repeated)) << "which has been pressed once";
    EXPECT_TRUE(board.key("G", Press::First));
    game().menu().trigger("Spoken Keys");
    EXPECT_FALSE(board.key("G", Press::First));
}

} // namespace veyrand::test
