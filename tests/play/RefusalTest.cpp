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

TEST(ReasonTable, HasWordsForEachRefusalThatIsHeard)
{
    for (const ReasonEntry& entry : reasonTable()) {
        EXPECT_FALSE(entry.heard == Heard::No && entry.words.empty()) << entry.name;
    }
}

TEST(Refusal, IsHeardAsItsReasonSaysUnlessToldOtherwise)
{
    EXPECT_EQ(Refusal { Reason::BoardFull }.heard, Heard::No);
    EXPECT_EQ(Refusal { Reason::Lesson }.heard, Heard::Silent);
    EXPECT_EQ((Refusal { Reason::NotLastLine, 0, Heard::Silent }).heard, Heard::Silent);
}

TEST(Refusal, NamesTheMoveThatComesLaterByItsLabel)
{
    EXPECT_EQ(wordsFor({ Reason::NotOpen, labelOf(0) }), "Move #2 comes later.");
    EXPECT_EQ(wordsFor({ Reason::NotOpen, labelOf(3) }), "Move #4 comes later.");
    EXPECT_EQ(wordsFor({ Reason::TooLong }), "A line holds 12 chips at most.");
}

TEST(Refusal, TellsNothingWhereAPageTellsIt)
{
    EXPECT_EQ(wordsFor({ Reason::TooFewPoints }), "");
}

} // namespace veyrand::play
