#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace veyrand::progress {

// A day as the player's own calendar names it. It knows no time zone: which day it is, the
// machine's calendar says, and two players with the same date have the same day.
struct CalendarDate {
    int year = 1970;
    int month = 1; // 1 to 12
    int day = 1; // 1 to 31
    // The 0 that the compiler compares with is taken for one of ours.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const CalendarDate&, const CalendarDate&) = default;
};

// Days since 1 January 1970, and back.
[[nodiscard]] std::int64_t dayNumber(const CalendarDate& date);
[[nodiscard]] CalendarDate dateOfDay(std::int64_t day);

[[nodiscard]] CalendarDate daysAfter(const CalendarDate& date, std::int64_t days);

// 0 for Monday to 6 for Sunday.
[[nodiscard]] int weekdayOf(const CalendarDate& date);
[[nodiscard]] int daysInMonth(int year, int month);

// "2026-11-21", and back; nothing for a text that names no day.
[[nodiscard]] std::string textOf(const CalendarDate& date);
[[nodiscard]] std::optional<CalendarDate> dateIn(std::string_view text);

// The date on a clock that is so many seconds ahead of UTC.
[[nodiscard]] CalendarDate dateAt(std::int64_t secondsSince1970, std::int64_t aheadOfUtc);

// Whether the puzzle of a day, solved when the calendar said `solvedOn`, counts as that day's: on
// the day itself or on the next one. Who begins before midnight may end behind it, and who flies
// west over the date line never sees one of his days.
[[nodiscard]] bool countsForItsDay(const CalendarDate& day, const CalendarDate& solvedOn);

// Days in a row, by the days that count. The row that is going on ends today or yesterday, or
// tomorrow, for a calendar may go back by a day on a journey. Nothing but the days is kept, so a
// clock that was wrong for a while has spoilt nothing once it is right again.
struct Streak {
    int current = 0;
    int best = 0;
    friend bool operator==(const Streak&, const Streak&) = default;
};
[[nodiscard]] Streak streakOf(const std::set<CalendarDate>& days, const CalendarDate& today);

} // namespace veyrand::progress
