#include "play/DailyPuzzles.h"

#include <algorithm>

namespace veyrand::play {

namespace {

std::string faultIn(std::size_t line, const std::string& what)
{
    return "line " + std::to_string(line) + ": " + what;
}

} // namespace

DailyPuzzles::DailyPuzzles(std::string_view text)
{
    std::size_t number = 0;
    while (!text.empty() && m_fault.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(text.size(), line.size() + 1));
        if (++number == 1) {
            const auto date = progress::dateIn(line);
            if (!date || progress::weekdayOf(*date) != 0) {
                m_fault = faultIn(number, "not the date of a Monday");
            }
            m_firstDay = date.value_or(progress::CalendarDate {});
            continue;
        }
        const auto read = readCode(line);
        if (const auto* const fault = std::get_if<CodeFault>(&read)) {
            m_fault = faultIn(number, wordsOf(*fault));
        } else {
            m_puzzles.push_back(std::get<CodedPuzzle>(read));
        }
    }
    if (m_fault.empty() && m_puzzles.size() != kDays) {
        m_fault = std::to_string(m_puzzles.size()) + " puzzles where there should be "
            + std::to_string(kDays);
    }
    if (!m_fault.empty()) {
        m_puzzles.clear();
    }
}

const CodedPuzzle* DailyPuzzles::on(const progress::CalendarDate& date) const
{
    if (m_puzzles.empty()) {
        return nullptr;
    }
    const auto days = static_cast<std::int64_t>(m_puzzles.size());
    const std::int64_t since = progress::dayNumber(date) - progress::dayNumber(m_firstDay);
    return &m_puzzles[static_cast<std::size_t>((since % days + days) % days)];
}

} // namespace veyrand::play
