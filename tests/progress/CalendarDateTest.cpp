#include "progress/CalendarDate.h"

#include <array>
#include <gtest/gtest.h>

namespace veyrand::progress {
namespace {

constexpr std::int64_t kHour = 3600;
constexpr std::int64_t kMinute = 60;

// Every offset from UTC that is in use somewhere, in minutes.
constexpr std::array kZones { -720, -660, -600, -570, -540, -480, -420, -360, -300, -240, -210,
    -180, -150, -120, -60, 0, 60, 120, 180, 210, 240, 270, 300, 330, 345, 360, 390, 420, 480, 525,
    540, 570, 600, 630, 660, 720, 765, 840 };
static_assert(kZones.size() == 38);

// The moment at which a clock shows a time of day.
std::int64_t momentAt(const CalendarDate& date, std::int64_t seconds, std::int64_t ahead)
{
    return dayNumber(date) * 24 * kHour + seconds - ahead;
}

} // namespace

TEST(ADate, IsADayNumberAndBack)
{
    EXPECT_EQ(dayNumber({ 1970, 1, 1 }), 0);
    EXPECT_EQ(dayNumber({ 2000, 3, 1 }), 11017);
    EXPECT_EQ(dateOfDay(-1), (CalendarDate { 1969, 12, 31 }));
    CalendarDate expected { 1899, 12, 31 };
    for (std::int64_t day = dayNumber(expected); day < dayNumber({ 2101, 1, 1 }); ++day) {
        ASSERT_EQ(dateOfDay(day), expected);
        ASSERT_EQ(dayNumber(expected), day);
        if (++expected.day > daysInMonth(expected.year, expected.month)) {
            expected.day = 1;
            expected.month = expected.month % 12 + 1;
            expected.year += expected.month == 1 ? 1 : 0;
        }
    }
}

TEST(ADate, KnowsItsDayOfTheWeek)
{
    EXPECT_EQ(weekdayOf({ 2026, 1, 5 }), 0);
    EXPECT_EQ(weekdayOf({ 2026, 11, 21 }), 5);
    EXPECT_EQ(weekdayOf({ 1970, 1, 1 }), 3);
    EXPECT_EQ(weekdayOf({ 1900, 1, 1 }), 0);
}

TEST(ADate, IsReadAndWritten)
{
    EXPECT_EQ(textOf({ 2026, 1, 5 }), "2026-01-05");
    EXPECT_EQ(dateIn("2026-01-05"), (CalendarDate { 2026, 1, 5 }));
    EXPECT_EQ(dateIn("2028-02-29"), (CalendarDate { 2028, 2, 29 }));
    for (const char* text :
        { "", "2026-1-5", "2026-02-29", "2026-13-01", "2026-00-10", "2026-01-00", "2026-01-32",
            "0000-01-01", "2026-01-05 ", "2026/01/05", "20260-1-05", "-026-01-05" }) {
        EXPECT_FALSE(dateIn(text)) << text;
    }
}

// Whoever plays once a day by his own clock, at whatever hour, has a row of days.
TEST(AStreak, GrowsByADayEachDayInEveryTimeZone)
{
    for (const int minutes : kZones) {
        const std::int64_t ahead = minutes * kMinute;
        for (const std::int64_t hour : { 0, 7, 12, 23 }) {
            std::set<CalendarDate> days;
            CalendarDate day { 2026, 2, 20 };
            for (int played = 1; played <= 40; ++played, day = daysAfter(day, 1)) {
                const CalendarDate shown = dateAt(momentAt(day, hour * kHour + 59, ahead), ahead);
                ASSERT_EQ(shown, day);
                days.insert(shown);
                ASSERT_EQ(streakOf(days, shown), (Streak { played, played })) << minutes;
            }
        }
    }
}

TEST(AStreak, NeverEndsInTheMiddleOfADay)
{
    for (const int minutes : kZones) {
        const std::int64_t ahead = minutes * kMinute;
        const CalendarDate day { 2026, 11, 21 };
        const std::set<CalendarDate> days { daysAfter(day, -1) };
        for (std::int64_t hour = 0; hour < 24; ++hour) {
            const CalendarDate shown = dateAt(momentAt(day, hour * kHour, ahead), ahead);
            EXPECT_EQ(streakOf(days, shown).current, 1) << minutes << ' ' << hour;
        }
        EXPECT_EQ(streakOf(days, dateAt(momentAt(day, 24 * kHour, ahead), ahead)).current, 0);
    }
}

TEST(AStreak, OutlastsTheChangesOfTheClocks)
{
    // One hour ahead in winter, two in summer: 2026 changes on 29 March and on 25 October.
    for (const CalendarDate& change : { CalendarDate { 2026, 3, 29 }, { 2026, 10, 25 } }) {
        std::set<CalendarDate> days;
        for (int i = -3; i <= 3; ++i) {
            const bool isSummer = (change.month == 3) == (i > 0);
            const std::int64_t ahead = (isSummer ? 2 : 1) * kHour;
            days.insert(dateAt(momentAt(daysAfter(change, i), 90 * kMinute, ahead), ahead));
        }
        EXPECT_EQ(streakOf(days, daysAfter(change, 3)).current, 7);
    }
}

TEST(AStreak, OutlastsAJourneyOverTheDateLine)
{
    // Westwards a day of the calendar is never seen: it is played a day late.
    EXPECT_TRUE(countsForItsDay({ 2026, 5, 3 }, { 2026, 5, 4 }));
    // Eastwards a day comes twice.
    const std::set<CalendarDate> days { { 2026, 5, 2 }, { 2026, 5, 3 } };
    EXPECT_EQ(streakOf(days, { 2026, 5, 2 }).current, 2);
    EXPECT_EQ(streakOf(days, { 2026, 5, 3 }).current, 2);
}

TEST(AStreak, IsThereAgainWhenTheClockIsRightAgain)
{
    const std::set<CalendarDate> days { { 2026, 5, 1 }, { 2026, 5, 2 }, { 2026, 5, 3 } };
    EXPECT_EQ(streakOf(days, { 2020, 1, 1 }), (Streak { 0, 3 }));
    EXPECT_EQ(streakOf(days, { 2099, 1, 1 }), (Streak { 0, 3 }));
    EXPECT_EQ(streakOf(days, { 2026, 5, 4 }), (Streak { 3, 3 }));
}

TEST(AStreak, EndsWithADayLeftOut)
{
    const std::set<CalendarDate> days { { 2026, 5, 1 }, { 2026, 5, 2 }, { 2026, 5, 4 } };
    EXPECT_EQ(streakOf(days, { 2026, 5, 4 }), (Streak { 1, 2 }));
    EXPECT_EQ(streakOf({}, { 2026, 5, 4 }), (Streak {}));
}

TEST(APuzzleOfADay, CountsForItOnThatDayAndTheNext)
{
    EXPECT_TRUE(countsForItsDay({ 2026, 2, 28 }, { 2026, 2, 28 }));
    EXPECT_TRUE(countsForItsDay({ 2026, 2, 28 }, { 2026, 3, 1 }));
    EXPECT_FALSE(countsForItsDay({ 2026, 2, 28 }, { 2026, 3, 2 }));
    EXPECT_FALSE(countsForItsDay({ 2026, 2, 28 }, { 2026, 2, 27 }));
}

} // namespace veyrand::progress
