#include "play/Results.h"

#include <gtest/gtest.h>

namespace veyrand::play {
namespace {

// YR to YRRG in two moves, or by way of a third.
Result resultOf(unsigned hints, progress::CalendarDate date = { 2026, 11, 21 })
{
    return { { "YR", "YRRG" }, 2, { { 1, 0 }, { 0, 0 } }, hints, date };
}

Result longer()
{
    return { { "YRRRR", "YG" }, 2, { { 2, 0 }, { 4, 0 }, { 4, 0 } }, 0, { 2026, 11, 21 } };
}

std::string textOf(const Results& results)
{
    std::string text;
    for (const std::string& line : results.lines()) {
        text += line + '\n';
    }
    return text;
}

} // namespace

TEST(TheResults, KeepTheBetterOne)
{
    EXPECT_TRUE(isBetter(resultOf(1), resultOf(2)));
    EXPECT_TRUE(isBetter(resultOf(9), longer()));
    Results results;
    EXPECT_TRUE(results.add("1-4", resultOf(2)));
    EXPECT_FALSE(results.add("1-4", resultOf(3)));
    EXPECT_TRUE(results.add("1-4", resultOf(1)));
    EXPECT_EQ(results.of("1-4")->hints, 1U);
    EXPECT_EQ(results.of("1-5"), nullptr);
}

TEST(TheResults, AreReadAsTheyWereWritten)
{
    Results results;
    results.add("1-4", resultOf(2));
    results.add("2026-11-20", resultOf(0, { 2026, 11, 21 }));
    results.add("2026-11-01", resultOf(0, { 2026, 11, 21 }));
    results.add("3373NECJ", resultOf(1));
    results.setKnowsAllMoves();
    const auto read = Results::read(textOf(results));
    EXPECT_EQ(read.damaged, 0U);
    EXPECT_EQ(read.results, results);
    EXPECT_EQ(read.results.daysInTime(), (std::set<progress::CalendarDate> { { 2026, 11, 20 } }));
}

TEST(TheResults, AreNotThoseOfADamagedLine)
{
    Results results;
    results.add("1-4", resultOf(2));
    results.add("1-5", resultOf(1));
    const std::string text = textOf(results);
    for (std::size_t i = text.find('\n') + 1; i < text.size(); ++i) {
        if (text[i] == '\n') {
            continue;
        }
        std::string damaged = text;
        damaged[i] = damaged[i] == '3' ? '4' : '3';
        const auto read = Results::read(damaged);
        EXPECT_EQ(read.damaged, 1U) << damaged;
        EXPECT_EQ(read.results.all().size(), 1U) << damaged;
    }
}

TEST(TheResults, OfTwoAreJoined)
{
    Results one;
    one.add("1-4", resultOf(2));
    one.add("2026-11-20", resultOf(0, { 2026, 11, 20 }));
    Results other;
    other.add("1-4", resultOf(1));
    other.add("2026-11-20", resultOf(0, { 2026, 11, 29 }));
    other.add("1-5", resultOf(3));
    one.join(other);
    EXPECT_EQ(one.of("1-4")->hints, 1U);
    EXPECT_EQ(one.of("1-5")->hints, 3U);
    EXPECT_EQ(one.daysInTime().size(), 1U);
}

TEST(TheStatistics, CountWhatClassicHasGonePast)
{
    Results results;
    results.add("1-4", resultOf(2));
    results.add("3-1", longer()); // one move over par
    results.add("2026-11-21", resultOf(1));
    results.add("3373NECJ", resultOf(1));
    const Statistics statistics = statisticsOf(results, { 2, 1 }, { 2026, 11, 21 });
    EXPECT_EQ(statistics.solved, 11U);
    EXPECT_EQ(statistics.atPar, 1U);
    EXPECT_EQ(statistics.over, 1U);
    EXPECT_EQ(statistics.hints, 4U);
    EXPECT_EQ(statistics.daily, 1U);
    EXPECT_EQ(statistics.others, 1U);
    EXPECT_EQ(statistics.streak, (progress::Streak { 1, 1 }));
    EXPECT_EQ(statistics.levels[0], (Statistics::Level { 10, 1 }));
    EXPECT_EQ(statistics.levels[2], (Statistics::Level { 1, 0 }));
    EXPECT_EQ(statistics.byOver[0], 1U);
    EXPECT_EQ(statistics.byOver[1], 1U);
}

} // namespace veyrand::play
