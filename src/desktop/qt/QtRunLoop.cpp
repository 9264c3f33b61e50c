#include "desktop/qt/QtRunLoop.h"

#include <algorithm>

namespace veyrand::desktop::qt {

QtRunLoop::QtRunLoop()
{
    m_clock.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { runDueCalls(); });
}

double QtRunLoop::now() const
{
    return platform::toSeconds(m_clock.nsecsElapsed());
}

void QtRunLoop::performAfterDelay(double seconds, std::function<void()> call)
{
    m_calls.add(
        m_clock.nsecsElapsed() + platform::toNanoseconds(std::max(seconds, 0.0)), std::move(call));
    setTimer();
}

void QtRunLoop::runDueCalls()
{
    // Calls added meanwhile wait for the next turn, so that events are served in between.
    const platform::Nanoseconds until = m_clock.nsecsElapsed();
    while (m_calls.runNext(until)) { }
    setTimer();
}

void QtRunLoop::setTimer()
{
    const auto due = m_calls.nextDue();
    if (!due) {
        m_timer.stop();
        return;
    }
    // Rounded up: a timer that fires early would find nothing due and have to be set again.
    constexpr platform::Nanoseconds kNanosecondsPerMillisecond = 1'000'000;
    const platform::Nanoseconds wait
        = std::max<platform::Nanoseconds>(*due - m_clock.nsecsElapsed(), 0);
    m_timer.start(
        static_cast<int>((wait + kNanosecondsPerMillisecond - 1) / kNanosecondsPerMillisecond));
}

} // namespace veyrand::desktop::qt
