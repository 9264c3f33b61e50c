#include "engine/HintHelper.h"

#include "EngineSupport.h"

#include <gtest/gtest.h>

namespace veyrand::engine {
namespace {

// A proof with the given lines standing; the first is its root.
std::shared_ptr<Proof> proofWith(const std::vector<std::string>& lines, const std::string& goal)
{
    auto proof = std::make_shared<Proof>(line(lines.front()), line(goal), sevenMoves());
    for (std::size_t i = 1; i < lines.size(); ++i) {
        proof->appendLine(line(lines[i]));
    }
    return proof;
}

TEST(HintHelper, NamesTheNextLine)
{
    const HintHelper helper(proofWith({ "YR" }, "YRRGRRG"));
    EXPECT_EQ(helper.nextTheorem(), line("YRR"));
    EXPECT_EQ(helper.solution()->size(), 4U);
    EXPECT_EQ(helper.lastGoodRow(), 0U);
}

TEST(HintHelper, CountsTheChipsOfTheNextLine)
{
    const HintHelper helper(proofWith({ "YR", "YRR" }, "YRRGRRG"));
    ASSERT_EQ(helper.nextTheorem(), line("YRRG"));
    EXPECT_EQ(helper.nextTheoremAsMatrix(),
        (HintMatrix { { 'Y', 1U }, { 'R', 2U }, { 'G', 1U }, { 'B', 0U } }));
}

TEST(HintHelper, AGoodLastLineIsTheLastGoodRow)
{
    const HintHelper helper(proofWith({ "YR", "YRR" }, "YRRGRRG"));
    EXPECT_EQ(helper.lastGoodRow(), 1U);
}

TEST(HintHelper, AnswersNothingWhereTheLastLineLeadsNowhere)
{
    // Nothing can be done with a single green; the row before it is good.
    const HintHelper helper(proofWith({ "YR", "YRR", "G" }, "YRRG"));
    EXPECT_EQ(helper.solution(), std::nullopt);
    EXPECT_EQ(helper.nextTheorem(), std::nullopt);
    EXPECT_EQ(helper.nextTheoremAsMatrix(), std::nullopt);
    EXPECT_EQ(helper.lastGoodRow(), 1U);
}

TEST(HintHelper, GoesBackWhereTheWayRunsThroughALineThatStands)
{
    // The way on is YGGGG, YGG, Y.
    const HintHelper helper(proofWith({ "YGG", "YGGGG" }, "Y"));
    ASSERT_TRUE(helper.solution());
    EXPECT_EQ(helper.nextTheorem(), std::nullopt);
    EXPECT_EQ(helper.nextTheoremAsMatrix(), std::nullopt);
    EXPECT_EQ(helper.lastGoodRow(), 0U);
}

TEST(HintHelper, TheFirstNodeOfTheWayIsNotHeldAgainstTheLines)
{
    const HintHelper helper(proofWith({ "YR", "YRR" }, "YRRG"));
    EXPECT_EQ(helper.nextTheorem(), line("YRRG")); // though YRR itself stands
}

TEST(HintHelper, ARootWithAGoalOutOfReachIsItsOwnLastGoodRow)
{
    const HintHelper helper(proofWith({ "YR" }, "B"));
    EXPECT_EQ(helper.nextTheorem(), std::nullopt);
    EXPECT_EQ(helper.lastGoodRow(), 0U);
}

TEST(HintHelper, AnswersRowZeroWhereNoRowIsGood)
{
    const HintHelper helper(proofWith({ "YR", "YRR", "YRRG" }, "B"));
    EXPECT_EQ(helper.lastGoodRow(), 0U);
}

TEST(HintHelper, AClearedBoardHasNothingToGoBackTo)
{
    const auto proof = std::make_shared<Proof>(line("YR"), line("YRG"), sevenMoves());
    proof->removeLine(0);
    const HintHelper helper(proof);
    EXPECT_EQ(helper.nextTheorem(), std::nullopt);
    EXPECT_EQ(helper.lastGoodRow(), 0U);
}

TEST(HintHelper, ThirteenLinesLeaveNoRoomForAnother)
{
    std::vector<std::string> lines(13, "YR");
    EXPECT_EQ(HintHelper(proofWith(lines, "YRG")).solution(), std::nullopt);
    EXPECT_EQ(HintHelper(proofWith(lines, "YRG")).lastGoodRow(), 11U);
    lines.pop_back();
    EXPECT_TRUE(HintHelper(proofWith(lines, "YRG")).solution());
}

TEST(HintHelper, MoreLinesThanTheBoardHasLeaveNoRoomEither)
{
    // One line more, and the room would be counted below zero.
    for (const std::size_t count : { 14U, 15U, 20U }) {
        const HintHelper helper(proofWith(std::vector<std::string>(count, "YR"), "YRG"));
        EXPECT_EQ(helper.solution(), std::nullopt);
        EXPECT_EQ(helper.lastGoodRow(), 11U);
    }
}

TEST(HintHelper, TheWayOnMustFitOnTheBoard)
{
    // YRRGRRG is three moves from YR, so ten lines may stand and eleven may not.
    EXPECT_TRUE(HintHelper(proofWith(std::vector<std::string>(10, "YR"), "YRRGRRG")).solution());
    EXPECT_FALSE(HintHelper(proofWith(std::vector<std::string>(11, "YR"), "YRRGRRG")).solution());
}

TEST(HintHelper, ASolvedProofHasNoNextLine)
{
    // The way back to the goal ends in a line that stands: the goal itself.
    const HintHelper helper(proofWith({ "YGG" }, "YGG"));
    ASSERT_TRUE(helper.solution());
    EXPECT_EQ(helper.nextTheorem(), std::nullopt);
}

} // namespace
} // namespace veyrand::engine
