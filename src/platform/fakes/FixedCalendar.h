#pragma once

#include "platform/Calendar.h"

namespace veyrand::platform {

// A day that lasts until somebody says otherwise.
class FixedCalendar final : public Calendar {
public:
    explicit FixedCalendar(std::int64_t today)
        : m_today(today)
    {
    }
    [[nodiscard]] std::int64_t today() const override { return m_today; }
    void setToday(std::int64_t today) { m_today = today; }

private:
    std::int64_t m_today;
};

} // namespace veyrand::platform
