#pragma once

#include "play/PuzzleCode.h"
#include "progress/CalendarDate.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::play {

// The puzzle of each day, the same for everybody with the same date: a list of codes, one a line
// under the Monday with which it begins. When it has come to its end it begins again, and so it
// reaches back before that Monday too. The list is part of the game and changes for no past day.
class DailyPuzzles {
public:
    static constexpr std::size_t kDays = std::size_t { 53 } * 7;

    // Reads the list. One that is broken has no puzzles, and says what is wrong.
    explicit DailyPuzzles(std::string_view text);

    [[nodiscard]] const std::string& fault() const { return m_fault; }
    [[nodiscard]] const progress::CalendarDate& firstDay() const { return m_firstDay; }
    [[nodiscard]] const std::vector<CodedPuzzle>& puzzles() const { return m_puzzles; }

    // Null when there is no list.
    [[nodiscard]] const CodedPuzzle* on(const progress::CalendarDate& date) const;

private:
    progress::CalendarDate m_firstDay {};
    std::vector<CodedPuzzle> m_puzzles;
    std::string m_fault;
};

} // namespace veyrand::play
