#include "platform/fakes/VirtualRunLoop.h"

#include <algorithm>

namespace veyrand::platform {

void VirtualRunLoop::performAfterDelay(double seconds, std::function<void()> call)
{
    m_calls.add(m_now + std::max<Nanoseconds>(toNanoseconds(seconds), 0), std::move(call));
}

void VirtualRunLoop::advance(double seconds)
{
    const Nanoseconds end = m_now + toNanoseconds(seconds);
    while (const auto due = m_calls.nextDue()) {
        if (*due > end) {
            break;
        }
        m_now = std::max(m_now, *due);
        m_calls.runNext(m_now);
    }
    m_now = end;
}

std::optional<double> VirtualRunLoop::nextDue() const
{
    const auto due = m_calls.nextDue();
    return due ? std::optional(toSeconds(*due)) : std::nullopt;
}

} // namespace veyrand::platform
