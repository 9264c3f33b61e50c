#pragma once

#include "platform/DelayedCalls.h"

namespace veyrand::platform {

// A run loop whose time stands still until it is told to move. Demonstrations and tests run whole
// games through it in milliseconds, and always in the same order.
class VirtualRunLoop final : public RunLoop {
public:
    [[nodiscard]] double now() const override { return toSeconds(m_now); }
    void performAfterDelay(double seconds, std::function<void()> call) override;

    // Moves the clock on, stopping at each call due at or before the end (calls that those add
    // included).
    void advance(double seconds);

    // When the next call is due, in seconds, if any waits.
    [[nodiscard]] std::optional<double> nextDue() const;
    [[nodiscard]] std::size_t callsWaiting() const { return m_calls.count(); }

private:
    Nanoseconds m_now = 0;
    DelayedCalls m_calls;
};

} // namespace veyrand::platform
