#include "controller/HistoryFixture.h"
#include "play/Decide.h"

#include <gmock/gmock.h>
#include <random>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(HistoryTest, UndoingAMoveTakesItsLineBackAsItsDeleteButtonWould)
{
    play("YRR", "YB");
    click("chip-0-0");
    settle();
    sounds();
    undo();
    EXPECT_THAT(lines(), ElementsAre("YRR"));
    EXPECT_THAT(sounds(), ElementsAre("DeleteDing"));
    EXPECT_FALSE(table().contains("delete-1"));
    EXPECT_EQ(object("chip-4-1")->width(), 0.0);
    wait(0.94);
    EXPECT_TRUE(blocked());
    wait(0.01);
    EXPECT_FALSE(blocked());
    settle();
    expectBoardShowsTheLines();
}

TEST_F(HistoryTest, RedoingAMoveShowsItAgain)
{
    play("YRRR", "YB");
    drag("chip-1-0", "chip-3-0");
    settle();
    undo();
    settle();
    sounds();
    redo();
    EXPECT_THAT(lines(), ElementsAre("YRRR", "YG"));
    EXPECT_THAT(sounds(), ElementsAre("Marble"));
    EXPECT_EQ(row(1), "YRRR"); // first a copy of the line before
    wait(2.24);
    EXPECT_TRUE(blocked());
    wait(0.11); // a block is looked at every tenth of a second
    EXPECT_FALSE(blocked());
    settle();
    expectBoardShowsTheLines();
}

TEST_F(HistoryTest, UndoingARemovalBringsItsLinesBackOneAfterAnother)
{
    play("YR", "YB");
    for (int row = 0; row < 3; ++row) {
        click("chip-0-" + std::to_string(row));
        settle();
    }
    ASSERT_EQ(lines().size(), 4U);
    click("delete-1");
    settle();
    sounds();
    undo();
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR", "YRRRR", "YRRRRRRRR"));
    EXPECT_THAT(sounds(), ElementsAre("Marble"));
    EXPECT_EQ(row(1), "YRR");
    EXPECT_EQ(row(2), "");
    wait(0.06);
    EXPECT_EQ(row(2), "YRRRR");
    EXPECT_EQ(row(3), "");
    wait(0.06);
    EXPECT_EQ(row(3), "YRRRRRRRR");
    wait(0.94);
    EXPECT_TRUE(blocked());
    wait(0.02);
    EXPECT_FALSE(blocked());
    expectBoardShowsTheLines();
    redo();
    EXPECT_THAT(lines(), ElementsAre("YR"));
    settle();
    expectBoardShowsTheLines();
}

TEST_F(HistoryTest, AHintsLineIsUndoneLikeAnyOtherAndIsPaidFor)
{
    play("YR", "YRRRRG");
    hint();
    hint();
    ASSERT_EQ(lines().size(), 2U);
    EXPECT_EQ(game().currentGame().score(), 900);
    undo();
    settle();
    EXPECT_THAT(lines(), ElementsAre("YR"));
    EXPECT_EQ(game().currentGame().score(), 900);
    EXPECT_EQ(game().controller().hints().hintMode(), 0);
    redo();
    settle();
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    EXPECT_EQ(game().currentGame().score(), 900);
    EXPECT_EQ(game().controller().hints().hintMode(), 1);
    EXPECT_FALSE(table().contains("checkmark"));
    expectBoardShowsTheLines();
}

TEST_F(HistoryTest, AWalkBackIsUndoneAsOneStepAndItsMarkComesAgainWithIt)
{
    play("YRR", "YRRRRG");
    click("chip-2-0");
    settle();
    click("chip-0-1");
    settle();
    ASSERT_THAT(lines(), ElementsAre("YRR", "YRRG", "YRRGRRG"));
    hint();
    ASSERT_THAT(lines(), ElementsAre("YRR"));
    EXPECT_TRUE(table().contains("checkmark"));
    undo();
    EXPECT_FALSE(table().contains("checkmark"));
    EXPECT_THAT(lines(), ElementsAre("YRR", "YRRG", "YRRGRRG"));
    settle();
    expectBoardShowsTheLines();
    redo();
    EXPECT_THAT(lines(), ElementsAre("YRR"));
    EXPECT_TRUE(table().contains("checkmark"));
    EXPECT_EQ(game().controller().hints().hintMode(), 1);
    settle();
    expectBoardShowsTheLines();
}

TEST_F(HistoryTest, UndoTakesTheMarkAndThePiecesAway)
{
    play("YR", "YRRRRG");
    click("chip-0-0");
    settle();
    hint();
    EXPECT_TRUE(table().contains("checkmark"));
    undo();
    EXPECT_FALSE(table().contains("checkmark"));
    settle();
    hint(); // the pieces at once: the start line is always good
    EXPECT_FALSE(test::keysFrom(table(), "hint-").empty());
    redo();
    EXPECT_THAT(test::keysFrom(table(), "hint-"), IsEmpty());
}

TEST_F(HistoryTest, WhatIsDoneAnewEndsTheRedoList)
{
    play("YR", "YB");
    click("chip-0-0");
    settle();
    undo();
    settle();
    EXPECT_TRUE(history().canRedo());
    click("chip-1-0");
    settle();
    EXPECT_FALSE(history().canRedo());
    redo();
    EXPECT_THAT(lines(), ElementsAre("YR", "YRG"));
}

TEST_F(HistoryTest, TenStepsInASecondEndInTheRightBoard)
{
    play("YGG", "YB");
    for (int row = 0; row < 10; row += 2) {
        click("chip-0-" + std::to_string(row));
        settle();
        drag("chip-1-" + std::to_string(row + 1), "chip-2-" + std::to_string(row + 1));
        settle();
    }
    const std::vector<std::string> all = lines();
    ASSERT_EQ(all.size(), 11U);
    for (std::size_t i = 1; i < all.size(); ++i) {
        undo();
        EXPECT_EQ(lines().size(), all.size() - i);
        wait(0.1);
    }
    EXPECT_FALSE(history().canUndo());
    settle();
    expectBoardShowsTheLines();
    for (std::size_t i = 1; i < all.size(); ++i) {
        redo();
        wait(0.1);
    }
    EXPECT_EQ(lines(), all);
    settle();
    expectBoardShowsTheLines();
}

// However far the step before had come, and whichever way the next one goes.
TEST_F(HistoryTest, StepsMayFollowOneAnotherAtAnyMoment)
{
    for (const double pause : { 0.0, 0.03, 0.3, 0.55, 0.8, 1.0, 1.3, 1.5 }) {
        play("YRRRGG", "YB");
        drag("chip-1-0", "chip-3-0"); // YGGG
        settle();
        drag("chip-1-1", "chip-2-1"); // YG
        settle();
        click("chip-0-2"); // YGG
        settle();
        click("delete-1");
        settle();
        const auto step = [&](auto which) {
            which();
            wait(pause);
        };
        step([this] { undo(); }); // the three lines come back
        step([this] { undo(); });
        step([this] { redo(); });
        step([this] { undo(); });
        step([this] { undo(); });
        step([this] { redo(); }); // two greens vanish
        step([this] { redo(); });
        EXPECT_THAT(lines(), ElementsAre("YRRRGG", "YGGG", "YG", "YGG")) << pause;
        settle();
        expectBoardShowsTheLines();
    }
}

TEST_F(HistoryTest, WhatOneStepLeftForLaterIsNothingToTheNext)
{
    play("YRRRG", "YB");
    drag("chip-1-0", "chip-3-0");
    settle();
    undo();
    settle();
    redo(); // a delete button would come in half a second
    wait(0.1);
    undo();
    settle();
    expectBoardShowsTheLines();

    redo(); // the row would be held against its line in a second and a half
    wait(0.1);
    undo();
    wait(0.1);
    redo();
    wait(1.4);
    EXPECT_EQ(row(1), "YRRRG") << "still being shown";
    settle();
    expectBoardShowsTheLines();

    click("chip-0-1");
    settle();
    click("delete-1");
    settle();
    undo(); // the second line would come after the first
    wait(0.03);
    undo();
    settle();
    EXPECT_THAT(lines(), ElementsAre("YRRRG", "YGG"));
    expectBoardShowsTheLines();
}

TEST_F(HistoryTest, AMoveShownAgainHasItsRowToItself)
{
    play("YRR", "YB");
    click("chip-0-0");
    settle();
    undo();
    wait(0.96); // the chips that have shrunk are there until a second has passed
    redo();
    EXPECT_EQ(row(1), "YRR");
}

// Moves, removals and steps as they come, whether or not anything is being shown.
TEST_F(HistoryTest, AnyMixOfStepsLeavesTheBoardThatTheLinesSay)
{
    std::mt19937 random(3);
    const auto below = [&random](std::size_t count) { return random() % count; };
    for (int round = 0; round < 30; ++round) {
        play(below(2) == 0 ? "YGGR" : "YRRRG", "YBBBBB");
        for (int step = 0; step < 40; ++step) {
            const auto gestures = play::actions(game().controller().moves().position());
            const std::size_t kind = below(10);
            if (kind < 3) {
                undo();
            } else if (kind < 6) {
                redo();
            } else if (kind == 6 && lines().size() > 1 && table().contains("delete-1")) {
                click("delete-1");
            } else if (!gestures.empty()) {
                make(gestures[below(gestures.size())]);
            }
            wait(0.1 * static_cast<double>(below(20)));
        }
        settle();
        expectBoardShowsTheLines();
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST_F(HistoryTest, HeldKeysDingTenTimesASecondAtMost)
{
    play("YRR", "YB");
    for (int row = 0; row < 2; ++row) {
        click("chip-0-" + std::to_string(row));
        settle();
    }
    sounds();
    undo();
    wait(0.05);
    undo();
    EXPECT_THAT(sounds(), ElementsAre("DeleteDing"));
}

TEST_F(HistoryTest, WaitsForABlockThatSomethingElseBegan)
{
    play("YR", "YB");
    click("chip-0-0");
    wait(1.0);
    EXPECT_FALSE(history().canUndo());
    undo();
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    wait(0.6);
    EXPECT_TRUE(history().canUndo());
    undo();
    EXPECT_THAT(lines(), ElementsAre("YR"));
}

TEST_F(HistoryTest, DoesNothingDuringTheCelebrationOrOnTheNextPuzzle)
{
    play("YR", "YRR");
    click("chip-0-0");
    for (int i = 0; i < 12; ++i) {
        undo();
        wait(0.5);
        EXPECT_FALSE(history().canUndo());
    }
    EXPECT_FALSE(game().menu().trigger("Undo"));
    settle();
    undo();
    EXPECT_EQ(lines().size(), 1U);
}

TEST_F(HistoryTest, DoesNothingUnderAPageAndSendsANoteAway)
{
    play("YR", "YB");
    click("chip-0-0");
    settle();
    game().controller().pages().show("movesMessageWindow");
    settle();
    undo();
    EXPECT_EQ(lines().size(), 2U);
    EXPECT_EQ(game().controller().messages().page(), "movesMessageWindow");
    game().controller().messages().dismiss();
    ASSERT_TRUE(game().controller().pages().show("stage1Help"));
    settle();
    undo();
    EXPECT_EQ(lines().size(), 1U);
    EXPECT_EQ(game().controller().messages().page(), "");
}

TEST_F(HistoryTest, WaitsForThePageThatFollowsANote)
{
    play("YR", "YB");
    click("chip-0-0");
    settle();
    ASSERT_TRUE(game().controller().pages().show("stage1Help"));
    game().controller().messages().setDisplayMessageWindowOnClick(3);
    settle();
    undo();
    EXPECT_EQ(lines().size(), 2U);
    EXPECT_TRUE(game().game().view().messageWindow());
    EXPECT_NE(game().controller().messages().page(), "stage1Help");
}

TEST_F(HistoryTest, ALineTakenBackByUndoGivesUpTheChipInTheHand)
{
    play("YRR", "YB");
    click("chip-0-0");
    settle();
    press("chip-0-1");
    game().move({ .x = 1.0, .y = 0.5 });
    EXPECT_FALSE(dragImages().empty());
    undo();
    settle();
    EXPECT_THAT(dragImages(), IsEmpty());
    expectBoardShowsTheLines();
}

TEST_F(HistoryTest, TheMenuNamesTheStep)
{
    play("YR", "YB");
    EXPECT_FALSE(game().menu().trigger("Undo"));
    click("chip-0-0");
    settle();
    EXPECT_TRUE(game().menu().trigger("Undo Move"));
    settle();
    EXPECT_TRUE(game().menu().trigger("Redo Move"));
    settle();
    click("delete-1");
    settle();
    EXPECT_FALSE(game().menu().trigger("Redo"));
    EXPECT_TRUE(game().menu().trigger("Undo Removal"));
    settle();
    EXPECT_TRUE(game().menu().trigger("Redo Removal"));
    EXPECT_THAT(lines(), ElementsAre("YR"));
}

TEST_F(HistoryTest, CtrlYRedoesToo)
{
    play("YR", "YB");
    click("chip-0-0");
    settle();
    undo();
    settle();
    game().key("Ctrl+Y");
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
}

TEST_F(HistoryTest, WhatStillFallsHasGoneAtTheNextStep)
{
    play("YR", "YB");
    for (unsigned row = 0; row < 2; ++row) {
        click(board::generateKeyChipKey(0, row));
        settle();
    }
    undo();
    ASSERT_TRUE(table().contains("chip-0-2"));
    undo();
    EXPECT_FALSE(table().contains("chip-0-2"));
    EXPECT_TRUE(table().contains("chip-0-1")) << "which falls now";
    settle();
    expectBoardShowsTheLines();
}

} // namespace veyrand::controller
