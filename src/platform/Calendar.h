#pragma once

#include <cstdint>

namespace veyrand::platform {

// What the player's own calendar says.
class Calendar {
public:
    Calendar() = default;
    Calendar(const Calendar&) = delete;
    Calendar& operator=(const Calendar&) = delete;
    virtual ~Calendar() = default;

    // Whole days from 1 January 1970 to today's date, by the machine's own time zone.
    [[nodiscard]] virtual std::int64_t today() const = 0;
};

} // namespace veyrand::platform
