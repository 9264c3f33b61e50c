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

// Which of all bytes the pattern matches, as ranges of hexadecimal numbers.
std::string bytesMatching(const std::string& pattern)
{
    std::string ranges;
    const auto matches = [&pattern](int byte) {
        return byte <= 0xFF && isMatchedByRegex(std::string(1, static_cast<char>(byte)), pattern);
    };
    const auto add = [&ranges](int byte) {
        constexpr std::string_view kDigits = "0123456789ABCDEF";
        ranges += kDigits.at(static_cast<unsigned>(byte) / 16);
        ranges += kDigits.at(static_cast<unsigned>(byte) % 16);
    };
    for (int first = 0; first <= 0xFF; ++first) {
        if (!matches(first)) {
            continue;
        }
        int last = first;
        while (matches(last + 1)) {
            ++last;
        }
        ranges += ranges.empty() ? "" : " ";
        add(first);
        if (last > first) {
            ranges += '-';
            add(last);
        }
        first = last;
    }
    return ranges;
}

struct Class {
    const char* pattern;
    const char* bytes;
};

class RegexClass : public testing::TestWithParam<Class> { };

// The browser's build has tables of its own for these.
TEST_P(RegexClass, HasTheseBytes)
{
    EXPECT_EQ(bytesMatching(GetParam().pattern), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Classes, RegexClass,
    testing::Values(Class { "\\w", "30-39 41-5A 5F 61-7A AA B5 BA C0-D6 D8-F6 F8-FF" }, //
        Class { "\\d", "30-39" }, //
        Class { "\\s", "09-0D 20 85 A0" }, //
        Class { "\\h", "09 20 A0" }, //
        Class { "[^\\w\\s\\x00-\\x9F]", "A1-A9 AB-B4 B6-B9 BB-BF D7 F7" }, //
        Class { ".", "00-09 0E-84 86-FF" }, //
        Class { "(?i)k", "4B 6B" }, //
        Class { "(?i)\xE9", "C9 E9" }, //
        Class { "(?i)[\xD5-\xD9]", "D5-D9 F5-F6 F8-F9" }, // not the signs between the letters
        Class { "(?i)\xF7", "F7" }, //
        Class { "(?i)\xFF", "FF" }, // its capital is no byte
        Class { "(?i)[\xDF]", "DF" }, //
        Class { "(?i)\xB5", "B5" }));

TEST(Regex, ComparesLettersOfEitherCase)
{
    EXPECT_EQ(rangeOfRegex("GRASS", "(?i)\xDF"), (Range { 3, 2 }));
    EXPECT_EQ(rangeOfRegex("gra\xDF", "(?i)SS"), (Range { 3, 1 }));
    EXPECT_EQ(rangeOfRegex("xY\xC9z", "(?i)y\xE9Z"), (Range { 1, 3 }));
}

TEST(Regex, SeesWhereWordsEnd)
{
    EXPECT_EQ(stringByReplacingOccurrencesOfRegex("ab\xAD cd_1!", "\\b", "|"), "|ab\xAD| |cd_1|!");
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
