#include "catalogue/HumanSolver.h"
#include "catalogue/Kindness.h"
#include "catalogue/Likeness.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The second measure of difficulty, and how a puzzle treats those who err.

namespace veyrand::catalogue {

using ::testing::Contains;
using ::testing::Not;

namespace {

HumanSolver solverOf(const char* root, const char* goal, MoveSet open = kAllMoves)
{
    return { packed(root), packed(goal), open };
}

Kindness kindnessOf(const char* root, const char* goal, MoveSet open)
{
    Board board;
    board.explore(packed(root), open);
    return board.kindnessTo(packed(goal));
}

} // namespace

TEST(HumanSolver, TakesTheOneStepThereIs)
{
    EXPECT_EQ(solverOf("YRGGR", "YRR", openMoves(4)).medianSteps(), 1U);
    EXPECT_EQ(solverOf("YG", "YGGGG", openMoves(1)).medianSteps(), 2U);
}

TEST(HumanSolver, TakesTheSameStepsFromTheSameSeed)
{
    HumanSolver one = solverOf("YRRRR", "YR", openMoves(4));
    HumanSolver other = solverOf("YRRRR", "YR", openMoves(4));
    bool differ = false;
    for (std::uint32_t seed = 1; seed < 10; ++seed) {
        const unsigned steps = one.solve(seed);
        EXPECT_EQ(steps, other.solve(seed));
        EXPECT_GE(steps, 3U); // par
        differ = differ || steps != one.solve(1);
    }
    EXPECT_TRUE(differ);
}

TEST(HumanSolver, FindsAClosePuzzleHarderThanAPlainOne)
{
    EXPECT_GT(solverOf("YR", "Y").medianSteps(), 20 * solverOf("YRRGGRR", "RRGGRRY").medianSteps());
}

TEST(HumanSolver, GivesUp)
{
    EXPECT_EQ(solverOf("YB", "YR").solve(1, 500), 500U); // nothing makes a red of it
    EXPECT_EQ(solverOf("RY", "RYG").solve(1, 500), 500U); // nothing can be done at all
    EXPECT_EQ(solverOf("YB", "YR").medianSteps(3, 500), 500U);
}

TEST(HumanSolver, KnowsLinesOneMoveBeforeTheGoal)
{
    const auto before = linesBefore(packed("YRG"), openMoves(3));
    EXPECT_THAT(before, Contains(packed("YR"))); // a green at the end
    EXPECT_THAT(before, Contains(packed("YRRRR"))); // three reds
    EXPECT_THAT(linesBefore(packed("GRY"), kAllMoves), Contains(packed("YRG")));
    EXPECT_THAT(linesBefore(packed("GRY"), openMoves(4)), Not(Contains(packed("YRG"))));
    EXPECT_THAT(linesBefore(packed("RBB"), kAllMoves), Contains(packed("RBYB")));
}

TEST(Kindness, CountsWrongStepsAndThoseThatNothingMends)
{
    // YR, YRR, YRRG: a green too early or a red too many stays.
    const Kindness strict = kindnessOf("YR", "YRRG", openMoves(2));
    EXPECT_EQ(strict.wrongSteps, 2U);
    EXPECT_EQ(strict.deadSteps, 2U);
    EXPECT_FALSE(strict.hasNearPar());
    // YG, YGG, Y: from YGGGG two pairs lead on.
    const Kindness mild = kindnessOf("YG", "Y", openMoves(4));
    EXPECT_EQ(mild.wrongSteps, 1U);
    EXPECT_EQ(mild.deadSteps, 0U);
}

TEST(Kindness, FindsSolutionsNearPar)
{
    EXPECT_EQ(kindnessOf("YGG", "YGGGG", openMoves(4)).oneMore, 0U);
    EXPECT_TRUE(kindnessOf("YRRRRG", "YRRRR", openMoves(4)).hasNearPar());
}

TEST(Greed, SolvesWhatIsPlainAndNothingElse)
{
    EXPECT_TRUE(fallsToGreed(packed("YRGGR"), packed("YRR"), kAllMoves));
    EXPECT_TRUE(fallsToGreed(packed("YRRGGRR"), packed("RRGGRRY"), openMoves(5)));
    EXPECT_FALSE(fallsToGreed(packed("YR"), packed("YRGG"), openMoves(3)));
}

TEST(Likeness, IsOfMovesAndOfLines)
{
    const Way one { "1", { "YR", "YRR" } };
    const Way other { "1", { "YG", "YGG" } };
    EXPECT_DOUBLE_EQ(likeness(one, one), 1.0);
    EXPECT_NEAR(likeness(one, other), (1 + (1 - (1.0 / 2 + 2.0 / 3) / 2)) / 2, 1e-9);
    const Way longer { "12", { "YR", "YRR", "YRRG" } };
    EXPECT_NEAR(likeness(one, longer), (0.5 + (1 - 1.0 / 3)) / 2, 1e-9);
    EXPECT_DOUBLE_EQ(likeness(longer, one), likeness(one, longer));
}

} // namespace veyrand::catalogue
