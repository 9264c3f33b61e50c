#include "controller/MoveDecision.h"

#include "progress/RuleSets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::controller {

using ::testing::ElementsAreArray;

namespace {

constexpr int kAllMoves = 7;

const engine::Rules& rules()
{
    static const engine::Rules rules = progress::advancedRules();
    return rules;
}

std::optional<MoveDecision> click(const char* line, unsigned column, int highestRule = kAllMoves)
{
    return decideClick(engine::Theorem(line), rules(), column, highestRule);
}

std::optional<MoveDecision> drag(
    const char* line, unsigned from, unsigned to, int highestRule = kAllMoves)
{
    return decideDrag(engine::Theorem(line), rules(), from, to, highestRule);
}

MoveDecision clicked(unsigned rule, unsigned match, MoveAnimation animation, unsigned column)
{
    return { rule, match, animation, column, 0, 0.75, LengthCheck::Needed };
}

MoveDecision dragged(unsigned rule, unsigned match, MoveAnimation animation, unsigned column,
    double delay = 0.75, unsigned endingColumn = 0)
{
    return { rule, match, animation, column, endingColumn, delay, LengthCheck::NotNeeded };
}

} // namespace

// The yellow chip, wherever it stands, if it is not the last: always open.
TEST(ClickDecision, TheYellowDoublesWhatFollowsIt)
{
    for (int highestRule = 1; highestRule <= kAllMoves; ++highestRule) {
        EXPECT_EQ(
            click("YR", 0, highestRule), clicked(1, 0, MoveAnimation::DoubleAllAfterColumn, 0))
            << highestRule;
    }
    EXPECT_EQ(click("RGYB", 2), clicked(1, 0, MoveAnimation::DoubleAllAfterColumn, 2));
    EXPECT_EQ(click("Y", 0), std::nullopt);
    EXPECT_EQ(click("RGY", 2), std::nullopt);
}

TEST(ClickDecision, ARedAtTheEndAddsAGreenThere)
{
    EXPECT_EQ(click("YR", 1, 2), clicked(0, 0, MoveAnimation::AddGreenToEnd, 2));
    EXPECT_EQ(click("YRGRR", 4), clicked(0, 0, MoveAnimation::AddGreenToEnd, 5));
    EXPECT_EQ(click("YR", 1, 1), std::nullopt);
    EXPECT_EQ(click("YRG", 1), std::nullopt); // a red elsewhere
    EXPECT_EQ(click("YRR", 1), std::nullopt);
    EXPECT_EQ(click("YRG", 2), std::nullopt); // another chip at the end
    EXPECT_EQ(click("YRB", 2), std::nullopt);
}

TEST(ClickDecision, TheFirstOfTwoGreensLetsABlueBetweenThem)
{
    EXPECT_EQ(click("YGG", 1, 6), clicked(5, 0, MoveAnimation::SplitGreensWithBlue, 1));
    EXPECT_EQ(click("YGGG", 2), clicked(5, 1, MoveAnimation::SplitGreensWithBlue, 2));
    EXPECT_EQ(click("YGGRGG", 4), clicked(5, 1, MoveAnimation::SplitGreensWithBlue, 4));
    EXPECT_EQ(click("YGG", 1, 5), std::nullopt);
    EXPECT_EQ(click("YGG", 2), std::nullopt); // the second of the pair
    EXPECT_EQ(click("YGR", 1), std::nullopt);
    EXPECT_EQ(click("YBB", 1), std::nullopt);
    EXPECT_EQ(click("YG", 1), std::nullopt);
}

TEST(ClickDecision, AColumnPastTheLineIsRefused)
{
    EXPECT_EQ(click("YR", 2), std::nullopt);
    EXPECT_EQ(click("YR", 99), std::nullopt);
}

TEST(DragDecision, ThreeRedsBecomeAGreenFromEitherEnd)
{
    const auto expected = dragged(2, 0, MoveAnimation::ThreeRedsToOneGreen, 1, 1.5);
    EXPECT_EQ(drag("YRRRG", 1, 3, 3), expected);
    EXPECT_EQ(drag("YRRRG", 3, 1, 3), expected);
    EXPECT_EQ(drag("YRRRR", 4, 2), dragged(2, 1, MoveAnimation::ThreeRedsToOneGreen, 2, 1.5));
    EXPECT_EQ(drag("YRRRG", 1, 3, 2), std::nullopt);
    EXPECT_EQ(drag("YRRRG", 1, 2), std::nullopt);
    EXPECT_EQ(drag("YRRRR", 1, 4), std::nullopt);
    EXPECT_EQ(drag("YRGR", 1, 3), std::nullopt);
}

TEST(DragDecision, TwoGreensVanishFromEitherEnd)
{
    const auto expected = dragged(3, 0, MoveAnimation::TwoGreensDisappear, 1);
    EXPECT_EQ(drag("YGG", 1, 2, 4), expected);
    EXPECT_EQ(drag("YGG", 2, 1, 4), expected);
    EXPECT_EQ(drag("YGGG", 3, 2), dragged(3, 1, MoveAnimation::TwoGreensDisappear, 2));
    EXPECT_EQ(drag("YGG", 1, 2, 3), std::nullopt);
    EXPECT_EQ(drag("YGGG", 1, 3), std::nullopt);
    EXPECT_EQ(drag("YGRG", 1, 3), std::nullopt);
}

TEST(DragDecision, TheYellowJumpsOverTwoToTheRightOnly)
{
    EXPECT_EQ(drag("YRG", 0, 2, 5), dragged(4, 0, MoveAnimation::FlipFirstAndThird, 0));
    EXPECT_EQ(drag("GYRB", 1, 3), dragged(4, 0, MoveAnimation::FlipFirstAndThird, 1));
    EXPECT_EQ(drag("YRG", 0, 2, 4), std::nullopt);
    EXPECT_EQ(drag("YRG", 2, 0), std::nullopt);
    EXPECT_EQ(drag("YRG", 0, 1), std::nullopt);
    EXPECT_EQ(drag("YR", 0, 2), std::nullopt);
    EXPECT_EQ(drag("RGY", 2, 0), std::nullopt);
}

// Open as soon as greens can be split, not only with the seventh move.
TEST(DragDecision, WhatStandsBetweenTwoBluesVanishesFromEitherEnd)
{
    const auto expected = dragged(6, 0, MoveAnimation::DropBetweenBlues, 1, 0.75, 4);
    EXPECT_EQ(drag("YBRGB", 1, 4, 6), expected);
    EXPECT_EQ(drag("YBRGB", 4, 1, 6), expected);
    EXPECT_EQ(drag("YBRBGB", 3, 5), dragged(6, 1, MoveAnimation::DropBetweenBlues, 3, 0.75, 5));
    EXPECT_EQ(drag("YBRGB", 1, 4, 5), std::nullopt);
    EXPECT_EQ(drag("YBRBGB", 1, 5), std::nullopt); // a blue between
    EXPECT_EQ(drag("YBRGB", 1, 3), std::nullopt);
}

// Two blues side by side have no match of their own: the first of the line is taken, if any.
TEST(DragDecision, AdjacentBluesFallToTheFirstMatchOfTheLine)
{
    EXPECT_EQ(drag("YBRGBB", 4, 5), dragged(6, 0, MoveAnimation::DropBetweenBlues, 4, 0.75, 5));
    EXPECT_EQ(drag("YBB", 1, 2), dragged(6, 0, MoveAnimation::DropBetweenBlues, 1, 0.75, 2));
}

TEST(DropTargets, AreThePlacesEachShapeAllows)
{
    struct Case {
        const char* line;
        unsigned column;
        std::vector<unsigned> targets;
    };
    const std::vector<Case> cases {
        { "YRRRG", 1, { 3 } },
        { "YRRRG", 2, {} },
        { "YRRRG", 3, { 1 } },
        { "YRRRRR", 3, { 1, 5 } },
        { "RRR", 0, { 2 } },
        { "RRR", 2, { 0 } },
        { "YGG", 1, { 2 } },
        { "YGG", 2, { 1 } },
        { "YGGG", 2, { 1, 3 } },
        { "GG", 1, { 0 } },
        { "YRG", 0, { 2 } },
        { "YR", 0, {} },
        { "GYRB", 1, { 3 } },
        { "GRY", 2, {} },
        { "YBRGB", 1, { 4 } },
        { "YBRGB", 4, { 1 } },
        { "YBRBGB", 1, { 3 } }, // the outer blues are not targets of one another
        { "YBRBGB", 3, { 1, 5 } },
        { "YBRBGB", 5, { 3 } },
        { "YBB", 1, {} }, // adjacent blues have nothing between them
        { "YBB", 2, {} },
        { "YBBRB", 1, {} }, // and the nearest hides those behind it
        { "YBBRB", 2, { 4 } },
        { "B", 0, {} },
        { "YRGRG", 1, {} },
    };
    for (const auto& [line, column, targets] : cases) {
        EXPECT_THAT(dropTargets(engine::Theorem(line), column), ElementsAreArray(targets))
            << line << " from " << column;
    }
}

// Whatever is open to the player; the drop itself is what is tested against that.
TEST(DropTargets, EveryTargetIsADropThatAllMovesAccept)
{
    for (const char* line : { "YRRRRR", "YGGG", "YRG", "YBRBGB", "YBBRB", "GYRRRGGB" }) {
        const engine::Theorem theorem(line);
        for (unsigned column = 0; column < theorem.theorem().size(); ++column) {
            for (const unsigned target : dropTargets(theorem, column)) {
                EXPECT_TRUE(drag(line, column, target).has_value())
                    << line << ' ' << column << " to " << target;
            }
        }
    }
}

} // namespace veyrand::controller
