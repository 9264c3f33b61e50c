#include "board/BoardFixture.h"

#include <gmock/gmock.h>

namespace veyrand::board {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using GoalDrawingTest = BoardTest;
using HintDrawingTest = BoardTest;
using NewGame = BoardTest;

namespace {

// Single-precision numbers, as doubles.
constexpr double kGoalOpacity = 0.699999988079071;
constexpr double kGoalMetOpacity = 0.10000000149011612;

const HintMatrix kYrrg { { 'Y', 1 }, { 'R', 2 }, { 'G', 1 }, { 'B', 0 } };

} // namespace

TEST_F(GoalDrawingTest, TheGoalIsAddedUnderTheStartTransparentAndSentToItsRow)
{
    std::map<std::string, Look> added;
    table().setNewObjectListener(
        [&](const std::string& key) { added.emplace(key, lookOf(*object(key))); });
    board().goal.drawGoal("YG");
    ASSERT_EQ(added.size(), 2U);
    EXPECT_EQ(added.at("goal-1-12"),
        (Look { "GreenChip", 0.075 + 0.7200000000000001, 0.875, 0.075, 0.075, 0.0 }));
    EXPECT_EQ(lookOf(*object("goal-1-12")),
        (Look { "GreenChip", 0.075 + 0.7200000000000001, 0.050000000000000044, 0.075, 0.075,
            kGoalOpacity }));
    EXPECT_EQ(board().goal.goalLine().size(), 2U);
}

TEST_F(GoalDrawingTest, TheGoalFliesOntoTheMatchingRowAndGoesASecondLater)
{
    board().goal.drawGoal("YG");
    board().goal.goalMetAtRow(3);
    EXPECT_EQ(object("goal-0-12")->y(), 0.725);
    EXPECT_EQ(object("goal-0-12")->opacity(), kGoalMetOpacity);
    wait(0.999999999);
    EXPECT_EQ(table().keys().size(), 2U);
    wait(0.000000001);
    EXPECT_THAT(table().keys(), IsEmpty());
    EXPECT_THAT(board().goal.goalLine(), IsEmpty());
}

// A goal met twice, or with none drawn, still has its second phase; it finds whatever is held then.
TEST_F(GoalDrawingTest, TheFlightsEndTakesWhateverGoalIsHeldByThen)
{
    board().goal.goalMetAtRow(3);
    wait(0.5);
    board().goal.drawGoal("YG");
    wait(0.5);
    EXPECT_THAT(table().keys(), IsEmpty());
}

TEST_F(HintDrawingTest, TheMarkFadesInOnceAndGoes)
{
    board().hints.drawProofGoodSoFar();
    board().hints.drawProofGoodSoFar();
    EXPECT_THAT(table().keys(), ElementsAre("checkmark"));
    EXPECT_EQ(lookOf(*object("checkmark")), (Look { "Checkmark", 0.5, 0.285, 0.075, 0.075, 1.0 }));
    board().hints.clearProofGoodSoFar();
    board().hints.clearProofGoodSoFar();
    EXPECT_THAT(table().keys(), IsEmpty());
}

TEST_F(HintDrawingTest, TheMatrixIsReadInTheOrderOfTheColours)
{
    EXPECT_EQ(HintDrawing::generateMatrixString(kYrrg), "YRRG");
    EXPECT_EQ(HintDrawing::generateMatrixString({ { 'B', 2 }, { 'Y', 1 } }), "YBB");
    EXPECT_EQ(HintDrawing::generateMatrixString({}), "");
}

TEST_F(HintDrawingTest, HintChipsRiseFromBelowIntoAColumn)
{
    std::map<std::string, Look> added;
    table().setNewObjectListener(
        [&](const std::string& key) { added.emplace(key, lookOf(*object(key))); });
    board().hints.drawHintMatrix(kYrrg);
    EXPECT_EQ(added.at("hint-3-99"), (Look { "GreenChip", 0.5, -0.1, 0.075, 0.075, 0.0 }));
    EXPECT_EQ(test::rowText(table(), kHintRow, "hint"), "YRRG");
    const double base = 0.075 * 4 * -0.5 + 0.54;
    for (unsigned i = 0; i < 4; ++i) {
        const auto chip = object(chipKey("hint", i, kHintRow));
        EXPECT_EQ(chip->x(), 0.5);
        EXPECT_EQ(chip->y(), 0.075 * i + base);
        EXPECT_EQ(chip->opacity(), 1.0);
    }
}

TEST_F(HintDrawingTest, TheColumnsMiddleStaysWhateverItsLength)
{
    for (const unsigned reds : { 1U, 5U, 11U }) {
        board().hints.drawHintMatrix({ { 'R', reds } });
        const double lowest = object("hint-0-99")->y();
        const double highest = object(chipKey("hint", reds - 1, kHintRow))->y();
        EXPECT_NEAR((lowest + highest) / 2.0, 0.5025, 1e-12) << reds;
    }
}

TEST_F(HintDrawingTest, TwoRedsOfTheHintTakeTwoChipsAndNeverOneTwice)
{
    board().hints.drawHintMatrix(kYrrg);
    const test::RecordingObserver first(table(), "hint-1-99");
    const test::RecordingObserver second(table(), "hint-2-99");
    board().hints.drawHint("YRGR", kYrrg, 5);
    EXPECT_EQ(first.heard().size(), 1U);
    EXPECT_EQ(second.heard().size(), 1U);
    const auto place
        = [this](const char* key) { return std::pair(object(key)->x(), object(key)->y()); };
    EXPECT_EQ(place("hint-0-99"), std::pair(xPositionForColumn(0), yPositionForRow(5)));
    EXPECT_EQ(place("hint-1-99"), std::pair(xPositionForColumn(1), yPositionForRow(5)));
    EXPECT_EQ(place("hint-2-99"), std::pair(xPositionForColumn(3), yPositionForRow(5)));
    EXPECT_EQ(place("hint-3-99"), std::pair(xPositionForColumn(2), yPositionForRow(5)));
}

TEST_F(HintDrawingTest, ALetterThatTheMatrixLacksMovesNothing)
{
    board().hints.drawHintMatrix(kYrrg);
    board().hints.drawHint("YB", kYrrg, 5);
    EXPECT_EQ(object("hint-0-99")->y(), yPositionForRow(5));
    for (const char* key : { "hint-1-99", "hint-2-99", "hint-3-99" }) {
        EXPECT_EQ(object(key)->x(), 0.5) << key;
    }
}

// The search ends with the hinted line's length, so a chip further on is not found.
TEST_F(HintDrawingTest, TheSearchForAChipEndsWithTheHintedLinesLength)
{
    board().hints.drawHintMatrix(kYrrg);
    board().hints.drawHint("YRG", kYrrg, 5); // the green is the fourth chip
    EXPECT_EQ(object("hint-1-99")->y(), yPositionForRow(5));
    EXPECT_EQ(object("hint-3-99")->x(), 0.5);
}

TEST_F(NewGame, ClearsTheTableAndLaysOutThePuzzle)
{
    place(1, 1, 2);
    gameData().fadeInLabel("Title", 0.3, 0.3, 0.1, 0.1, "label-title");
    board().newGame("YR", "YRG");
    EXPECT_FALSE(table().contains("label-title"));
    EXPECT_EQ(row(0), "YR");
    EXPECT_EQ(test::rowText(table(), kGoalRow, "goal"), "YRG");
    EXPECT_EQ(table().keys().size(), 2U + 3U + 6U + 6U);
    EXPECT_FALSE(table().contains("delete-0"));
}

} // namespace veyrand::board
