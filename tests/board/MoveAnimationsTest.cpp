#include "board/BoardFixture.h"
#include "support/Instant.h"

#include <gmock/gmock.h>

namespace veyrand::board {

using test::kInstant;

using ::testing::ElementsAre;

namespace {

// The records of each move, phase by phase. How their layers travel is for others to test.
class MoveAnimationsTest : public BoardTest {
protected:
    MoveAnimations& moves() { return board().animations; }

    std::vector<std::string> chips() { return test::keysFrom(table(), "chip"); }
    // Nowhere for a chip that is not there.
    double x(const std::string& key) { return object(key) ? object(key)->x() : -1.0; }
    double y(const std::string& key) { return object(key) ? object(key)->y() : -1.0; }
    static double column(unsigned number) { return xPositionForColumn(number); }
};

} // namespace

TEST_F(MoveAnimationsTest, EveryMoveBeginsWithACopyOfTheLineBefore)
{
    moves().flipFirstAndThird("YRG", 2, 0);
    EXPECT_THAT(table().keys(), ElementsAre("chip-0-2", "chip-1-2", "chip-2-2"));
    EXPECT_EQ(row(2), "YRG");
    wait(0.5 - kInstant);
    EXPECT_FALSE(table().contains("delete-2"));
    wait(kInstant);
    EXPECT_TRUE(table().contains("delete-2"));
}

TEST_F(MoveAnimationsTest, AGreenSlidesOutToTheNewEnd)
{
    moves().addGreenToEnd("YR", 1);
    wait(0.75 - kInstant);
    EXPECT_THAT(chips(), ElementsAre("chip-0-1", "chip-1-1"));
    std::optional<Look> added;
    table().setNewObjectListener([&](const std::string& key) { added = lookOf(*object(key)); });
    wait(kInstant);
    EXPECT_THAT(chips(), ElementsAre("chip-0-1", "chip-1-1", "chip-2-1"));
    // It comes out from under the last chip.
    EXPECT_EQ(added, (Look { "GreenChip", column(1), yPositionForRow(1), 0.075, 0.075, 1.0 }));
    EXPECT_EQ(x("chip-2-1"), column(2));
}

TEST_F(MoveAnimationsTest, TheTailAfterTheYellowIsCopiedOutToTheRight)
{
    moves().doubleAllAfterColumn("GYRB", 1, 1);
    wait(0.75 - kInstant);
    EXPECT_EQ(row(1), "GYRB");
    std::map<std::string, Look> added;
    table().setNewObjectListener(
        [&](const std::string& key) { added.emplace(key, lookOf(*object(key))); });
    wait(kInstant);
    EXPECT_EQ(row(1), "GYRBRB");
    EXPECT_EQ(added.at("chip-4-1"),
        (Look { "RedChip", column(2), yPositionForRow(1), 0.075, 0.075, 1.0 }));
    EXPECT_EQ(added.at("chip-5-1"),
        (Look { "BlueChip", column(3), yPositionForRow(1), 0.075, 0.075, 1.0 }));
    EXPECT_EQ(x("chip-4-1"), column(4));
    EXPECT_EQ(x("chip-5-1"), column(5));
}

TEST_F(MoveAnimationsTest, ThreeRedsMergeIntoAGreenAndTheRestClosesUp)
{
    moves().threeRedsToOneGreen("YRRRG", 2, 1);
    wait(0.75 - kInstant);
    EXPECT_EQ(x("chip-1-2"), column(1));
    wait(kInstant);
    EXPECT_EQ(x("chip-1-2"), column(2));
    EXPECT_EQ(x("chip-2-2"), column(2));
    EXPECT_EQ(x("chip-3-2"), column(2));
    const auto lastGreen = object("chip-4-2");
    std::vector<std::string> added;
    double mergedAt = 0.0;
    table().setNewObjectListener([&](const std::string& key) {
        added.push_back(key);
        if (key == "temporaryGreen") {
            mergedAt = object(key)->x();
        }
    });
    wait(0.75 - kInstant);
    EXPECT_EQ(row(2), "YRRRG");
    wait(kInstant);
    EXPECT_THAT(added, ElementsAre("temporaryGreen", "chip-1-2", "chip-2-2"));
    EXPECT_EQ(mergedAt, column(2));
    EXPECT_THAT(chips(), ElementsAre("chip-0-2", "chip-1-2", "chip-2-2"));
    EXPECT_EQ(row(2), "YGG");
    EXPECT_EQ(object("chip-2-2"), lastGreen); // re-keyed, not drawn anew
    EXPECT_EQ(x("chip-1-2"), column(1));
    EXPECT_EQ(x("chip-2-2"), column(2));
    EXPECT_FALSE(table().contains("temporaryGreen"));
}

TEST_F(MoveAnimationsTest, TwoGreensFallAndTheRestClosesUp)
{
    moves().twoGreensDisappear("YGGRB", 3, 1);
    wait(0.75);
    EXPECT_EQ(y("chip-1-3"), -0.1);
    EXPECT_EQ(y("chip-2-3"), -0.1);
    EXPECT_EQ(y("chip-3-3"), yPositionForRow(3));
    wait(0.5 - kInstant);
    EXPECT_EQ(row(3), "YGGRB");
    wait(kInstant);
    EXPECT_THAT(chips(), ElementsAre("chip-0-3", "chip-1-3", "chip-2-3"));
    EXPECT_EQ(row(3), "YRB");
    EXPECT_EQ(x("chip-2-3"), column(2));
}

TEST_F(MoveAnimationsTest, TwoGreensAtTheEndLeaveNothingToCloseUp)
{
    moves().twoGreensDisappear("YGG", 3, 1);
    wait(0.75);
    std::vector<std::string> added;
    table().setNewObjectListener([&](const std::string& key) { added.push_back(key); });
    wait(0.5);
    EXPECT_TRUE(added.empty());
    EXPECT_THAT(chips(), ElementsAre("chip-0-3"));
}

TEST_F(MoveAnimationsTest, FirstAndThirdCrossOver)
{
    moves().flipFirstAndThird("RYBG", 1, 1);
    const auto yellow = object("chip-1-1");
    const auto green = object("chip-3-1");
    wait(0.75 - kInstant);
    EXPECT_EQ(object("chip-1-1"), yellow);
    wait(kInstant);
    EXPECT_EQ(row(1), "RGBY");
    EXPECT_EQ(object("chip-3-1"), yellow);
    EXPECT_EQ(object("chip-1-1"), green);
    EXPECT_EQ(x("chip-3-1"), column(3));
    EXPECT_EQ(x("chip-1-1"), column(1));
    EXPECT_EQ(yellow->keyInGameData(), "chip-3-1");
}

TEST_F(MoveAnimationsTest, ABlueFadesInBetweenTwoGreens)
{
    moves().splitGreensWithBlue("YGG", 1, 1);
    const auto second = object("chip-2-1");
    wait(0.75);
    EXPECT_THAT(chips(), ElementsAre("chip-0-1", "chip-1-1", "chip-3-1"));
    EXPECT_EQ(object("chip-3-1"), second);
    EXPECT_EQ(x("chip-3-1"), column(3));
    wait(0.75 - kInstant);
    EXPECT_FALSE(table().contains("chip-2-1"));
    std::optional<Look> added;
    table().setNewObjectListener([&](const std::string& key) { added = lookOf(*object(key)); });
    wait(kInstant);
    EXPECT_EQ(added, (Look { "BlueChip", column(2), yPositionForRow(1), 0.075, 0.075, 0.0 }));
    EXPECT_EQ(object("chip-2-1")->opacity(), 1.0);
    EXPECT_EQ(row(1), "YGBG");
}

TEST_F(MoveAnimationsTest, AllAfterTheFirstGreenStepsRightForTheBlue)
{
    moves().splitGreensWithBlue("GGRB", 1, 0);
    wait(1.5);
    EXPECT_EQ(row(1), "GBGRB");
    for (unsigned number = 0; number < 5; ++number) {
        EXPECT_EQ(x(generateKeyChipKey(number, 1)), column(number));
    }
}

TEST_F(MoveAnimationsTest, WhatStandsBetweenTwoBluesFallsAndTheRestClosesUp)
{
    moves().dropBetweenBlues("YBRGBR", 4, 1, 4);
    const auto secondBlue = object("chip-4-4");
    wait(0.75);
    EXPECT_EQ(y("chip-2-4"), -0.1);
    EXPECT_EQ(y("chip-3-4"), -0.1);
    EXPECT_EQ(y("chip-1-4"), yPositionForRow(4));
    EXPECT_EQ(y("chip-4-4"), yPositionForRow(4));
    wait(0.5 - kInstant);
    EXPECT_EQ(row(4), "YBRGBR");
    wait(kInstant);
    EXPECT_EQ(row(4), "YBBR");
    EXPECT_EQ(chips().size(), 4U);
    EXPECT_EQ(object("chip-2-4"), secondBlue);
    EXPECT_EQ(x("chip-2-4"), column(2));
    EXPECT_EQ(x("chip-3-4"), column(3));
}

TEST_F(MoveAnimationsTest, PhasesOfALineThatHasGoneStillRunAndPassOverMissingChips)
{
    moves().addGreenToEnd("YR", 1);
    moves().threeRedsToOneGreen("YRRR", 2, 1);
    moves().twoGreensDisappear("YGGR", 3, 1);
    moves().flipFirstAndThird("YRG", 4, 0);
    moves().dropBetweenBlues("YBRBG", 5, 1, 3);
    wait(0.6);
    table().removeAllEntries();
    wait(2.0);
    // Only what the phases make themselves is there.
    EXPECT_THAT(table().keys(), ElementsAre("chip-1-2", "chip-2-1"));
}

TEST_F(MoveAnimationsTest, WhatIsAbandonedGoesNoFurtherAndLeavesNoChipBetween)
{
    moves().threeRedsToOneGreen("YRRRG", 2, 1);
    std::vector<std::string> added;
    table().setNewObjectListener([&](const std::string& key) { added.push_back(key); });
    wait(1.5 - kInstant);
    moves().abandonAll();
    wait(2.0);
    EXPECT_THAT(added, ElementsAre("delete-2")); // the row's button belongs to the row
    EXPECT_EQ(row(2), "YRRRG");

    moves().threeRedsToOneGreen("YRRRG", 3, 1);
    wait(0.75); // the chip between stands for no time at all: put one there
    table().addGameObject(
        std::make_shared<GameObject>("GreenChip", 0.5, 0.5, 0.1, 0.1, 1.0, true), "temporaryGreen");
    moves().abandonAll();
    EXPECT_FALSE(table().contains("temporaryGreen"));
}

TEST_F(MoveAnimationsTest, WhatBeginsAfterAnAbandonedOneIsPlayedOut)
{
    moves().addGreenToEnd("YR", 1);
    moves().abandonAll();
    moves().addGreenToEnd("YR", 2);
    wait(2.0);
    EXPECT_EQ(row(1), "YR");
    EXPECT_EQ(row(2), "YRG");
}

TEST_F(MoveAnimationsTest, NoGreenComesOutFromUnderNoChip)
{
    moves().addGreenToEnd("", 1);
    wait(2.0);
    EXPECT_THAT(chips(), ElementsAre());
}

} // namespace veyrand::board
