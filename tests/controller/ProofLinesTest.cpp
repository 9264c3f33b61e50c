#include "progress/PlayerKeys.h"
#include "support/HeadlessPlay.h"
#include "support/Instant.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using test::kInstant;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

constexpr double kGoalOpacity = 0.699999988079071; // single-precision 0.7
constexpr double kGoalMetOpacity = 0.10000000149011612; // single-precision 0.1

class ProofLinesTest : public test::HeadlessPlay {
protected:
    // Plays one move on the last line for each letter: d doubles, g adds a green.
    void playMoves(const std::string& moves)
    {
        for (const char move : moves) {
            const auto last = lines().size() - 1;
            const auto column = move == 'd' ? 0 : lines().back().size() - 1;
            click("chip-" + std::to_string(column) + '-' + std::to_string(last));
            settle();
        }
        sounds();
    }
    std::vector<std::string> keys(const char* prefix) { return test::keysFrom(table(), prefix); }
    ProofLines& proofLines() { return game().controller().lines(); }
};

} // namespace

TEST_F(ProofLinesTest, AMoveThatMissesTheGoalLeavesEverythingAsItWas)
{
    play("YR", "YB");
    click("chip-0-0");
    EXPECT_THAT(sounds(), ElementsAre("Marble"));
    EXPECT_EQ(game().currentGame().score(), 0);
    wait(10.0);
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    EXPECT_EQ(object("goal-0-12")->opacity(), kGoalOpacity);
    EXPECT_THAT(keys("delete-"), ElementsAre("delete-1"));
}

TEST_F(ProofLinesTest, CheckScoreAndCymbalsComeWithTheMoveItself)
{
    play(at(5, 1, "YR", "YRRRR"));
    playMoves("d");
    click("chip-0-1");
    EXPECT_THAT(sounds(), ElementsAre("Marble", "CymbalRoll"));
    EXPECT_EQ(game().currentGame().score(), 140); // one line beyond par
    EXPECT_TRUE(blocked());
    wait(2.4);
    EXPECT_EQ(game().currentGame().score(), 140); // and only once
    EXPECT_THAT(sounds(), IsEmpty());
}

TEST_F(ProofLinesTest, TheCelebrationKeepsItsTimes)
{
    play(at(6, 2, "YR", "YRRRR"));
    playMoves("d");
    click("chip-0-1");
    wait(2.5 - kInstant);
    EXPECT_THAT(keys("delete-"), ElementsAre("delete-1", "delete-2"));
    wait(kInstant);
    EXPECT_THAT(keys("delete-"), IsEmpty());
    wait(0.5 - kInstant);
    EXPECT_EQ(object("goal-0-12")->opacity(), kGoalOpacity);
    wait(kInstant);
    EXPECT_EQ(object("goal-0-12")->y(), board::yPositionForRow(2));
    EXPECT_EQ(object("goal-0-12")->opacity(), kGoalMetOpacity);
    wait(1.0 - kInstant);
    EXPECT_THAT(keys("goal-"), SizeIs(5));
    wait(kInstant);
    EXPECT_THAT(keys("goal-"), IsEmpty());
    EXPECT_EQ(row(2), "YRRRR");
    wait(0.5 - kInstant);
    EXPECT_THAT(keys("chip-"), SizeIs(2 + 3 + 5));
    wait(kInstant);
    EXPECT_THAT(keys("chip-"), IsEmpty());
    EXPECT_THAT(lines(), IsEmpty());
    wait(2.0 - kInstant);
    EXPECT_EQ(game().currentGame().stage(), 2);
    wait(kInstant);
    EXPECT_EQ(game().currentGame().stage(), 3);
    ASSERT_THAT(lines(), SizeIs(1));
    EXPECT_EQ(row(0), lines().front());
    EXPECT_TRUE(blocked());
    wait(0.5 - kInstant);
    EXPECT_TRUE(blocked());
    wait(kInstant);
    EXPECT_FALSE(blocked());
}

TEST_F(ProofLinesTest, TheNextPuzzleIsSavedWithTheScore)
{
    play(at(6, 2, "YR", "YRR"));
    playMoves("d");
    wait(4.0);
    const auto record = game().preferences().record(progress::playerRecordKey("New")).value();
    EXPECT_EQ(platform::integerForKey(record, progress::kLevelKey), 6);
    EXPECT_EQ(platform::integerForKey(record, progress::kStageKey), 3);
    EXPECT_EQ(platform::integerForKey(record, progress::kScoreKey), 150);
}

TEST_F(ProofLinesTest, TheLastPlaceInEndlessIsFollowedByAnotherPuzzle)
{
    play(
        { .root = "YR", .goal = "YRR", .par = 2, .level = 11, .stage = 10, .mode = Mode::Endless });
    playMoves("d");
    wait(3.5);
    EXPECT_THAT(lines(), SizeIs(1));
    EXPECT_NE(game().controller().proof(), nullptr);
    EXPECT_EQ(game().currentGame().endlessScore(), 10); // one move of par
}

TEST_F(ProofLinesTest, DeletingAtRowThreeOfASixLineProof)
{
    play("YG", "YB");
    // YG YGG YGGGG; then two greens at a time: YGG, YGGGG, YGG.
    playMoves("dd");
    for (const char* row : { "2", "3", "4" }) {
        if (lines().back() == "YGG") {
            click(std::string("chip-0-") + row);
        } else {
            drag(std::string("chip-1-") + row, std::string("chip-2-") + row);
        }
        settle();
    }
    ASSERT_THAT(lines(), SizeIs(6));
    ASSERT_THAT(keys("delete-"), SizeIs(5));
    sounds();

    click("delete-3");
    EXPECT_THAT(lines(), ElementsAre("YG", "YGG", "YGGGG"));
    EXPECT_THAT(sounds(), ElementsAre("DeleteDing"));
    EXPECT_THAT(keys("delete-"), ElementsAre("delete-1", "delete-2"));
    EXPECT_EQ(object("chip-0-3")->width(), 0.0);
    EXPECT_EQ(object("chip-2-5")->height(), 0.0);
    EXPECT_EQ(object("chip-0-2")->width(), board::kChipSize);
    wait(1.0 - kInstant);
    EXPECT_EQ(row(5), "YGG");
    wait(kInstant);
    for (const unsigned gone : { 3U, 4U, 5U }) {
        EXPECT_EQ(row(gone), "");
    }
    EXPECT_EQ(row(2), "YGGGG");
    EXPECT_THAT(keys("chip-"), SizeIs(2 + 3 + 5));
    EXPECT_FALSE(blocked());
}

TEST_F(ProofLinesTest, ALineMadeWhileADeletedOneShrinksKeepsItsChips)
{
    play("YRGG", "YB");
    playMoves("d");
    click("delete-1");
    wait(0.95);
    EXPECT_FALSE(blocked());
    drag("chip-2-0", "chip-3-0");
    EXPECT_THAT(lines(), ElementsAre("YRGG", "YR"));
    settle();
    EXPECT_EQ(row(1), "YR");
    EXPECT_THAT(keys("chip-"), SizeIs(4 + 2));
    EXPECT_THAT(keys("delete-"), ElementsAre("delete-1"));
}

TEST_F(ProofLinesTest, TheStartLineHasNoDeleteButton)
{
    play("YR", "YB");
    EXPECT_THAT(keys("delete-"), IsEmpty());
}

TEST_F(ProofLinesTest, ClearingARangeTakesItsChipsLinesAndIfAskedItsButtons)
{
    play("YR", "YB");
    playMoves("dd");
    proofLines().clearProof(2, 1, ProofLines::DeleteButtons::Keep);
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    EXPECT_EQ(row(2), "");
    EXPECT_THAT(keys("delete-"), ElementsAre("delete-1", "delete-2"));
    proofLines().clearProof(1, 1, ProofLines::DeleteButtons::Remove);
    EXPECT_THAT(lines(), ElementsAre("YR"));
    EXPECT_THAT(keys("delete-"), ElementsAre("delete-2"));
}

TEST_F(ProofLinesTest, ClearingNoLinesDoesNothing)
{
    play("YR", "YB");
    proofLines().clearProof();
    EXPECT_THAT(lines(), IsEmpty());
    const auto before = table().keys();
    proofLines().clearProof();
    proofLines().removeAllDeleteButtons();
    EXPECT_EQ(table().keys(), before);
}

// A board that has been left is not celebrated on the next one.
TEST_F(ProofLinesTest, ACelebrationOverTakenByAnotherPuzzleLetsItAlone)
{
    play("YR", "YRR");
    click("chip-0-0");
    wait(1.0);
    play("YG", "YB");
    wait(10.0);
    EXPECT_THAT(lines(), ElementsAre("YG"));
    EXPECT_EQ(object("goal-0-12")->opacity(), kGoalOpacity);
}

} // namespace veyrand::controller
