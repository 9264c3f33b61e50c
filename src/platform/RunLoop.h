#pragma once

#include <cmath>
#include <cstdint>
#include <functional>

namespace veyrand::platform {

// Whole nanoseconds since the loop began. All waiting is compared in these, so that a wait of 0.75
// s ends at exactly 0.75 s whatever the rounding of the sums of seconds that led there.
using Nanoseconds = std::int64_t;

inline Nanoseconds toNanoseconds(double seconds)
{
    return std::llround(seconds * 1e9);
}
inline double toSeconds(Nanoseconds time)
{
    return static_cast<double>(time) / 1e9;
}

// The reference clock, in seconds. It never runs backwards and its zero is arbitrary.
class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    [[nodiscard]] virtual double now() const = 0;
};

// The one thread's queue of delayed calls. A call is never cancelled; calls run in the order in
// which they fall due, and those due at the same instant in the order in which they were asked for.
// A call asked for with no delay runs later, never inside performAfterDelay itself.
class RunLoop : public Clock {
public:
    virtual void performAfterDelay(double seconds, std::function<void()> call) = 0;
};

} // namespace veyrand::platform
