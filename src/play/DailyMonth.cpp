#include "play/DailyMonth.h"

namespace veyrand::play {

namespace {

constexpr int kMonths = 12;
constexpr int kDaysOfWeek = 7;

} // namespace

Month monthOf(const progress::CalendarDate& date)
{
    return { date.year, date.month };
}

Month monthsAfter(const Month& month, int months)
{
    const int sum = month.year * kMonths + month.month - 1 + months;
    return { sum / kMonths, sum % kMonths + 1 };
}

std::vector<CalendarDay> daysOf(
    const Month& month, const Results& results, const progress::CalendarDate& today)
{
    std::vector<CalendarDay> days;
    const int firstColumn = progress::weekdayOf({ month.year, month.month, 1 });
    for (int day = 1; day <= progress::daysInMonth(month.year, month.month); ++day) {
        const int place = firstColumn + day - 1;
        CalendarDay made { .date = { month.year, month.month, day },
            .column = place % kDaysOfWeek,
            .row = place / kDaysOfWeek };
        if (made.date > today) {
            made.state = CalendarDay::State::Coming;
        } else if (const Result* const result = results.of(progress::textOf(made.date))) {
            made.over = result->over();
            made.state = made.over == 0 ? CalendarDay::State::AtPar : CalendarDay::State::Over;
        }
        days.push_back(made);
    }
    return days;
}

} // namespace veyrand::play
