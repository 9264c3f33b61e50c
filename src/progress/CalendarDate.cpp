#include "progress/CalendarDate.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace veyrand::progress {

namespace {

constexpr std::int64_t kDaysOf400Years = 146097;
constexpr std::int64_t kDaysTo1970 = 719468; // from 1 March of the year 0
constexpr int kLastYear = 9999;

std::int64_t floorDivided(std::int64_t number, std::int64_t by)
{
    return number / by - (number % by < 0 ? 1 : 0);
}

bool isLeap(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

} // namespace

// Years are counted from March here: the day that comes every four years is then the last.
std::int64_t dayNumber(const CalendarDate& date)
{
    const std::int64_t year = date.month <= 2 ? date.year - 1 : date.year;
    const std::int64_t era = floorDivided(year, 400);
    const std::int64_t ofEra = year - era * 400;
    const std::int64_t month = (date.month + 9) % 12;
    const std::int64_t ofYear = (153 * month + 2) / 5 + date.day - 1;
    const std::int64_t day = ofEra * 365 + ofEra / 4 - ofEra / 100 + ofYear;
    return era * kDaysOf400Years + day - kDaysTo1970;
}

CalendarDate dateOfDay(std::int64_t day)
{
    const std::int64_t shifted = day + kDaysTo1970;
    const std::int64_t era = floorDivided(shifted, kDaysOf400Years);
    const std::int64_t ofEra = shifted - era * kDaysOf400Years;
    const std::int64_t year
        = (ofEra - ofEra / 1460 + ofEra / 36524 - ofEra / (kDaysOf400Years - 1)) / 365;
    const std::int64_t ofYear = ofEra - (365 * year + year / 4 - year / 100);
    const std::int64_t month = (5 * ofYear + 2) / 153;
    const auto calendarMonth = static_cast<int>(month < 10 ? month + 3 : month - 9);
    return { .year = static_cast<int>(year + era * 400) + (calendarMonth <= 2 ? 1 : 0),
        .month = calendarMonth,
        .day = static_cast<int>(ofYear - (153 * month + 2) / 5 + 1) };
}

CalendarDate daysAfter(const CalendarDate& date, std::int64_t days)
{
    return dateOfDay(dayNumber(date) + days);
}

int weekdayOf(const CalendarDate& date)
{
    constexpr std::int64_t kThursday = 3; // 1 January 1970
    const std::int64_t days = dayNumber(date) + kThursday;
    return static_cast<int>(days - floorDivided(days, 7) * 7);
}

int daysInMonth(int year, int month)
{
    constexpr std::array kDays { 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
    return kDays.at(static_cast<std::size_t>(month - 1)) + (month == 2 && isLeap(year) ? 1 : 0);
}

std::string textOf(const CalendarDate& date)
{
    std::array<char, 40> text {};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", date.year, date.month, date.day);
    return text.data();
}

std::optional<CalendarDate> dateIn(std::string_view text)
{
    constexpr std::string_view kPattern = "0000-00-00";
    if (text.size() != kPattern.size()) {
        return std::nullopt;
    }
    std::array<int, 3> numbers {};
    std::size_t number = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (kPattern[i] == '-') {
            if (text[i] != '-') {
                return std::nullopt;
            }
            ++number;
        } else if (text[i] < '0' || text[i] > '9') {
            return std::nullopt;
        } else {
            numbers.at(number) = numbers.at(number) * 10 + (text[i] - '0');
        }
    }
    const auto [year, month, day] = numbers;
    if (year < 1 || year > kLastYear || month < 1 || month > 12 || day < 1
        || day > daysInMonth(year, month)) {
        return std::nullopt;
    }
    return CalendarDate { year, month, day };
}

CalendarDate dateAt(std::int64_t secondsSince1970, std::int64_t aheadOfUtc)
{
    constexpr std::int64_t kSecondsOfDay = std::int64_t { 24 } * 60 * 60;
    return dateOfDay(floorDivided(secondsSince1970 + aheadOfUtc, kSecondsOfDay));
}

bool countsForItsDay(const CalendarDate& day, const CalendarDate& solvedOn)
{
    return solvedOn == day || solvedOn == daysAfter(day, 1);
}

Streak streakOf(const std::set<CalendarDate>& days, const CalendarDate& today)
{
    Streak streak;
    int row = 0;
    std::optional<CalendarDate> last;
    for (const CalendarDate& day : days) {
        row = last && daysAfter(*last, 1) == day ? row + 1 : 1;
        streak.best = std::max(streak.best, row);
        last = day;
    }
    CalendarDate end = daysAfter(today, 1);
    for (int i = 0; i < 2 && !days.contains(end); ++i) {
        end = daysAfter(end, -1);
    }
    for (; days.contains(end); end = daysAfter(end, -1)) {
        ++streak.current;
    }
    return streak;
}

} // namespace veyrand::progress
