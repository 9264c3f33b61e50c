#pragma once

#include "platform/DelayedCalls.h"

namespace veyrand::web {

// The run loop of a page: one timer of the browser's, set to the next call that falls due, and none
// when none waits, so that a page at rest costs nothing.
class WebRunLoop final : public platform::RunLoop {
public:
    [[nodiscard]] double now() const override;
    void performAfterDelay(double seconds, std::function<void()> call) override;

    // To be called when the timer asked for has fired.
    void runDueCalls();

private:
    void setTimer();

    platform::DelayedCalls m_calls;
};

} // namespace veyrand::web
