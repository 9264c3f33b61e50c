#include "engine/Theorem.h"

#include "EngineSupport.h"

#include <gtest/gtest.h>

namespace veyrand::engine {
namespace {

using Ranges = std::vector<Range>;

const Rule kGreenToEnd("R$", "RG");
const Rule kDoubling("Y(.*)", "Y$1$1");
const Rule kThreeReds("RRR", "G");
const Rule kTwoGreens("GG", "");
const Rule kFlip("Y(.)(.)", "$2$1Y");
const Rule kSplit("GG", "GBG");
const Rule kDrop("B[YGR]+B", "BB");

struct MatchCase {
    const char* text;
    const Rule* rule;
    Ranges matches;
};

class Matches : public testing::TestWithParam<MatchCase> { };

TEST_P(Matches, AreNumberedByLocationAndMayOverlap)
{
    const MatchCase& p = GetParam();
    EXPECT_EQ(line(p.text).matchesWithRule(*p.rule), p.matches);
    EXPECT_EQ(line(p.text).numberOfMatchesWithRule(*p.rule), p.matches.size());
}

INSTANTIATE_TEST_SUITE_P(Table, Matches,
    testing::Values(MatchCase { "RRRR", &kThreeReds, { { 0, 3 }, { 1, 3 } } },
        MatchCase { "YRRRR", &kThreeReds, { { 1, 3 }, { 2, 3 } } },
        MatchCase { "GGG", &kTwoGreens, { { 0, 2 }, { 1, 2 } } },
        MatchCase { "BRBRB", &kDrop, { { 0, 3 }, { 2, 3 } } },
        MatchCase { "BRRB", &kDrop, { { 0, 4 } } }, //
        MatchCase { "BB", &kDrop, {} }, //
        MatchCase { "YRR", &kGreenToEnd, { { 2, 1 } } }, //
        MatchCase { "YRG", &kGreenToEnd, {} }, //
        MatchCase { "YRYG", &kDoubling, { { 0, 4 }, { 2, 2 } } }, //
        MatchCase { "YR", &kFlip, {} }, //
        MatchCase { "YRGB", &kFlip, { { 0, 3 } } }, //
        MatchCase { "", &kGreenToEnd, {} }, //
        MatchCase { "", &kDoubling, {} }));

// A line of no chips is searched too, once: it has one place for a pattern to match.
TEST(Matches, AnEmptyLineIsSearchedOnce)
{
    const Rule anything("R*", "G");
    EXPECT_EQ(line("").matchesWithRule(anything), (Ranges { { 0, 0 } }));
    EXPECT_EQ(line("").applyRule(anything, 0), line("G"));
    EXPECT_EQ(line("Y").matchesWithRule(anything), (Ranges { { 0, 0 } }));
}

struct RewriteCase {
    const char* text;
    const Rule* rule;
    unsigned match;
    const char* result;
};

class Rewriting : public testing::TestWithParam<RewriteCase> { };

TEST_P(Rewriting, ReplacesTheOneMatch)
{
    const RewriteCase& p = GetParam();
    EXPECT_EQ(line(p.text).applyRule(*p.rule, p.match), line(p.result));
}

INSTANTIATE_TEST_SUITE_P(Table, Rewriting,
    testing::Values(RewriteCase { "YRR", &kGreenToEnd, 0, "YRRG" },
        RewriteCase { "YR", &kGreenToEnd, 0, "YRG" }, //
        RewriteCase { "YRG", &kDoubling, 0, "YRGRG" }, //
        RewriteCase { "Y", &kDoubling, 0, "Y" }, // nothing to double
        RewriteCase { "YRYG", &kDoubling, 1, "YRYGG" }, //
        RewriteCase { "YRRRR", &kThreeReds, 0, "YGR" }, //
        RewriteCase { "YRRRR", &kThreeReds, 1, "YRG" }, //
        RewriteCase { "YRGGR", &kTwoGreens, 0, "YRR" }, //
        RewriteCase { "YGGG", &kTwoGreens, 0, "YG" }, // the same line
        RewriteCase { "YGGG", &kTwoGreens, 1, "YG" }, // two ways
        RewriteCase { "YRGB", &kFlip, 0, "GRYB" }, //
        RewriteCase { "YGG", &kSplit, 0, "YGBG" }, //
        RewriteCase { "YBRGB", &kDrop, 0, "YBB" }, //
        RewriteCase { "BRBRB", &kDrop, 1, "BRBB" }));

TEST(Theorem, WithoutATextMatchesNothingAndCannotBeRewritten)
{
    const Theorem none;
    EXPECT_FALSE(none.hasText());
    EXPECT_EQ(none.theorem(), "");
    EXPECT_EQ(none.matchesWithRule(kTwoGreens), std::nullopt);
    EXPECT_EQ(none.numberOfMatchesWithRule(kTwoGreens), 0U);
    EXPECT_EQ(none.applyRule(kTwoGreens, 0), std::nullopt);
}

TEST(Theorem, WithoutATextIsNotTheLineOfNoChips)
{
    EXPECT_NE(Theorem(), line(""));
}

TEST(Theorem, ComparesExactly)
{
    EXPECT_EQ(line("YR"), line("YR"));
    EXPECT_NE(line("YR"), line("Yr"));
}

TEST(Theorem, AnIndexAtOrBeyondTheLastMatchIsARangeError)
{
    EXPECT_THROW((void)line("YRRRR").applyRule(kThreeReds, 2), std::out_of_range);
    EXPECT_THROW((void)line("YG").applyRule(kThreeReds, 0), std::out_of_range);
}

TEST(Theorem, ApplyingARuleLeavesTheLineAlone)
{
    const Theorem theorem = line("YRR");
    (void)theorem.applyRule(kGreenToEnd, 0);
    EXPECT_EQ(theorem, line("YRR"));
}

TEST(Theorem, TheMatchIsRewrittenAsATextOfItsOwn)
{
    // The green that lets the red match is not part of the match, so the rewriting misses it.
    const Rule redBeforeGreen("R(?=G)", "B");
    EXPECT_EQ(line("YRG").numberOfMatchesWithRule(redBeforeGreen), 1U);
    EXPECT_EQ(line("YRG").applyRule(redBeforeGreen, 0), line("YRG"));
}

TEST(Theorem, ARuleOfNothingMatchesNowhere)
{
    EXPECT_EQ(line("YR").matchesWithRule(Rule()), Ranges());
}

} // namespace
} // namespace veyrand::engine
