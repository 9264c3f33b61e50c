#include "engine/Distances.h"

#include "EngineSupport.h"
#include "StringSearch.h"

#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <set>
#include <stdexcept>

namespace veyrand::engine {
namespace {

using Counts = std::vector<std::uint64_t>;

// By hand, the root at distance 0 and nowhere else.
Counts countsByHand(const std::string& root)
{
    Counts counts { 1 };
    for (const auto& [text, moves] : distancesByHand(root, 100, 9)) {
        counts.resize(std::max<std::size_t>(counts.size(), moves + 1), 0);
        counts[moves] += text != root ? 1 : 0;
    }
    while (counts.back() == 0) {
        counts.pop_back();
    }
    return counts;
}

TEST(Distances, CountEveryLineOnce)
{
    Distances distances(*PackedMoves::derive(*sevenMoves()), 12);
    const Counts counts = distances.countsFrom(packed("YR"));
    EXPECT_EQ(std::accumulate(counts.begin(), counts.end(), std::uint64_t { 0 }), 439702U);
    EXPECT_EQ(counts[0], 1U);
    EXPECT_EQ(counts[1], 2U);
}

TEST(Distances, AgreeWithAnExhaustiveSearch)
{
    Distances distances(*PackedMoves::derive(*sevenMoves()), 9);
    for (const char* root : { "YBB", "YB", "Y", "G", "GGGG", "", "RRRRRRRRR", "YYG" }) {
        EXPECT_EQ(distances.countsFrom(packed(root)), countsByHand(root)) << root;
    }
}

TEST(Distances, AShorterLimitLeavesOutLongerLines)
{
    Distances distances(*PackedMoves::derive(*sevenMoves()), 3);
    // YR; YRG and YRR; GRY and RRY.
    EXPECT_EQ(distances.countsFrom(packed("YR")), (Counts { 1, 2, 2 }));
}

TEST(Distances, ARootLongerThanTheLimitIsServedToo)
{
    Distances distances(*PackedMoves::derive(*sevenMoves()), 3);
    EXPECT_EQ(distances.countsFrom(packed("YGGGG")), (Counts { 1, 1, 2 })); // YGG; Y and GGY
}

TEST(Distances, OfSeveralYellowsAreCountedToo)
{
    // Longer than the limit, as long, and shorter.
    Distances distances(*PackedMoves::derive(*sevenMoves()), 3);
    EXPECT_EQ(distances.countsFrom(packed("YYGGG")).front(), 1U);
    EXPECT_EQ(distances.countsFrom(packed("YYB")), (Counts { 1, 1 })); // the flip: BYY
    EXPECT_EQ(distances.countsFrom(packed("YYY")), (Counts { 1 }));
}

TEST(Distances, RulesThatAddYellowsAreServedToo)
{
    const auto moves = PackedMoves::derive({ { "R", "YY" } });
    Distances distances(*moves, 4);
    EXPECT_EQ(distances.countsFrom(packed("RR")), (Counts { 1, 2, 1 }));
    EXPECT_GT(distances.bytes(), 0U);
}

TEST(Distances, MoreChipsThanAnyMemoryHoldsAreRefused)
{
    const PackedMoves moves = *PackedMoves::derive(*sevenMoves());
    EXPECT_NO_THROW(Distances(*PackedMoves::derive({ { "R", "YY" } }), Distances::kMostChips));
    for (const unsigned longest : { 17U, 31U, 32U, 4000000000U }) {
        EXPECT_THROW(Distances(moves, longest), std::invalid_argument) << longest;
    }
}

TEST(OneYellowSet, HoldsEveryLineWithOneYellowAtMostApart)
{
    OneYellowSet set(6);
    std::set<std::string> lines { "" };
    std::vector<std::string> shorter { "" };
    for (int chips = 1; chips <= 6; ++chips) {
        std::vector<std::string> longer;
        for (const std::string& text : shorter) {
            for (const char chip : { 'Y', 'R', 'G', 'B' }) {
                if (chip != 'Y' || text.find('Y') == std::string::npos) {
                    longer.push_back(text + chip);
                }
            }
        }
        lines.insert(longer.begin(), longer.end());
        shorter = std::move(longer);
    }
    for (const std::string& text : lines) {
        EXPECT_TRUE(set.insert(packed(text))) << text;
    }
    for (const std::string& text : lines) {
        EXPECT_FALSE(set.insert(packed(text))) << text;
    }
    set.clear();
    EXPECT_TRUE(set.insert(packed("YR")));
}

TEST(OneYellowSet, HoldsLongLines)
{
    OneYellowSet set(16);
    EXPECT_TRUE(set.insert(packed("BBBBBBBBBBBBBBBY")));
    EXPECT_TRUE(set.insert(packed("BBBBBBBBBBBBBBBB")));
    EXPECT_TRUE(set.insert(packed("YBBBBBBBBBBBBBBB")));
    EXPECT_FALSE(set.insert(packed("BBBBBBBBBBBBBBBY")));
}

TEST(PackedLineSet, AgreesWithASetOfWords)
{
    PackedLineSet set;
    for (int round = 0; round < 2; ++round) {
        std::mt19937_64 random(12);
        std::set<std::uint64_t> words;
        for (int i = 0; i < 40000; ++i) { // past two growings
            const std::uint64_t word = random() % 60000 + 1;
            set.makeRoomFor(words.size() + 1);
            ASSERT_EQ(set.insert(PackedLine(word)), words.insert(word).second);
        }
        set.clear();
    }
    EXPECT_GT(set.bytes(), 0U);
}

} // namespace
} // namespace veyrand::engine
