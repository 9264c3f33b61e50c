#include "catalogue/Metrics.h"

#include "catalogue/Certificate.h"
#include "exhaustive/ExhaustiveSearch.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::catalogue {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

namespace {

ShortestWays waysBetween(const char* root, const char* goal)
{
    Reach reach;
    reach.explore(packed(root), kMostMoves);
    return ShortestWays::find(reach, packed(goal)).value();
}

std::vector<std::string> textsOf(const std::vector<Step>& steps)
{
    std::vector<std::string> texts;
    for (const Step& step : steps) {
        texts.push_back(step.line.text());
    }
    return texts;
}

} // namespace

TEST(Steps, AreDifferentLinesThatFitAndThatTheOpenMovesMake)
{
    // The two pairs of greens make the same line, and that line once.
    EXPECT_THAT(textsOf(stepsFrom(packed("YGGG"), openMoves(4))), ElementsAre("YGGGGGG", "YG"));
    EXPECT_THAT(textsOf(stepsFrom(packed("YGGG"), kAllMoves)),
        ElementsAre("YGGGGGG", "YG", "GGYG", "YGBGG", "YGGBG"));
    EXPECT_THAT(textsOf(stepsFrom(packed("YRGRGRG"), openMoves(4))), ElementsAre()); // 13 chips
    EXPECT_THAT(textsOf(stepsFrom(packed("RY"), kAllMoves)), ElementsAre()); // itself doubled
}

// YR to YRGG: YRR, YRRRR, YRRRRG; the three reds at the end of the first four.
TEST(Metrics, OfAPuzzleCountedByHand)
{
    const ShortestWays ways = waysBetween("YR", "YRGG");
    EXPECT_EQ(ways.moves(), 4U);
    EXPECT_EQ(ways.count(), 1U);
    EXPECT_EQ(ways.needed(), only(0) | only(1) | only(2));
    EXPECT_EQ(ways.highestRule(), 3);
    const Metrics metrics = measure(ways, openMoves(3));
    // Two lines of YR, two of YRR, four of YRRRR, three of YRRRRG.
    EXPECT_DOUBLE_EQ(metrics.bits, 1 + 1 + 2 + std::log2(3.0));
    EXPECT_EQ(metrics.variety, 3U);
    EXPECT_EQ(metrics.changes, 2U);
    EXPECT_EQ(metrics.longestRun, 2U);
    EXPECT_EQ(metrics.detour, 2U); // YRRRRG has two chips more than YRGG
}

TEST(Metrics, CountEverySolutionOnce)
{
    const ShortestWays ways = waysBetween("YRRRRRR", "YGG");
    EXPECT_EQ(ways.count(), 2U); // from the left, or from the right
    EXPECT_EQ(textOf(ways.needed()), "2");
}

TEST(Metrics, FindOneLineNearerThanAnother)
{
    EXPECT_EQ(difference("YRG", "YRG"), 0U);
    EXPECT_EQ(difference("YRG", "YG"), 1U);
    EXPECT_EQ(difference("YRGB", "GRYB"), 2U);
    EXPECT_EQ(difference("", "YRG"), 3U);
}

TEST(Metrics, LikeShortSymmetricAndPlainLines)
{
    EXPECT_GT(looks("GGGGY"), looks("GRBGRRY"));
    EXPECT_GT(looks("YRGGR"), looks("YRRGR"));
    EXPECT_GT(looks("YRGRGRG"), looks("YRGGRRG"));
}

// The same moves, written down by hand and again in the rules.
TEST(ExhaustiveSearch, MakesTheLinesOfEveryMove)
{
    using exhaustive::linesAfter;
    EXPECT_THAT(linesAfter("YRR"), UnorderedElementsAre("YRRG", "YRRRR", "RRY"));
    EXPECT_THAT(
        linesAfter("YRRRR"), UnorderedElementsAre("YRRRRG", "YRRRRRRRR", "RRYRR", "YGR", "YRG"));
    EXPECT_THAT(linesAfter("BYGG"), UnorderedElementsAre("BYGGGG", "BGGY", "BY", "BYGBG"));
    EXPECT_THAT(linesAfter("YBRGBGB"), UnorderedElementsAre("RBYGBGB", "YBBGB", "YBRGBB"));
    EXPECT_THAT(linesAfter("YBB"), UnorderedElementsAre("YBBBB", "BBY"));
}

TEST(ExhaustiveSearch, CountsExactly)
{
    exhaustive::ExhaustiveSearch search("YR");
    EXPECT_EQ(search.distanceTo("YRGG", 11), 4U);
    EXPECT_EQ(search.distanceTo("YRGG", 3), std::nullopt);
    EXPECT_EQ(search.distanceTo("YRG", 11), 1U);
    EXPECT_EQ(exhaustive::ExhaustiveSearch("YB").distanceTo("YR", 11), std::nullopt);
}

TEST(Certificate, WritesMovesAsTheyAreReplayed)
{
    EXPECT_EQ(textOf(std::vector<Move> { { 3, 0 }, { 1, 2 } }), "3.0 1.2");
    EXPECT_EQ(textOf(MoveSet { 0 }), "-");
    EXPECT_EQ(textOfBits(1.5849625), "1.58");
    EXPECT_EQ(moveBetween(packed("YGGRGG"), packed("YGGR"), kAllMoves), (Move { 3, 1 }));
    EXPECT_EQ(moveBetween(packed("YR"), packed("YB"), kAllMoves), std::nullopt);
}

} // namespace veyrand::catalogue
