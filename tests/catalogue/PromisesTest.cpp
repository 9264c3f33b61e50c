#include "catalogue/Promises.h"

#include "catalogue/Figures.h"
#include "catalogue/Ideas.h"
#include "catalogue/Steps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::catalogue {

using ::testing::Contains;
using ::testing::UnorderedElementsAre;

namespace {

bool doesKeep(Promise promise, const char* root, const char* goal, MoveSet needed = kAllMoves)
{
    return keeps({ root, goal, 1 }, needed, promise);
}

std::vector<std::string> ideasBetween(const char* root, const char* goal)
{
    Reach reach;
    reach.explore(packed(root), kMostMoves);
    return namesOf(ideasOf(ShortestWays::find(reach, packed(goal)).value()));
}

} // namespace

TEST(Promises, AreSeenInTheTwoLines)
{
    EXPECT_TRUE(doesKeep(Promise::Undo, "YRGGRGG", "YRGG")); // doubled
    EXPECT_TRUE(doesKeep(Promise::Undo, "YRRRRG", "YRRRR")); // a green at the end
    EXPECT_FALSE(doesKeep(Promise::Undo, "YRRRR", "YR")); // doubled twice
    EXPECT_FALSE(doesKeep(Promise::Undo, "RGY", "YGR")); // by a move that comes later
    EXPECT_TRUE(doesKeep(Promise::Mirror, "YRRGG", "GGRRY"));
    EXPECT_FALSE(doesKeep(Promise::Mirror, "YGR", "GRY"));
    EXPECT_TRUE(doesKeep(Promise::GreensTurnBlue, "YGGGG", "YBGGB"));
    EXPECT_FALSE(doesKeep(Promise::GreensTurnBlue, "YRGG", "YBGB"));
    EXPECT_TRUE(doesKeep(Promise::WhatLiesBetween, "YBRGB", "YBB", only(6)));
    EXPECT_FALSE(doesKeep(Promise::WhatLiesBetween, "YBRGB", "YBB", only(5)));
    EXPECT_FALSE(doesKeep(Promise::WhatLiesBetween, "YBRB", "RBB", only(6)));
    EXPECT_TRUE(doesKeep(Promise::OneChipApart, "YG", "YB"));
    EXPECT_FALSE(doesKeep(Promise::OneChipApart, "YGG", "YBB"));
    EXPECT_TRUE(doesKeep(Promise::Carried, "YGR", "GRY"));
    EXPECT_FALSE(doesKeep(Promise::Carried, "YGR", "RGY"));
    EXPECT_TRUE(doesKeep(Promise::WithoutYellow, "YRG", "RG"));
    EXPECT_TRUE(doesKeep(Promise::FromAlmostNothing, "YRR", "RBYGGB"));
    EXPECT_FALSE(doesKeep(Promise::FromAlmostNothing, "YRRG", "Y"));
    EXPECT_TRUE(doesKeep(Promise::BothSidesAlike, "YRG", "GBYBG"));
    EXPECT_FALSE(doesKeep(Promise::BothSidesAlike, "YRG", "GBRBG"));
}

TEST(Promises, RepaintAColourWherever)
{
    EXPECT_EQ(paintOf({ "YRRGR", "YGGRG", 6 }), "GRB"); // changed for each other
    EXPECT_EQ(paintOf({ "YGRGR", "YGBGB", 8 }), "BGB");
    EXPECT_EQ(paintOf({ "YRGR", "YRGB", 8 }), std::nullopt); // one of two
    EXPECT_EQ(paintOf({ "YRG", "GRY", 1 }), std::nullopt);
    EXPECT_EQ(paintOf({ "YRG", "YRG", 1 }), std::nullopt);
}

TEST(Promises, OfTheCarriedYellowTakeTheMirrorToo)
{
    EXPECT_TRUE(keepsPromiseOf(8, { "YRRGG", "GGRRY", 7 }, kAllMoves));
    EXPECT_FALSE(keepsPromiseOf(8, { "YRRGG", "GRGRY", 7 }, kAllMoves));
    EXPECT_FALSE(keepsPromiseOf(3, { "YGR", "GRY", 8 }, kAllMoves));
}

TEST(Ideas, AreWhatBefallsTheChips)
{
    EXPECT_THAT(ideasBetween("YRRRR", "YR"),
        UnorderedElementsAre("a cap is spent", "a made green is spent"));
    EXPECT_THAT(ideasBetween("YRR", "YRG"),
        UnorderedElementsAre("three reds at the seam", "a made green stays"));
    EXPECT_THAT(ideasBetween("YRG", "GRY"),
        UnorderedElementsAre("the jump comes first", "the jump comes last"));
    EXPECT_THAT(ideasBetween("YBG", "YBBG"),
        UnorderedElementsAre(
            "a blue is doubled", "cut to its own double", "given chips are swallowed"));
    EXPECT_THAT(ideasBetween("YBRB", "RBB"),
        UnorderedElementsAre("the jump comes first", "the yellow is swallowed"));
}

TEST(Ideas, AreThoseOfEveryShortestSolution)
{
    // YR, YRR, YRRRR: then the first three reds or the last.
    EXPECT_THAT(ideasBetween("YR", "YRGG"), Contains("doubled twice"));
    EXPECT_THAT(ideasBetween("YRRRRRR", "YGG"), Contains("three reds twice"));
}

TEST(Figures, TellHowFarALevelRises)
{
    std::array<Evidence, progress::kLastStage> puzzles;
    Level level {};
    for (std::size_t i = 0; i < puzzles.size(); ++i) {
        puzzles.at(i).steps = static_cast<unsigned>(i) * 10 + 1;
        level.at(i) = &puzzles.at(i);
    }
    EXPECT_DOUBLE_EQ(rankCorrelation(level), 1.0);
    std::swap(level.at(0), level.at(9));
    EXPECT_NEAR(rankCorrelation(level), 1 - 6.0 * 162 / 990, 1e-9);
    EXPECT_DOUBLE_EQ(timesApart(puzzles.at(0), puzzles.at(8)), 81.0);
}

} // namespace veyrand::catalogue
