#include "HistoryFixture.h"
#include "platform/fakes/MemoryJournal.h"
#include "progress/PlayerRecord.h"

#include <gtest/gtest.h>

namespace veyrand::controller {

namespace {

// What is asked for at a moment when it cannot be had.
class OddMoments : public HistoryTest {
protected:
    [[nodiscard]] GameController& controller() { return game().controller(); }
    void sayNothingIsOpen() { EXPECT_FALSE(controller().closePage()); }
};

} // namespace

TEST_F(OddMoments, APageIsClosedOnceItCanBeReadAndANoteToo)
{
    settle();
    sayNothingIsOpen();
    for (const char* const name : { "movesMessageWindow", "stage1Help" }) {
        play("YR", "YB");
        ASSERT_TRUE(controller().pages().show(name));
        ASSERT_TRUE(blocked());
        EXPECT_TRUE(controller().closePage());
        EXPECT_EQ(controller().messages().page(), name) << "it has only just come";
        settle();
        EXPECT_TRUE(controller().closePage());
        EXPECT_NE(controller().messages().page(), name);
        controller().messages().dismiss(); // and what may follow it
        settle();
    }
}

TEST_F(OddMoments, EscapeLeavesAQuestionOnceItStands)
{
    settle();
    controller().flow().newClassicGame();
    ASSERT_NE(controller().dialogueState(), 0);
    game().game().view().block().startBlockClick(0.75);
    controller().escape();
    EXPECT_NE(controller().dialogueState(), 0) << "the board still moves";
    settle();
    controller().escape();
    EXPECT_EQ(controller().dialogueState(), 0);
}

TEST_F(OddMoments, NothingIsBroughtInUnderAnythingElse)
{
    settle();
    EXPECT_TRUE(controller().transfer().canImport());
    controller().sheets().openStatistics();
    EXPECT_FALSE(controller().transfer().canImport());
    controller().sheets().close();
    controller().flow().newClassicGame();
    settle();
    EXPECT_FALSE(controller().transfer().canImport()) << "a question waits";
    controller().escape();
    settle();
    controller().showHowToPlay();
    settle();
    EXPECT_FALSE(controller().transfer().canImport()) << "a page is open";
    controller().closePage();
    settle();
    play("YR", "YB");
    ASSERT_TRUE(controller().pages().show("stage1Help"));
    EXPECT_FALSE(controller().transfer().canImport()) << "the note has only just come";
    settle();
    EXPECT_TRUE(controller().transfer().canImport()) << "beside a note play goes on";
    controller().context().exchange = nullptr;
    EXPECT_FALSE(controller().transfer().canImport());
    EXPECT_FALSE(controller().transfer().canExport());
}

TEST_F(OddMoments, NoStepIsRedoneUnderAPageOrWhileTheBoardMoves)
{
    play("YR", "YB");
    click("chip-0-0");
    settle();
    undo();
    settle();
    ASSERT_TRUE(history().canRedo());
    game().game().view().block().startBlockClick(5.0);
    EXPECT_FALSE(history().canRedo());
    wait(6.0);
    ASSERT_TRUE(controller().pages().show("movesMessageWindow"));
    settle();
    EXPECT_FALSE(history().canRedo());
    redo();
    EXPECT_EQ(lines().size(), 1U);
    controller().messages().dismiss();
    ASSERT_TRUE(controller().pages().show("stage1Help"));
    controller().messages().setDisplayMessageWindowOnClick(3);
    settle();
    redo();
    EXPECT_EQ(lines().size(), 1U) << "a page has followed the note";
    controller().messages().dismiss();
    settle();
    redo();
    EXPECT_EQ(lines().size(), 2U);
}

TEST_F(OddMoments, WhatIsNoPlaceIsNotPlayed)
{
    settle();
    Practice& practice = controller().practice();
    for (const progress::Place place : { progress::Place { 0, 1 }, progress::Place { 99, 1 },
             progress::Place { 1, 0 }, progress::Place { 1, 11 } }) {
        EXPECT_FALSE(practice.play(place));
        practice.choose(place);
        EXPECT_FALSE(controller().proof());
        EXPECT_EQ(practice.entryAt(place), nullptr);
        EXPECT_FALSE(practice.isReached(place));
        EXPECT_FALSE(practice.isSolved(place));
    }
    EXPECT_TRUE(practice.givesHints()) << "no puzzle asks otherwise";
}

TEST_F(OddMoments, ARecordThatStandsNowhereStandsAtTheBeginning)
{
    settle();
    progress::updatePlayerRecord(game().preferences(), progress::kDefaultPlayerName,
        { .level = 3, .stage = 11, .score = 0, .firstHintClick = true });
    EXPECT_EQ(controller().practice().standing(), (progress::Place { 1, 1 }));
}

TEST_F(OddMoments, ACodeThatCanBePlayedHasNothingAgainstIt)
{
    settle();
    EXPECT_EQ(controller().practice().whyNot("3373NECJ"), "");
    EXPECT_EQ(controller().practice().whyNot(play::codeOf("G", "YR").value()),
        game().game().texts().text("practice.unreachable"));
    EXPECT_FALSE(controller().proof()) << "nothing is played";
}

TEST_F(OddMoments, APuzzleThatIsNotOnTheShelfIsNeitherNamedNorRemoved)
{
    PuzzleShelf& shelf = controller().shelf();
    ASSERT_EQ(shelf.add("3373NECJ"), play::MyPuzzles::Saving::Saved);
    const auto before = shelf.puzzles();
    shelf.rename("YYYYYYYY", "Mine");
    shelf.remove("YYYYYYYY");
    EXPECT_EQ(shelf.puzzles(), before);
}

TEST_F(OddMoments, AnOfferThatIsAnsweredDuringAGameBringsNothingBack)
{
    platform::MemoryJournal journal;
    headless::HeadlessGame other({ .preferences = richPlayer().preferences,
        .resources = &test::gameResources(),
        .journal = &journal });
    other.launch();
    other.wait(1.0);
    GameController& controller = other.controller();
    controller.previous().keep(progress::Mode::Classic);
    ASSERT_TRUE(controller.previous().canOffer());
    controller.previous().offer();
    ASSERT_TRUE(other.alerts().isOpen());
    controller.flow().startClassicGame();
    const auto proof = controller.proof();
    EXPECT_FALSE(controller.previous().canOffer());
    other.alerts().answer({ .button = platform::AlertAnswer::Button::Default });
    EXPECT_EQ(controller.proof(), proof);
}

TEST_F(OddMoments, AnEndlessGameStartsThoughNobodyHasPreparedOne)
{
    settle();
    const progress::CurrentGame& current = game().currentGame();
    controller().flow().startEndlessGame();
    settle();
    EXPECT_TRUE(current.endlessGame());
    EXPECT_EQ(current.par(), progress::endlessParFor(current.endlessPar()));
    ASSERT_NE(controller().flow().session(), nullptr);
}

TEST_F(OddMoments, AnEndlessGameTakesNoPuzzleOfAnother)
{
    settle();
    const progress::CurrentGame& current = game().currentGame();
    controller().flow().newGame();
    settle();
    controller().flow().startEndlessGame();
    settle();
    EXPECT_TRUE(current.endlessGame());
}

} // namespace veyrand::controller
