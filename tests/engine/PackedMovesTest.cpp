#include "engine/PackedMoves.h"

#include "EngineSupport.h"
#include "StringSearch.h"

#include <gtest/gtest.h>
#include <random>

namespace veyrand::engine {
namespace {

using Texts = std::vector<std::string>;

PackedMoves sevenPackedMoves()
{
    return *PackedMoves::derive(*sevenMoves());
}

// Every result of a rule, match by match, by the rule's pattern ("-" where it is too long) ...
Texts resultsByPattern(const Rule& rule, const std::string& text, unsigned longest)
{
    Texts results;
    const unsigned matches = line(text).numberOfMatchesWithRule(rule);
    for (unsigned match = 0; match < matches; ++match) {
        const std::string result = line(text).applyRule(rule, match)->theorem();
        results.push_back(result.size() <= longest ? result : "-");
    }
    return results;
}

// ... and by its fast form.
Texts resultsByFastForm(
    const PackedMoves& moves, std::size_t rule, const std::string& text, unsigned longest)
{
    Texts results;
    PackedMoves::Children children;
    moves.childrenByRule(rule, packed(text), longest, children);
    for (const PackedLine child : children) {
        results.push_back(child != PackedLine() ? child.text() : "-");
    }
    return results;
}

void expectAgreement(const Rules& rules, const PackedMoves& moves, const std::string& text,
    unsigned longest = PackedLine::kMostChips)
{
    for (std::size_t rule = 0; rule < rules.size(); ++rule) {
        ASSERT_EQ(resultsByFastForm(moves, rule, text, longest),
            resultsByPattern(rules[rule], text, longest))
            << text << " by rule " << rule;
    }
}

std::string randomLine(std::mt19937& random, std::size_t length, const std::string& letters)
{
    std::string text;
    while (text.size() < length) {
        text.push_back(letters[random() % letters.size()]);
    }
    return text;
}

TEST(PackedLine, ComesBackAsItWas)
{
    for (const char* text : { "", "Y", "YRGB", "BBBB", "YYYYYYYYYYYYYYYYYYYYYYYYYYYYYYY",
             "BBBBBBBBBBBBBBBBBBBBBBBBBBBBBBB" }) {
        ASSERT_TRUE(PackedLine::pack(text));
        EXPECT_EQ(packed(text).text(), text);
        EXPECT_EQ(packed(text).length(), std::string(text).size());
    }
}

TEST(PackedLine, RefusesForeignLettersAndMoreChipsThanFit)
{
    EXPECT_EQ(PackedLine::pack("YX"), std::nullopt);
    EXPECT_EQ(PackedLine::pack("y"), std::nullopt);
    EXPECT_EQ(PackedLine::pack(std::string(32, 'Y')), std::nullopt);
}

TEST(PackedLine, TellsYellowsApartFromNothing)
{
    EXPECT_NE(packed("Y"), packed(""));
    EXPECT_NE(packed("Y"), packed("YY"));
    EXPECT_NE(packed(""), PackedLine());
}

TEST(PackedMoves, AgreeWithThePatternsOnEveryLineOfUpToEightChips)
{
    const PackedMoves moves = sevenPackedMoves();
    Texts shorter { "" };
    for (int chips = 0; chips <= 8; ++chips) {
        Texts longer;
        for (const std::string& text : shorter) {
            expectAgreement(*sevenMoves(), moves, text);
            for (const char chip : { 'Y', 'R', 'G', 'B' }) {
                longer.push_back(text + chip);
            }
        }
        shorter = chips < 8 ? longer : Texts();
    }
}

TEST(PackedMoves, AgreeWithThePatternsOnLongerLines)
{
    const PackedMoves moves = sevenPackedMoves();
    std::mt19937 random(7);
    for (int i = 0; i < 3000; ++i) {
        const std::string text = randomLine(random, 9 + random() % 23, "YRRGGB");
        expectAgreement(*sevenMoves(), moves, text);
        expectAgreement(*sevenMoves(), moves, text, 12);
    }
}

TEST(PackedMoves, AgreeWithTheMovesByHand)
{
    const PackedMoves moves = sevenPackedMoves();
    std::mt19937 random(9);
    for (int i = 0; i < 3000; ++i) {
        const std::string text = randomLine(random, random() % 13, "YRRGGB");
        PackedMoves::Children packedChildren;
        moves.childrenOf(packed(text), PackedLine::kMostChips, packedChildren);
        Texts children;
        for (const PackedLine child : packedChildren) {
            children.push_back(child.text());
        }
        ASSERT_EQ(children, neighboursByHand(text)) << text;
    }
}

TEST(PackedMoves, OtherRulesOfLettersHaveAFastFormToo)
{
    const Rules rules { { "YB", "RYRY" }, { "G$", "" }, { "RG$", "BBB" }, { "B", "B" } };
    const auto moves = PackedMoves::derive(rules);
    ASSERT_TRUE(moves);
    std::mt19937 random(10);
    for (int i = 0; i < 1000; ++i) {
        const std::string text = randomLine(random, random() % 20, "YRGB");
        expectAgreement(rules, *moves, text);
        expectAgreement(rules, *moves, text, 10);
    }
}

TEST(PackedMoves, SevenRulesThatDifferFromTheGamesInOneAreNotTakenForThem)
{
    const std::vector<std::pair<std::size_t, Rule>> changes { { 0, { "G$", "RG" } },
        { 2, { "RRG", "G" } }, { 3, { "GG", "R" } }, { 3, { "GG$", "" } }, { 5, { "GG", "GRG" } },
        { 6, { "BB", "B" } } };
    for (const auto& [index, rule] : changes) {
        Rules rules = *sevenMoves();
        rules[index] = rule;
        const auto moves = PackedMoves::derive(rules);
        ASSERT_TRUE(moves);
        for (const char* text : { "YRRRG", "YRRGG", "GGYBRBB", "YGGRB" }) {
            expectAgreement(rules, *moves, text);
            PackedMoves::Children children;
            moves->childrenOf(packed(text), PackedLine::kMostChips, children);
            Texts expected;
            for (const Rule& each : rules) {
                const Texts results = resultsByPattern(each, text, PackedLine::kMostChips);
                expected.insert(expected.end(), results.begin(), results.end());
            }
            Texts found;
            for (const PackedLine child : children) {
                found.push_back(child.text());
            }
            EXPECT_EQ(found, expected) << text << " with rule " << index << " changed";
        }
    }
}

TEST(PackedMoves, RulesThatAreNotUnderstoodHaveNone)
{
    for (const Rule& rule : { Rule(), Rule("R*", "G"), Rule("^R", "G"), Rule("R", "$0G"),
             Rule("R", "X"), Rule("X", "R"), Rule("$", "R"), Rule("Y(.*)", "Y$1"),
             Rule(std::string(32, 'R'), "G") }) {
        EXPECT_FALSE(PackedMoves::derive({ rule })) << rule.antecedent();
    }
    Rules rules = *sevenMoves();
    rules.emplace_back("R*G", "G");
    EXPECT_FALSE(PackedMoves::derive(rules));
    EXPECT_FALSE(PackedMoves::derive(Rules(PackedMoves::kMostRules + 1, Rule("R", "G"))));
}

TEST(PackedMoves, ATooLongRootLosesEveryChildThatStaysTooLong)
{
    // Sixteen chips: the flip keeps them, the drop leaves thirteen or four.
    expectAgreement(*sevenMoves(), sevenPackedMoves(), "YRGRRGRRGRRGRRGR", 12);
    expectAgreement(*sevenMoves(), sevenPackedMoves(), "BRGBYRGRRGRRGRRGB", 12);
    expectAgreement(*sevenMoves(), sevenPackedMoves(), "YRGRRGRRBRRRRRRB", 12);
}

TEST(PackedMoves, AFullLineHasNoRoomForOneChipMore)
{
    for (const char last : std::string("YRGB")) {
        const std::string text = "Y" + std::string(PackedLine::kMostChips - 2, 'B') + last;
        ASSERT_EQ(text.size(), PackedLine::kMostChips);
        expectAgreement(*sevenMoves(), sevenPackedMoves(), text);
    }
    const std::string greens = "YBR" + std::string(PackedLine::kMostChips - 3, 'G');
    expectAgreement(*sevenMoves(), sevenPackedMoves(), greens);
}

} // namespace
} // namespace veyrand::engine
