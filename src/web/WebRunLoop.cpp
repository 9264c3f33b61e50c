#include "web/WebRunLoop.h"

#include "web/Host.h"

#include <algorithm>
#include <cmath>

namespace veyrand::web {

namespace {

constexpr double kMillisecond = 1e-3;

platform::Nanoseconds nanosecondsNow()
{
    return platform::toNanoseconds(veyrand_host_now() * kMillisecond);
}

} // namespace

double WebRunLoop::now() const
{
    return platform::toSeconds(nanosecondsNow());
}

void WebRunLoop::performAfterDelay(double seconds, std::function<void()> call)
{
    m_calls.add(
        nanosecondsNow() + platform::toNanoseconds(std::max(seconds, 0.0)), std::move(call));
    setTimer();
}

void WebRunLoop::runDueCalls()
{
    // Calls added meanwhile wait for the next turn, so that events are served in between.
    const platform::Nanoseconds until = nanosecondsNow();
    while (m_calls.runNext(until)) { }
    setTimer();
}

void WebRunLoop::setTimer()
{
    if (const auto due = m_calls.nextDue()) {
        // Rounded up: a timer that fires early would find nothing due and have to be set again.
        const double wait = platform::toSeconds(*due - nanosecondsNow()) / kMillisecond;
        veyrand_host_call_after(std::ceil(std::max(wait, 0.0)));
    }
}

} // namespace veyrand::web
