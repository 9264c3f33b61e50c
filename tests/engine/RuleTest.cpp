#include "engine/Rule.h"

#include <gtest/gtest.h>

namespace veyrand::engine {
namespace {

TEST(Rule, KeepsItsTexts)
{
    const Rule rule("Y(.)(.)", "$2$1Y");
    EXPECT_EQ(rule.antecedent(), "Y(.)(.)");
    EXPECT_EQ(rule.consequent(), "$2$1Y");
}

TEST(Rule, AnInvalidPatternBecomesEmpty)
{
    const Rule rule("(", "RG");
    EXPECT_EQ(rule.antecedent(), "");
    EXPECT_EQ(rule.consequent(), "RG");
}

TEST(Rule, TheConsequentIsTestedAsAPatternToo)
{
    EXPECT_EQ(Rule("R", ")").consequent(), "");
    EXPECT_EQ(Rule("R", "").consequent(), "");
}

TEST(Rule, RulesDifferInEitherText)
{
    EXPECT_NE(Rule("GG", ""), Rule("GG", "GBG"));
    EXPECT_NE(Rule("GG", ""), Rule("G", ""));
}

TEST(Rule, ARuleOfNothingIsEmpty)
{
    EXPECT_EQ(Rule(), Rule("", ""));
}

} // namespace
} // namespace veyrand::engine
