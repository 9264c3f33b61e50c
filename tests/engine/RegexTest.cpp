#include "engine/Regex.h"

#include <gtest/gtest.h>

namespace veyrand::engine {
namespace {

constexpr Range kNowhere { kNotFound, 0 };

TEST(Regex, KnowsAValidPatternFromABrokenOne)
{
    EXPECT_TRUE(isRegexValid("B[YGR]+B"));
    EXPECT_TRUE(isRegexValid("$2$1Y"));
    EXPECT_FALSE(isRegexValid("("));
    EXPECT_FALSE(isRegexValid(""));
}

TEST(Regex, FindsTheFirstMatch)
{
    EXPECT_EQ(rangeOfRegex("chip-12-5", "[0-9]+"), (Range { 5, 2 }));
    EXPECT_EQ(rangeOfRegex("chip-12-5", "[0-9]+$"), (Range { 8, 1 }));
}

TEST(Regex, RangesDifferInEitherNumber)
{
    EXPECT_NE((Range { 1, 2 }), (Range { 1, 3 }));
    EXPECT_NE((Range { 1, 2 }), (Range { 0, 2 }));
}

TEST(Regex, AnswersNotFoundWithNoLength)
{
    EXPECT_EQ(rangeOfRegex("YR", "G"), kNowhere);
    EXPECT_EQ(kNotFound, 2147483647U);
}

TEST(Regex, ABrokenPatternMatchesNowhere)
{
    EXPECT_EQ(rangeOfRegex("YR(", "("), kNowhere);
    EXPECT_EQ(rangeOfRegex("YR", ""), kNowhere);
    EXPECT_FALSE(isMatchedByRegex("YR", ""));
    EXPECT_EQ(stringByReplacingOccurrencesOfRegex("YR", "(", "G"), "YR");
}

TEST(Regex, TakesTheRangeForTheWholeText)
{
    EXPECT_EQ(rangeOfRegex("YRG", "^R", { 1, 2 }), (Range { 1, 1 }));
    EXPECT_EQ(rangeOfRegex("YRG", "R$", { 0, 2 }), (Range { 1, 1 }));
    EXPECT_EQ(rangeOfRegex("YRG", "(?<=Y)R", { 1, 2 }), kNowhere);
    EXPECT_EQ(rangeOfRegex("YRG", "(?<=Y)R"), (Range { 1, 1 }));
}

TEST(Regex, SearchesAnEmptyRangeAtTheEnd)
{
    EXPECT_EQ(rangeOfRegex("YR", "R*", { 2, 0 }), (Range { 2, 0 }));
    EXPECT_EQ(rangeOfRegex("", "R", { 0, 0 }), kNowhere);
}

TEST(Regex, CountsEveryByteAsOneCharacter)
{
    EXPECT_EQ(rangeOfRegex("\xE9\xFFR", "R"), (Range { 2, 1 }));
    EXPECT_EQ(stringByReplacingOccurrencesOfRegex("\xE9R", "R", "\xFF"), "\xE9\xFF");
}

struct Replacement {
    const char* text;
    const char* pattern;
    const char* replacement;
    const char* result;
};

class RegexReplacement : public testing::TestWithParam<Replacement> { };

TEST_P(RegexReplacement, FollowsTheTemplate)
{
    const Replacement& p = GetParam();
    EXPECT_EQ(stringByReplacingOccurrencesOfRegex(p.text, p.pattern, p.replacement), p.result);
}

INSTANTIATE_TEST_SUITE_P(Templates, RegexReplacement,
    testing::Values(Replacement { "RRRR", "RR", "G", "GG" }, // from left to right, no overlap
        Replacement { "RRR", "RR", "G", "GR" }, //
        Replacement { "YRG", "B", "R", "YRG" }, // no match: unchanged
        Replacement { "YGG", "GG", "", "Y" }, //
        Replacement { "YRG", "Y(.)(.)", "$2$1Y", "GRY" }, //
        Replacement { "Y", "Y(.*)", "Y$1$1", "Y" }, // an empty group
        Replacement { "YR", "Y(B)?R", "G$1G", "GG" }, // a group that took no part
        Replacement { "YR", "Y(R)", "$2G", "G" }, // no such group
        Replacement { "YR", "Y(R)", "$1$9$1", "RR" }, //
        Replacement { "YR", "Y(R)", "$12", "R2" }, // group 12 does not exist, group 1 does
        Replacement { "YR", "R", "\\$1", "Y$1" }, // an escaped dollar
        Replacement { "YR", "R", "$0$0", "YRR" }, // the whole match
        Replacement { "YR", "R", "G$", "YR" }, // a malformed template
        Replacement { "YR", "R", "G\\", "YG" }, // nothing left to escape
        Replacement { "YR", "R", "$/", "YR" }, // no digit: malformed
        Replacement { "YR", "R", "$:", "YR" }, //
        Replacement { "YR", "R", "\\u4e00", "Y?" })); // what no byte can hold

TEST(Regex, ATextTooLongToSearchHasNoMatchAndComesBackUnchanged)
{
    // Each red is a choice to be remembered: more of them than ICU has room for.
    const std::string text(3'000'000, 'R');
    EXPECT_EQ(rangeOfRegex(text, "(R|Y)*G"), kNowhere);
    EXPECT_EQ(stringByReplacingOccurrencesOfRegex(text, "(R|Y)*G", "B"), text);
}

TEST(Regex, IsMatchedAnywhere)
{
    EXPECT_TRUE(isMatchedByRegex("10001", "000"));
    EXPECT_FALSE(isMatchedByRegex("1001", "000"));
}

TEST(Regex, SurvivesMorePatternsThanItKeeps)
{
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(
            rangeOfRegex("chip-7", std::to_string(i % 500) + "$").location == 5, i % 500 == 7);
    }
}

} // namespace
} // namespace veyrand::engine
