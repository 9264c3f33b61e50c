#include "play/Teacher.h"

#include <gtest/gtest.h>

namespace veyrand::play {

namespace {

std::vector<engine::Theorem> boardOf(std::initializer_list<const char*> texts)
{
    return { texts.begin(), texts.end() };
}

Advice adviceFor(std::initializer_list<const char*> texts, const char* goal, int open = 7)
{
    return Teacher(engine::Theorem(goal), openMoves(open)).about(boardOf(texts));
}

} // namespace

TEST(TheTeacher, SaysHowManyMovesAreStillNeeded)
{
    EXPECT_EQ(adviceFor({ "YR" }, "YRRG").moves, 2U);
    EXPECT_EQ(adviceFor({ "YR", "YRR" }, "YRRG").moves, 1U);
    EXPECT_EQ(adviceFor({ "YRRRR" }, "YGR").moves, 1U);
}

TEST(TheTeacher, CountsOnlyMovesThatAreOpen)
{
    EXPECT_EQ(adviceFor({ "YRRRR" }, "YGR", 2).moves, std::nullopt);
}

TEST(TheTeacher, KnowsWhereTheLastGoodLineStands)
{
    // The blue can never go again.
    const Advice advice = adviceFor({ "YGG", "YGGGG", "YGBGGG" }, "YGGGGGGGG");
    EXPECT_EQ(advice.moves, std::nullopt);
    EXPECT_EQ(advice.goodRow, 1U);
}

TEST(TheTeacher, SaysWhichColourIsGone)
{
    Advice advice = adviceFor({ "YRRR", "YG" }, "YRRRG");
    EXPECT_EQ(advice.why, DeadEnd::ColourGone);
    EXPECT_EQ(advice.colour, 'R');
    EXPECT_EQ(advice.goodRow, 0U);
    // The goal has no yellow, but every way begins by doubling.
    advice = adviceFor({ "BYBR", "BBR" }, "BBRBR");
    EXPECT_EQ(advice.moves, std::nullopt);
    EXPECT_EQ(advice.colour, 'Y');
    EXPECT_EQ(advice.goodRow, 0U);
}

TEST(TheTeacher, SaysWhenTooFewLinesAreLeft)
{
    const std::vector<engine::Theorem> full(12, engine::Theorem("YR"));
    const Advice advice = Teacher(engine::Theorem("YRRRRG"), kAllMoves).about(full);
    EXPECT_EQ(advice.moves, std::nullopt);
    EXPECT_EQ(advice.why, DeadEnd::TooFewLines);
}

TEST(TheTeacher, SaysWhenTheLineWouldGrowTooLong)
{
    // Doubled it has 13 chips; then the greens go, two at a time.
    const Advice advice = adviceFor({ "YRGGGBB" }, "YRGBBRGGGBB", 4);
    EXPECT_EQ(advice.moves, std::nullopt);
    EXPECT_EQ(advice.why, DeadEnd::TooLong);
}

TEST(TheTeacher, LeadsOnByAShortestWay)
{
    Teacher teacher(engine::Theorem("YRRG"), kAllMoves);
    auto proof = boardOf({ "YR" });
    for (unsigned left = 2; left > 0; --left) {
        EXPECT_EQ(teacher.about(proof).moves, left);
        proof.push_back(teacher.next(proof).value());
    }
    EXPECT_EQ(proof.back(), engine::Theorem("YRRG"));
}

} // namespace veyrand::play
