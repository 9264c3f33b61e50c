#include "platform/DelayedCalls.h"

namespace veyrand::platform {

void DelayedCalls::add(Nanoseconds due, std::function<void()> call)
{
    m_calls.emplace(due, std::move(call));
}

std::optional<Nanoseconds> DelayedCalls::nextDue() const
{
    if (m_calls.empty()) {
        return std::nullopt;
    }
    return m_calls.begin()->first;
}

bool DelayedCalls::runNext(Nanoseconds until)
{
    const auto first = m_calls.begin();
    if (first == m_calls.end() || first->first > until) {
        return false;
    }
    const auto call = std::move(first->second);
    m_calls.erase(first);
    call();
    return true;
}

} // namespace veyrand::platform
