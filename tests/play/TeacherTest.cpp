#include "play/Teacher.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

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

TEST(TheTeacher, LeadsNowhereWhereNoWayLeadsOn)
{
    Teacher teacher(engine::Theorem("YRRG"), kAllMoves);
    EXPECT_EQ(teacher.next(boardOf({ "YR", "YB" })), std::nullopt);
    EXPECT_EQ(teacher.next(boardOf({ "YR", "Y?" })), std::nullopt) << "no chip is called so";
}

// From random lines of random walks: what is said to be gone is gone, comes from nothing that is
// there, stood on the good line, and no way leads to the goal without it.
TEST(TheTeacher, SaysOfAColourThatItIsGoneWhereItIs)
{
    std::mt19937 random(3);
    WaySearch search;
    const auto packed = [](const engine::Theorem& line) {
        return engine::PackedLine::pack(line.theorem()).value();
    };
    const auto walkOn = [&](std::vector<engine::Theorem>& lines) {
        const auto steps = stepsFrom(packed(lines.back()), kAllMoves);
        if (!steps.empty()) {
            lines.emplace_back(steps[random() % steps.size()].line.text());
        }
    };
    std::set<char> gone;
    for (int walk = 0; walk < 400; ++walk) {
        std::string root;
        while (root.size() < 3 + random() % 5) {
            root += "YRGBRG"[random() % 6];
        }
        std::vector<engine::Theorem> lines { engine::Theorem(root) };
        std::vector<engine::Theorem> way = lines;
        for (auto steps = 1 + random() % 3; steps > 0; --steps) {
            walkOn(way);
            walkOn(lines);
        }
        const engine::Theorem goal = way.back();
        if (!search.find(packed(lines.front()), packed(goal))) {
            continue;
        }
        Teacher teacher(goal, kAllMoves);
        const Advice advice = teacher.about(lines);
        if (advice.moves || advice.why != DeadEnd::ColourGone) {
            continue;
        }
        gone.insert(advice.colour);
        const std::string& good = lines[advice.goodRow].theorem();
        EXPECT_EQ(lines.back().theorem().find(advice.colour), std::string::npos) << root;
        EXPECT_NE(good.find(advice.colour), std::string::npos) << root;
        EXPECT_TRUE(search.find(packed(lines[advice.goodRow]), packed(goal), advice.goodRow + 1));
        EXPECT_FALSE(search.find(packed(lines.back()), packed(goal))) << root;
    }
    EXPECT_EQ(std::string(gone.begin(), gone.end()), "GRY"); // blues come of all but the yellow
}

} // namespace veyrand::play
