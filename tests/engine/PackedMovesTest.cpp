#include "engine/PackedMoves.h"

#include "EngineSupport.h"
#include "StringSearch.h"

#include <gtest/gtest.h>
#include <random>

namespace veyrand::engine {
namespace {

using Texts = std::vector<std::string>;

PackedLine packed(const std::string& text)
{
    return *PackedLine::pack(text);
}

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
    moves.forEachChildByRule(rule, packed(text), longest, [&](PackedLine child) {
        results.push_back(child != PackedLine() ? child.text() : "-");
        return true;
    });
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
        Texts children;
        moves.forEachChild(packed(text), PackedLine::kMostChips, [&](PackedLine child) {
            children.push_back(child.text());
            return true;
        });
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
}

TEST(PackedMoves, EndWhenToldTo)
{
    const PackedMoves moves = sevenPackedMoves();
    // Each line stops in another kind of move.
    for (const char* text : { "R", "YR", "RRR", "GG", "YRG", "BRB" }) {
        int visits = 0;
        EXPECT_FALSE(moves.forEachChild(packed(text), 31, [&](PackedLine) {
            ++visits;
            return false;
        })) << text;
        EXPECT_EQ(visits, 1) << text;
    }
}

TEST(PackedMoves, ATooLongRootLosesEveryChildThatStaysTooLong)
{
    // Sixteen chips: the flip keeps them, the drop leaves thirteen or four.
    expectAgreement(*sevenMoves(), sevenPackedMoves(), "YRGRRGRRGRRGRRGR", 12);
    expectAgreement(*sevenMoves(), sevenPackedMoves(), "BRGBYRGRRGRRGRRGB", 12);
    expectAgreement(*sevenMoves(), sevenPackedMoves(), "YRGRRGRRBRRRRRRB", 12);
}

} // namespace
} // namespace veyrand::engine
