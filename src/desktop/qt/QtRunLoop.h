#pragma once

#include "platform/DelayedCalls.h"

#include <QElapsedTimer>
#include <QTimer>

namespace veyrand::desktop::qt {

// The run loop of a running application: one single-shot timer, set to the next call that falls due
// and stopped when none waits, so that an idle game sleeps.
class QtRunLoop final : public platform::RunLoop {
public:
    QtRunLoop();

    [[nodiscard]] double now() const override;
    void performAfterDelay(double seconds, std::function<void()> call) override;

    // Whether any call waits; then, and only then, the timer runs.
    [[nodiscard]] bool isWaiting() const { return m_timer.isActive(); }

private:
    void runDueCalls();
    void setTimer();

    QElapsedTimer m_clock;
    QTimer m_timer;
    platform::DelayedCalls m_calls;
};

} // namespace veyrand::desktop::qt
