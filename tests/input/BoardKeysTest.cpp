#include "input/BoardKeys.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace veyrand::input {

TEST(BoardKeys, TheRowIsTheNumberAtTheEnd)
{
    EXPECT_EQ(rowForKey("chip-3-2"), 2U);
    EXPECT_EQ(rowForKey("chip-0-11"), 11U);
    EXPECT_EQ(rowForKey("hint-3-99"), 99U);
    EXPECT_EQ(rowForKey("goal-11-12"), 12U);
}

TEST(BoardKeys, TheColumnIsTheNumberBetweenTheDashes)
{
    EXPECT_EQ(columnForKey("chip-3-2"), 3U);
    EXPECT_EQ(columnForKey("chip-5-10"), 5U);
    EXPECT_EQ(columnForKey("chip-12-0"), 12U);
}

TEST(BoardKeys, ADeleteButtonsRowIsItsNumber)
{
    EXPECT_EQ(rowForDeleteButton("delete-7"), 7U);
    EXPECT_EQ(rowForDeleteButton("delete-10"), 10U);
}

TEST(BoardKeys, AKeyWithoutTheNumberIsTheCallersMistake)
{
    EXPECT_THROW(rowForKey("button-lightbulbon"), std::out_of_range);
    EXPECT_THROW(columnForKey("delete-7"), std::out_of_range);
    EXPECT_THROW(rowForDeleteButton("checkmark"), std::out_of_range);
}

TEST(BoardKeys, EveryKindOfKeyIsToldByItsBeginning)
{
    EXPECT_TRUE(isChipKey("chip-0-0"));
    EXPECT_TRUE(isDeleteKey("delete-1"));
    EXPECT_TRUE(isButtonKey("button-lightbulbon"));
    EXPECT_TRUE(isButtonKey("fullScreen-3i"));
    for (const char* key : { "", "chi", "goal-0-12", "hint-0-99", "delet", "butto", "full",
             "checkmark", "label-points", "counter-score" }) {
        EXPECT_FALSE(isChipKey(key)) << key;
        EXPECT_FALSE(isDeleteKey(key)) << key;
        EXPECT_FALSE(isButtonKey(key)) << key;
    }
}

} // namespace veyrand::input
