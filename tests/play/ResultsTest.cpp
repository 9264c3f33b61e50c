#include "play/Results.h"

#include "play/JournalText.h"

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

TEST(TheResults, SayHowLongItTookWhereThatIsKnown)
{
    Results untimed;
    untimed.add("1-4", resultOf(2));
    Results timed;
    Result result = resultOf(2);
    result.seconds = 83;
    timed.add("1-4", result);
    EXPECT_NE(textOf(timed).find(" 2026-11-21 83 #"), std::string::npos);
    EXPECT_NE(textOf(untimed).find(" 2026-11-21 #"), std::string::npos);
    EXPECT_EQ(Results::read(textOf(timed)).results, timed);
    EXPECT_EQ(statisticsOf(timed, {}, { 2026, 11, 21 }).seconds, 83U);
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

// Lines whose check is good, and which say nothing all the same.
TEST(TheResults, AreNoneOfALineThatTheGameDoesNotWrite)
{
    Results results;
    results.add("1-4", resultOf(2));
    const std::string good = results.lines().at(1);
    const std::string own = good.substr(4, good.rfind(" #") - 4); // without its name and its check
    const auto readOne = [](const std::string& words) {
        return Results::read("veyrand-results 1\n" + JournalWriter().checked(words) + '\n');
    };
    EXPECT_EQ(readOne("1-5 " + own).results.all().size(), 1U);
    std::vector<std::string> texts { "", "1-5", "1-5 " };
    for (std::size_t i = 0; i < own.size(); ++i) {
        texts.push_back("1-5 " + own.substr(0, i)); // cut off anywhere
    }
    for (const char* moves :
        { "1.0,0.1", "1,0.0", "1.0,0", "7.0", "1.x,0.0", "x.0,0.0", "1.0;0.0" }) {
        std::string other = own;
        other.replace(other.find("1.0,0.0"), 7, moves);
        texts.push_back("1-5 " + other);
    }
    for (const std::string& text : texts) {
        const auto read = readOne(text);
        EXPECT_EQ(read.damaged, 1U) << text;
        EXPECT_TRUE(read.results.all().empty()) << text;
    }
    EXPECT_EQ(readOne("day 2026-02-30").results, Results());
    EXPECT_EQ(readOne("day 2026-02-28").results.daysInTime().size(), 1U);
}

// Whoever joins whom.
TEST(TheResults, OfTwoThatAreAsGoodTheOlderStays)
{
    Results older;
    older.add("1-4", resultOf(2, { 2026, 11, 20 }));
    Results younger;
    younger.add("1-4", resultOf(2, { 2026, 11, 21 }));
    younger.setKnowsAllMoves();
    Results one = older;
    one.join(younger);
    Results other = younger;
    other.join(older);
    EXPECT_EQ(one, other);
    EXPECT_EQ(one.of("1-4")->solvedOn, (progress::CalendarDate { 2026, 11, 20 }));
    EXPECT_TRUE(one.knowsAllMoves());
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
