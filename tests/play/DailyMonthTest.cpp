#include "play/DailyMonth.h"

#include <gtest/gtest.h>

namespace veyrand::play {
namespace {

Result solvedIn(unsigned moves, unsigned par)
{
    return { .puzzle = { "YR", "YRG" }, .par = par, .moves = std::vector<Move>(moves) };
}

} // namespace

TEST(AMonth, IsFollowedByTheNextOverTheTurnOfTheYear)
{
    EXPECT_EQ(monthsAfter({ 2026, 12 }, 1), (Month { 2027, 1 }));
    EXPECT_EQ(monthsAfter({ 2026, 1 }, -1), (Month { 2025, 12 }));
    EXPECT_EQ(monthsAfter({ 2026, 11 }, -14), (Month { 2025, 9 }));
    EXPECT_EQ(monthOf({ 2026, 11, 21 }), (Month { 2026, 11 }));
}

TEST(AMonth, PutsItsDaysUnderTheirWeekdays)
{
    const auto days = daysOf({ 2026, 11 }, {}, { 2026, 11, 21 });
    ASSERT_EQ(days.size(), 30U);
    EXPECT_EQ(days[0].column, 6) << "the first is a Sunday";
    EXPECT_EQ(days[0].row, 0);
    EXPECT_EQ(days[1].column, 0);
    EXPECT_EQ(days[1].row, 1);
    EXPECT_EQ(days[29].row, 5);
    EXPECT_EQ(daysOf({ 2028, 2 }, {}, { 2026, 11, 21 }).size(), 29U);
}

TEST(AMonth, MarksWhatWasMadeOfEachDay)
{
    Results results;
    results.add("2026-11-03", solvedIn(6, 6));
    results.add("2026-11-05", solvedIn(8, 6));
    const auto days = daysOf({ 2026, 11 }, results, { 2026, 11, 21 });
    EXPECT_EQ(days[1].state, CalendarDay::State::Open);
    EXPECT_EQ(days[2].state, CalendarDay::State::AtPar);
    EXPECT_EQ(days[4].state, CalendarDay::State::Over);
    EXPECT_EQ(days[4].over, 2U);
    EXPECT_EQ(days[20].state, CalendarDay::State::Open) << "today";
    EXPECT_EQ(days[21].state, CalendarDay::State::Coming);
}

} // namespace veyrand::play
