#include "play/Refusal.h"

#include <gtest/gtest.h>

namespace veyrand::play {

TEST(ReasonTable, HoldsEachReasonInItsPlace)
{
    std::size_t place = 0;
    for (const ReasonEntry& entry : reasonTable()) {
        EXPECT_EQ(static_cast<std::size_t>(entry.reason), place++) << entry.name;
        EXPECT_EQ(&entryOf(entry.reason), &entry);
        EXPECT_FALSE(entry.name.empty());
    }
    EXPECT_EQ(entryOf(Reason::NothingToRedo).name, "NothingToRedo");
}

TEST(Refusal, IsHeardAsItsReasonSaysUnlessToldOtherwise)
{
    EXPECT_EQ(Refusal { Reason::BoardFull }.heard, Heard::No);
    EXPECT_EQ(Refusal { Reason::Lesson }.heard, Heard::Silent);
    EXPECT_EQ((Refusal { Reason::NotLastLine, 0, Heard::Silent }).heard, Heard::Silent);
}

TEST(Refusal, CountsMovesAsTheirLabelsDo)
{
    EXPECT_EQ(labelOf(0), 2U);
    EXPECT_EQ(labelOf(1), 1U);
    EXPECT_EQ(labelOf(3), 4U);
}

} // namespace veyrand::play
