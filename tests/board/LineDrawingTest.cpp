#include "board/BoardFixture.h"

#include <gmock/gmock.h>

namespace veyrand::board {

using ::testing::ElementsAre;
using LineDrawingTest = BoardTest;

TEST_F(LineDrawingTest, AChipStandsAtItsColumnAndRowAtFullSize)
{
    const auto chips = LineDrawing::chipsForTheorem("YX", 3);
    ASSERT_EQ(chips.size(), 2U);
    EXPECT_EQ(lookOf(*chips[0]),
        (Look { "YellowChip", 0.7200000000000001, 0.95 - 0.075 * 3, 0.075, 0.075, 1.0 }));
    EXPECT_EQ(chips[1]->imageName(), "MultiChip");
    EXPECT_EQ(chips[1]->x(), 0.075 + 0.7200000000000001);
    EXPECT_TRUE(chips[0]->visible());
    EXPECT_EQ(chips[0]->keyInGameData(), std::nullopt);
    EXPECT_TRUE(table().keys().empty());
}

TEST_F(LineDrawingTest, ALinesChipsAreKeyedByColumnAndRow)
{
    board().lines.createChipsForTheorem("YRG", 2);
    EXPECT_THAT(table().keys(), ElementsAre("chip-0-2", "chip-1-2", "chip-2-2"));
    EXPECT_EQ(row(2), "YRG");
}

TEST_F(LineDrawingTest, ChipsKeptApartAreKeyedButNotAdded)
{
    const auto chips
        = board().lines.createChipsForTheorem("YR", kHintRow, "hint", Adding::KeepApart);
    EXPECT_TRUE(table().keys().empty());
    EXPECT_EQ(chips[1]->keyInGameData(), "hint-1-99");
}

TEST_F(LineDrawingTest, ANewLineIsSentUpAndAtOnceBackDown)
{
    std::unique_ptr<test::RecordingObserver> observer;
    table().setNewObjectListener([&](const std::string& key) {
        if (key == "chip-1-3") {
            observer = std::make_unique<test::RecordingObserver>(table(), key);
        }
    });
    board().lines.introduceNewTheorem("YR", 3);
    ASSERT_EQ(observer->heard().size(), 2U);
    EXPECT_EQ(observer->heard()[0]->y(), yPositionForRow(2));
    EXPECT_EQ(observer->heard()[1]->y(), yPositionForRow(3));
}

TEST_F(LineDrawingTest, ANewLinesDeleteButtonComesHalfASecondLater)
{
    board().lines.introduceNewTheorem("YR", 3);
    wait(0.499999999);
    EXPECT_EQ(object("delete-3"), nullptr);
    wait(0.000000001);
    ASSERT_NE(object("delete-3"), nullptr);
    EXPECT_EQ(lookOf(*object("delete-3")),
        (Look { "Delete", 0.6450000000000001, 0.725, 0.0495, 0.0495, 1.0 }));
}

TEST_F(LineDrawingTest, ADeleteButtonFadesIn)
{
    double opacityWhenAdded = -1.0;
    table().setNewObjectListener(
        [&](const std::string& key) { opacityWhenAdded = object(key)->opacity(); });
    board().lines.createDeleteButton(1);
    EXPECT_EQ(opacityWhenAdded, 0.0);
}

TEST_F(LineDrawingTest, ADroppedLineShrinksAndGoesASecondLater)
{
    const auto chips = board().lines.createChipsForTheorem("YR", 1);
    board().lines.dropTheorem("YR", 1);
    EXPECT_EQ(object("chip-1-1")->width(), 0.0);
    EXPECT_EQ(object("chip-1-1")->height(), 0.0);
    wait(0.999999999);
    EXPECT_EQ(row(1), "YR");
    wait(0.000000001);
    EXPECT_TRUE(table().keys().empty());
    EXPECT_EQ(chips[0]->keyInGameData(), "chip-0-1"); // taken out directly
}

// The player may have played on meanwhile.
TEST_F(LineDrawingTest, ANewLineUnderADroppedLinesKeysLosesNoChips)
{
    board().lines.createChipsForTheorem("YRG", 1);
    board().lines.dropTheorem("YRG", 1);
    wait(0.95);
    board().lines.introduceNewTheorem("YR", 1);
    wait(0.05);
    EXPECT_THAT(table().keys(), ElementsAre("chip-0-1", "chip-1-1")); // the third has gone
    wait(2.0);
    EXPECT_EQ(row(1), "YR");
}

TEST_F(LineDrawingTest, ChipsAreMovedToARowAndHiddenTogether)
{
    const auto chips = board().lines.createChipsForTheorem("YR", 1);
    board().lines.setRow(4, chips);
    board().lines.setVisibile(false, chips);
    for (const auto& chip : chips) {
        EXPECT_EQ(chip->y(), yPositionForRow(4));
        EXPECT_FALSE(chip->visible());
    }
}

TEST_F(LineDrawingTest, SettlingLeavesARowThatReadsRightAlone)
{
    const auto chips = board().lines.createChipsForTheorem("YRG", 1);
    board().lines.settleRow("YRG", 1);
    EXPECT_EQ(object("chip-2-1"), chips[2]);
}

TEST_F(LineDrawingTest, SettlingDrawsARowAnewThatReadsOtherwise)
{
    board().lines.createChipsForTheorem("YBRGBB", 1);
    board().lines.settleRow("YBBB", 1);
    EXPECT_EQ(row(1), "YBBB");
    EXPECT_EQ(table().keys().size(), 4U);
}

// A row may read right although its chips were left in the wrong places.
TEST_F(LineDrawingTest, SettlingTakesChipsAwayThatStandPastTheEnd)
{
    board().lines.createChipsForTheorem("YRGG", 1);
    board().lines.settleRow("YR", 1);
    EXPECT_EQ(row(1), "YR");
    EXPECT_EQ(table().keys().size(), 2U);
}

} // namespace veyrand::board
