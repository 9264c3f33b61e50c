#include "play/DailyPuzzles.h"

#include <gtest/gtest.h>

namespace veyrand::play {
namespace {

std::string listOf(std::size_t days, const std::string& monday = "2026-01-05")
{
    std::string text = monday;
    for (std::size_t i = 0; i < days; ++i) {
        const std::string goal = "YR" + std::string(1 + i % 7, 'G');
        text += '\n' + codeOf("YR", goal).value();
    }
    return text + '\n';
}

} // namespace

TEST(TheDailyPuzzle, IsTheOneOfItsDate)
{
    const DailyPuzzles puzzles(listOf(371));
    EXPECT_EQ(puzzles.fault(), "");
    EXPECT_EQ(puzzles.on({ 2026, 1, 5 }), &puzzles.puzzles()[0]);
    EXPECT_EQ(puzzles.on({ 2026, 1, 6 }), &puzzles.puzzles()[1]);
    EXPECT_EQ(puzzles.on({ 2027, 1, 10 }), &puzzles.puzzles()[370]);
}

TEST(TheDailyPuzzle, ComesAgainAfter53Weeks)
{
    const DailyPuzzles puzzles(listOf(371));
    EXPECT_EQ(puzzles.on({ 2027, 1, 11 }), &puzzles.puzzles()[0]);
    EXPECT_EQ(puzzles.on({ 2026, 1, 4 }), &puzzles.puzzles()[370]);
    EXPECT_EQ(puzzles.on({ 1999, 12, 31 }), puzzles.on(progress::daysAfter({ 1999, 12, 31 }, 371)));
}

TEST(TheDailyPuzzle, IsNoneWhereTheListIsBroken)
{
    EXPECT_EQ(DailyPuzzles("").fault(), "0 puzzles where there should be 371");
    EXPECT_EQ(DailyPuzzles(listOf(370)).fault(), "370 puzzles where there should be 371");
    EXPECT_EQ(DailyPuzzles(listOf(371, "2026-01-06")).fault(), "line 1: not the date of a Monday");
    EXPECT_EQ(DailyPuzzles("2026-01-05\n3373NECJ\n3373NECK\n").fault(),
        "line 3: There is a slip in this puzzle code: a letter is wrong, missing or in another's "
        "place.");
    EXPECT_EQ(DailyPuzzles("").on({ 2026, 1, 5 }), nullptr);
}

} // namespace veyrand::play
