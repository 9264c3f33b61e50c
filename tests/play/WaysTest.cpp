#include "play/Ways.h"

#include "play/Decide.h"
#include "progress/RuleSets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::play {

using engine::PackedLine;
using ::testing::ElementsAre;

namespace {

PackedLine lineOf(const char* text)
{
    return PackedLine::pack(text).value();
}

std::optional<Ways> waysOf(const char* from, const char* goal, unsigned standing = 1)
{
    static WaySearch search;
    return search.find(lineOf(from), lineOf(goal), standing);
}

std::vector<std::string> textsOf(const std::vector<PackedLine>& lines)
{
    std::vector<std::string> texts;
    for (const PackedLine line : lines) {
        texts.push_back(line.text());
    }
    return texts;
}

// What the board accepts, gesture by gesture: ways of exactly so many moves.
std::uint64_t waysByGestures(
    std::vector<engine::Theorem>& lines, const engine::Theorem& goal, unsigned moves)
{
    if (moves == 0) {
        return lines.back() == goal ? 1 : 0;
    }
    const Position position { .lines = lines, .goal = goal, .open = progress::kMoveCount };
    std::vector<engine::Theorem> next;
    for (const Gesture& gesture : actions(position)) {
        const auto move = std::get<Move>(std::get<Action>(decide(position, gesture)));
        const auto line = lineAfter(lines.back(), move).value();
        if (line != lines.back() && std::find(next.begin(), next.end(), line) == next.end()) {
            next.push_back(line);
        }
    }
    std::uint64_t ways = 0;
    for (const engine::Theorem& line : next) {
        lines.push_back(line);
        ways += waysByGestures(lines, goal, moves - 1);
        lines.pop_back();
    }
    return ways;
}

} // namespace

TEST(TheShortestWays, AreFoundAndCounted)
{
    const auto ways = waysOf("YRRRRRR", "YGG").value();
    EXPECT_EQ(ways.moves(), 2U);
    EXPECT_EQ(ways.count(), 2U);
    EXPECT_THAT(textsOf(ways.way(0)), ElementsAre("YRRRRRR", "YGRRR", "YGG"));
    EXPECT_THAT(textsOf(ways.way(1)), ElementsAre("YRRRRRR", "YRRRG", "YGG"));
    EXPECT_EQ(ways.needed(), only(progress::kThreeReds));
}

TEST(TheShortestWays, MeasureHowHardTheyAreToFind)
{
    EXPECT_EQ(waysOf("YR", "YRG")->bits(), 1.0); // one of two lines
    EXPECT_EQ(waysOf("YG", "YGGGG")->moves(), 2U);
}

// Nearly every pair of lines with a few moves between them, from one to four moves before the end
// of the board.
TEST(TheShortestWays, AreThoseThatTheBoardAccepts)
{
    for (const char* root : { "YR", "YRGGB", "YBGGBR", "YRRRG", "BRYGGRR" }) {
        for (unsigned standing = 9; standing <= 12; ++standing) {
            std::vector<engine::Theorem> lines(standing, engine::Theorem(root));
            const unsigned room = kMostLines - standing;
            const auto [goals, count] = [&] {
                std::vector<std::string> found { root, "YRB", "GG" };
                std::vector<PackedLine> next { lineOf(root) };
                for (unsigned moves = 0; moves < 2; ++moves) {
                    std::vector<PackedLine> after;
                    for (const PackedLine line : next) {
                        for (const Step& step : stepsFrom(line, play::kAllMoves)) {
                            after.push_back(step.line);
                            found.push_back(step.line.text());
                        }
                    }
                    next = after;
                }
                return std::pair(found, found.size());
            }();
            for (std::size_t i = 0; i < count; ++i) {
                unsigned moves = 1;
                std::uint64_t expected = 0;
                const engine::Theorem goal(goals[i]);
                while (moves <= room && (expected = waysByGestures(lines, goal, moves)) == 0) {
                    ++moves;
                }
                const auto ways = waysOf(root, goals[i].c_str(), standing);
                ASSERT_EQ(ways.has_value(), expected > 0) << root << ' ' << goals[i];
                if (ways) {
                    EXPECT_EQ(ways->moves(), moves) << root << ' ' << goals[i];
                    EXPECT_EQ(ways->count(), expected) << root << ' ' << goals[i];
                }
            }
        }
    }
}

TEST(TheShortestWays, EndWithAClickWhereOnlyOneLineIsLeft)
{
    EXPECT_TRUE(waysOf("YR", "YRG", 12)); // a click
    EXPECT_TRUE(waysOf("YRG", "GRY", 11));
    EXPECT_FALSE(waysOf("YRG", "GRY", 12)); // a drag
    EXPECT_FALSE(waysOf("YR", "YRG", 13));
}

TEST(TheShortestWays, LeaveTheGoalAndReturnToItWhereItStandsAlready)
{
    const auto ways = waysOf("YRGG", "YRGG");
    ASSERT_TRUE(ways);
    EXPECT_GT(ways->moves(), 0U);
    EXPECT_EQ(ways->lines().front().line, ways->lines().back().line);
}

// Doubling what stands to the right of a yellow that is last makes the same line, which is no move.
TEST(TheShortestWays, AreNoneWhereNothingMakesTheGoalAgain)
{
    EXPECT_FALSE(waysOf("Y", "Y"));
    EXPECT_FALSE(waysOf("GY", "GY"));
}

TEST(TheShortestWays, BackToALineAreMadeOfMoves)
{
    std::vector<std::string> all { "" };
    constexpr std::size_t kLongest = 4;
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (const char chip : { 'Y', 'R', 'G', 'B' }) {
            const bool isOneTooMany = chip == 'Y' && all[i].find('Y') != std::string::npos;
            if (all[i].size() < kLongest && !isOneTooMany) {
                all.push_back(all[i] + chip);
            }
        }
    }
    for (const std::string& line : all) {
        const auto ways = line.empty() ? std::nullopt : waysOf(line.c_str(), line.c_str());
        if (!ways) {
            continue;
        }
        const auto way = ways->way(ways->count() - 1);
        ASSERT_EQ(way.size(), ways->moves() + 1) << line;
        EXPECT_EQ(way.front().text(), line);
        for (std::size_t at = 1; at < way.size(); ++at) {
            EXPECT_NE(way[at - 1], way[at]) << line;
            EXPECT_TRUE(moveBetween(way[at - 1], way[at], play::kAllMoves)) << line;
        }
    }
}

// So a line that a gesture leaves as it is needs no place among the ways.
TEST(TheShortestWays, MissNoGestureThatLeavesALineAsItIs)
{
    for (const char* text : { "Y", "RY", "YG", "YGG", "YRRR", "YBB", "YBGB", "YRGR", "YGRG", "GYG",
             "RGYGR", "YBRB", "YGRG", "BYB" }) {
        const std::vector<engine::Theorem> lines { engine::Theorem(text) };
        const engine::Theorem goal("YRRRRRRRRRRR");
        const Position position { .lines = lines, .goal = goal, .open = progress::kMoveCount };
        for (const Gesture& gesture : actions(position)) {
            const auto move = std::get<Move>(std::get<Action>(decide(position, gesture)));
            EXPECT_NE(lineAfter(lines.back(), move), lines.back()) << text;
        }
    }
}

TEST(TheShortestWays, AreNoneWhereAColourIsMissing)
{
    EXPECT_FALSE(waysOf("YB", "YR"));
    EXPECT_FALSE(waysOf("RGG", "Y"));
    EXPECT_FALSE(waysOf("YR", "YY"));
}

TEST(TheShortestWays, AreEachAnother)
{
    const auto ways = waysOf("YGGRRR", "YGGRRRGG").value();
    std::vector<std::vector<std::string>> all;
    for (std::uint64_t i = 0; i < ways.count(); ++i) {
        const auto way = textsOf(ways.way(i));
        EXPECT_EQ(way.size(), ways.moves() + 1);
        for (std::size_t at = 1; at < way.size(); ++at) {
            EXPECT_TRUE(
                moveBetween(lineOf(way[at - 1].c_str()), lineOf(way[at].c_str()), play::kAllMoves));
        }
        EXPECT_EQ(std::count(all.begin(), all.end(), way), 0);
        all.push_back(way);
    }
}

TEST(AMoveBetweenLines, IsNoneWhereNoOpenMoveLeads)
{
    const auto three = only(progress::kThreeReds);
    EXPECT_EQ(
        moveBetween(lineOf("YRRRR"), lineOf("YRG"), three), (Move { progress::kThreeReds, 1 }));
    EXPECT_EQ(moveBetween(lineOf("YRRRR"), lineOf("YRG"), kAllMoves & ~three), std::nullopt);
    EXPECT_EQ(moveBetween(lineOf("YRRRR"), lineOf("B"), kAllMoves), std::nullopt);
}

} // namespace veyrand::play
