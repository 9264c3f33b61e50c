#include "board/BoardGeometry.h"

#include "board/GameData.h"
#include "support/BoardFakes.h"

#include <gtest/gtest.h>
#include <tuple>

namespace veyrand::board {

TEST(BoardGeometry, ColumnsBeginAHairPastSeventyTwoHundredths)
{
    EXPECT_EQ(xPositionForColumn(0), 0.7200000000000001);
    EXPECT_NE(xPositionForColumn(0), 0.72);
    EXPECT_EQ(xPositionForColumn(1), 0.075 * 1 + 0.7200000000000001);
    EXPECT_EQ(xPositionForColumn(11), 0.075 * 11 + 0.7200000000000001);
}

TEST(BoardGeometry, RowsGoDownFromTheTopToTheGoal)
{
    EXPECT_EQ(yPositionForRow(0), 0.95);
    EXPECT_EQ(yPositionForRow(1), 0.875);
    EXPECT_EQ(yPositionForRow(12), 0.050000000000000044);
}

TEST(BoardGeometry, KeysNameColumnThenRowWithoutLeadingZeros)
{
    EXPECT_EQ(generateKeyChipKey(4, 0), "chip-4-0");
    EXPECT_EQ(generateKeyChipKey(11, 10), "chip-11-10");
    EXPECT_EQ(chipKey("goal", 0, kGoalRow), "goal-0-12");
    EXPECT_EQ(chipKey("hint", 3, kHintRow), "hint-3-99");
    EXPECT_EQ(deleteButtonKey(7), "delete-7");
}

TEST(BoardGeometry, ALetterThatIsNoColourDrawsTheManyColouredChip)
{
    EXPECT_EQ(imageForLetter('Y'), "YellowChip");
    EXPECT_EQ(imageForLetter('R'), "RedChip");
    EXPECT_EQ(imageForLetter('G'), "GreenChip");
    EXPECT_EQ(imageForLetter('B'), "BlueChip");
    for (const char letter : { 'X', 'y', '-', ' ' }) {
        EXPECT_EQ(imageForLetter(letter), "MultiChip") << letter;
    }
}

TEST(BoardGeometry, TheGameAreaIsTheLargestSixteenToTenThatFits)
{
    using platform::Size;
    const std::tuple<Size, Size> cases[] = {
        { { 1920, 1080 }, { 1728, 1080 } },
        { { 1280, 1024 }, { 1280, 800 } },
        { { 1440, 900 }, { 1440, 900 } },
        { { 2560, 1440 }, { 2304, 1440 } },
        { { 800, 800 }, { 800, 500 } },
    };
    for (const auto& [screen, game] : cases) {
        EXPECT_EQ(gameSizeForScreen(screen), game) << screen.width << "x" << screen.height;
    }
}

TEST(GameData, TheGameAreaFitsTheScreen)
{
    const GameData data({ .width = 1920, .height = 1080 });
    EXPECT_EQ(data.gameWidth(), 1728);
    EXPECT_EQ(data.gameHeight(), 1080);
}

TEST(GameData, TheSharedOneIsMadeOnce)
{
    GameData& data = GameData::sharedGameData({ .width = 1440, .height = 900 });
    EXPECT_EQ(&GameData::sharedGameData({ .width = 800, .height = 500 }), &data);
    EXPECT_EQ(data.gameHeight(), 900);
}

} // namespace veyrand::board
