#include "play/Trail.h"

#include "progress/RuleSets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::play {

using ::testing::ElementsAre;

namespace {

std::vector<std::string> textsOfTrail(const std::vector<TrailStep>& trail)
{
    std::vector<std::string> lines;
    for (const TrailStep& step : trail) {
        lines.push_back(step.line);
    }
    return lines;
}

std::vector<unsigned> costsOfTrail(const std::vector<TrailStep>& trail)
{
    std::vector<unsigned> costs;
    for (const TrailStep& step : trail) {
        costs.push_back(step.more);
    }
    return costs;
}

const CodedPuzzle kDoubledThenGreen { "YR", "YRRG" }; // double, then a green at the end

} // namespace

TEST(ASolution, IsLookedAtLineByLine)
{
    const auto trail
        = trailOf(kDoubledThenGreen, { { progress::kDoubling, 0 }, { progress::kGreenToEnd, 0 } });
    EXPECT_THAT(textsOfTrail(trail), ElementsAre("YR", "YRR", "YRRG"));
    EXPECT_EQ(trail[1].move.rule, progress::kDoubling);
    EXPECT_EQ(trail[2].move.rule, progress::kGreenToEnd);
}

TEST(ASolution, ThatIsAShortestLeavesNone)
{
    WaySearch search;
    auto trail
        = trailOf(kDoubledThenGreen, { { progress::kDoubling, 0 }, { progress::kGreenToEnd, 0 } });
    markWhereItLeaves(trail, search, kAllMoves);
    EXPECT_THAT(costsOfTrail(trail), ElementsAre(0, 0, 0));
}

TEST(ASolution, IsMarkedWhereItLeavesTheShortestWays)
{
    WaySearch search;
    auto trail = trailOf({ "YR", "YRG" },
        { { progress::kDoubling, 0 }, { progress::kDoubling, 0 }, { progress::kThreeReds, 1 } });
    ASSERT_THAT(textsOfTrail(trail), ElementsAre("YR", "YRR", "YRRRR", "YRG"));
    markWhereItLeaves(trail, search, kAllMoves);
    EXPECT_THAT(costsOfTrail(trail), ElementsAre(0, 2, 0, 0)); // two moves are needed from YRR
    EXPECT_EQ(trail[1].instead, only(progress::kGreenToEnd));
}

TEST(AShortestWay, IsLookedAtLikeASolution)
{
    WaySearch search;
    const auto ways = search
                          .find(engine::PackedLine::pack("YRRRRRR").value(),
                              engine::PackedLine::pack("YGG").value())
                          .value();
    const auto trail = trailOf(ways, 1, kAllMoves);
    EXPECT_THAT(textsOfTrail(trail), ElementsAre("YRRRRRR", "YRRRG", "YGG"));
    EXPECT_EQ(trail[1].move, (Move { progress::kThreeReds, 3 }));
}

TEST(TheShortestWays, UseOnlyMovesThatAreOpen)
{
    WaySearch search;
    const auto from = engine::PackedLine::pack("YRRRR").value();
    const auto goal = engine::PackedLine::pack("YGR").value();
    EXPECT_EQ(search.find(from, goal)->moves(), 1U);
    EXPECT_FALSE(search.find(from, goal, 1, openMoves(2))); // three reds come third
    EXPECT_EQ(search.find(from, goal, 1, openMoves(3))->moves(), 1U);
}

TEST(OpenMoves, AreCountedAsThePlayerKnowsThem)
{
    EXPECT_EQ(openMoves(1), only(progress::kDoubling));
    EXPECT_EQ(openMoves(2), only(progress::kDoubling) | only(progress::kGreenToEnd));
    EXPECT_EQ(openMoves(5),
        kAllMoves & ~only(progress::kSplitGreens) & ~only(progress::kDropBetweenBlues));
    EXPECT_EQ(openMoves(6), kAllMoves); // the last two come together
    EXPECT_EQ(openMoves(7), kAllMoves);
}

TEST(TheStonesOfAMove, AreThoseThatWereTouched)
{
    EXPECT_EQ(stonesOf("BYRG", { progress::kDoubling, 0 }), (engine::Range { 1, 1 }));
    EXPECT_EQ(stonesOf("YRRRR", { progress::kThreeReds, 1 }), (engine::Range { 2, 3 }));
    EXPECT_FALSE(stonesOf("YB", { progress::kThreeReds, 0 }));
}

} // namespace veyrand::play
