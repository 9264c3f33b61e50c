#include "play/Trail.h"

#include "progress/RuleSets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <set>

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

// The last line is the goal: nothing is needed after it, whichever move made it.
TEST(ASolution, IsMarkedToItsEndThoughItsLastMoveWasNotOpen)
{
    WaySearch search;
    auto trail = trailOf({ "YRRR", "YRRRG" }, { { progress::kGreenToEnd, 0 } });
    ASSERT_THAT(textsOfTrail(trail), ElementsAre("YRRR", "YRRRG"));
    markWhereItLeaves(trail, search, kAllMoves & ~only(progress::kGreenToEnd));
    EXPECT_THAT(costsOfTrail(trail), ElementsAre(0, 0));
    EXPECT_EQ(trail[1].instead, only(progress::kDoubling));
}

TEST(ASolution, IsLookedAtAsFarAsItsMovesAreThere)
{
    const auto trail = trailOf(kDoubledThenGreen,
        { { progress::kDoubling, 0 }, { progress::kThreeReds, 0 }, { progress::kGreenToEnd, 0 } });
    EXPECT_THAT(textsOfTrail(trail), ElementsAre("YR", "YRR"));
}

// Of random solutions: what each line costs is how many moves more are needed after it than should
// be.
TEST(ASolution, IsMarkedLineByLineWithWhatEachCosts)
{
    std::mt19937 random(17);
    WaySearch search;
    const auto left = [&search](const std::string& line, const std::string& goal, std::size_t row) {
        const auto ways = search.find(engine::PackedLine::pack(line).value(),
            engine::PackedLine::pack(goal).value(), static_cast<unsigned>(row) + 1);
        return ways ? ways->moves() : 0;
    };
    unsigned late = 0; // lines that leave a shortest way after the first
    for (int solution = 0; solution < 300; ++solution) {
        const char chip = "RGB"[random() % 3]; // first: arguments are evaluated in any order
        CodedPuzzle puzzle { "YR" + std::string(random() % 3, chip), "" };
        engine::PackedLine line = engine::PackedLine::pack(puzzle.root).value();
        std::vector<Move> moves;
        std::set<std::string> seen { puzzle.root };
        for (const auto count = 2 + random() % 4; moves.size() < count;) {
            const auto steps = stepsFrom(line, kAllMoves);
            if (steps.empty()) {
                break;
            }
            const auto next = steps[random() % steps.size()].line;
            moves.push_back(moveBetween(line, next, kAllMoves).value());
            line = next;
            puzzle.goal = line.text();
            seen.insert(puzzle.goal);
        }
        auto trail = trailOf(puzzle, moves);
        if (seen.size() < trail.size() || trail.size() < 3) {
            continue; // it comes by one line twice
        }
        markWhereItLeaves(trail, search, kAllMoves);
        for (std::size_t row = 1; row + 1 < trail.size(); ++row) {
            const unsigned before = left(trail[row - 1].line, puzzle.goal, row - 1);
            const unsigned after = left(trail[row].line, puzzle.goal, row);
            EXPECT_EQ(trail[row].more, after + 1 - before) << puzzle.root << ' ' << row;
            MoveSet instead = 0; // what begins a shortest way from the line before
            const auto stood = engine::PackedLine::pack(trail[row - 1].line).value();
            for (const Step& step : stepsFrom(stood, movesWith(static_cast<unsigned>(row)))) {
                const std::string text = step.line.text();
                const unsigned rest = left(text, puzzle.goal, row); // none: nought
                const bool isShortest
                    = text == puzzle.goal ? before == 1 : rest > 0 && rest + 1 == before;
                instead |= isShortest ? step.moves : 0;
            }
            EXPECT_EQ(trail[row].instead, after + 1 == before ? 0 : instead)
                << puzzle.root << ' ' << puzzle.goal << ' ' << row;
            late += row > 1 && trail[row].more > 0 && trail[row - 1].more == 0 ? 1 : 0;
        }
        EXPECT_EQ(trail.back().more, 0U);
    }
    EXPECT_GT(late, 5U);
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
