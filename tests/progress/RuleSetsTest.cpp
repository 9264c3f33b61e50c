#include "progress/RuleSets.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrand::progress {

namespace {

struct Texts {
    unsigned index;
    const char* antecedent;
    const char* consequent;
};

} // namespace

TEST(RuleSets, HoldTheSevenMovesInTheirOrder)
{
    const std::vector<Texts> expected {
        { kGreenToEnd, "R$", "RG" },
        { kDoubling, "Y(.*)", "Y$1$1" },
        { kThreeReds, "RRR", "G" },
        { kTwoGreens, "GG", "" },
        { kFlip, "Y(.)(.)", "$2$1Y" },
        { kSplitGreens, "GG", "GBG" },
        { kDropBetweenBlues, "B[YGR]+B", "BB" },
    };
    const engine::Rules rules = advancedRules();
    ASSERT_EQ(rules.size(), expected.size());
    for (const Texts& texts : expected) {
        EXPECT_EQ(rules[texts.index].antecedent(), texts.antecedent);
        EXPECT_EQ(rules[texts.index].consequent(), texts.consequent);
    }
}

TEST(RuleSets, EachSetIsTheOneBeforeItAndMore)
{
    const engine::Rules all = advancedRules();
    EXPECT_EQ(basicRules(), engine::Rules(all.begin(), all.begin() + 4));
    EXPECT_EQ(intermediateRules(), engine::Rules(all.begin(), all.begin() + 5));
}

namespace {

struct Opening {
    int level;
    int stage;
    int moves;
};

class HighestRule : public testing::TestWithParam<Opening> { };

} // namespace

TEST_P(HighestRule, GrowsWithThePlace)
{
    EXPECT_EQ(highestRuleAt(GetParam().level, GetParam().stage), GetParam().moves);
}

INSTANTIATE_TEST_SUITE_P(ClassicGame, HighestRule,
    testing::Values(Opening { 1, 1, 1 }, Opening { 1, 2, 1 }, Opening { 1, 3, 2 },
        Opening { 1, 7, 2 }, Opening { 1, 8, 3 }, Opening { 1, 10, 3 }, Opening { 2, 1, 4 },
        Opening { 2, 10, 4 }, Opening { 3, 1, 5 }, Opening { 4, 1, 6 }, Opening { 5, 1, 7 },
        Opening { 6, 1, 7 }, Opening { 11, 10, 7 }),
    [](const auto& opening) {
        return std::to_string(opening.param.level) + "_" + std::to_string(opening.param.stage);
    });

// No game comes to these places, but each has its answer.
INSTANTIATE_TEST_SUITE_P(Nowhere, HighestRule,
    testing::Values(Opening { 1, 11, 1 }, Opening { 1, 0, 1 }, Opening { 0, 0, 1 },
        Opening { 0, 8, 1 }, Opening { -3, 5, 1 }, Opening { 12, 1, 7 }));

} // namespace veyrand::progress
