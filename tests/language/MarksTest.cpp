#include "language/Marks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace veyrand::language {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Marks, PartATextIntoWordsChipsAndValues)
{
    const auto pieces = piecesOf("Drag {RRR drag} to make {G}: {rank}");
    ASSERT_EQ(pieces.size(), 6U);
    EXPECT_EQ(pieces[0].text, "Drag ");
    EXPECT_EQ(pieces[1].kind, Piece::Kind::Chips);
    EXPECT_EQ(pieces[1].text, "RRR");
    EXPECT_EQ(pieces[1].gesture, Piece::Gesture::Drag);
    EXPECT_EQ(pieces[3].gesture, Piece::Gesture::None);
    EXPECT_EQ(pieces[5].kind, Piece::Kind::Value);
    EXPECT_EQ(pieces[5].text, "rank");
    EXPECT_THAT(piecesOf(""), IsEmpty());
}

TEST(Marks, KnowTheChipsThatStandForAny)
{
    EXPECT_EQ(piecesOf("{Y?* drag}").front().text, "Y?*");
    EXPECT_EQ(piecesOf("{GG click}").front().gesture, Piece::Gesture::Click);
}

TEST(Marks, RefuseWhatNobodyKnows)
{
    for (const char* text : { "{X}", "{RRR pull}", "{Y", "Y}", "{{Y}}", "{}", "{Rank}", "{a b}" }) {
        EXPECT_THROW(static_cast<void>(piecesOf(text)), std::invalid_argument) << text;
    }
}

TEST(Marks, ListTheirValuesOnce)
{
    EXPECT_THAT(valuesIn("{points} of {all}, {points}, {Y}"), ElementsAre("all", "points"));
}

} // namespace veyrand::language
