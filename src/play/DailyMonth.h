#pragma once

#include "play/Results.h"
#include "progress/CalendarDate.h"

#include <vector>

namespace veyrand::play {

struct Month {
    int year = 1970;
    int month = 1; // 1 to 12
    // The 0 that the compiler compares with is taken for one of ours.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const Month&, const Month&) = default;
};

[[nodiscard]] Month monthOf(const progress::CalendarDate& date);
[[nodiscard]] Month monthsAfter(const Month& month, int months);

// A day of the calendar, and what was made of its puzzle.
struct CalendarDay {
    enum class State {
        Coming, // closed until then
        Open, // not solved yet, be it today's or one that was missed
        AtPar,
        Over,
    };
    progress::CalendarDate date;
    State state = State::Open;
    unsigned over = 0; // moves more than par
    int column = 0; // 0 for Monday
    int row = 0; // week of the month, from 0
};

// The days of a month as its page shows them.
[[nodiscard]] std::vector<CalendarDay> daysOf(
    const Month& month, const Results& results, const progress::CalendarDate& today);

} // namespace veyrand::play
