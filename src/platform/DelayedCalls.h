#pragma once

#include "platform/RunLoop.h"

#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace veyrand::platform {

// The queue behind every RunLoop: calls sorted by due time and, within one time, by arrival. It
// knows nothing of where the time comes from.
class DelayedCalls {
public:
    void add(Nanoseconds due, std::function<void()> call);

    // When the next call is due, if any waits.
    [[nodiscard]] std::optional<Nanoseconds> nextDue() const;

    [[nodiscard]] std::size_t count() const { return m_calls.size(); }

    // Takes out the first call that is due at or before the given time, and runs it. False when
    // none is.
    bool runNext(Nanoseconds until);

private:
    std::multimap<Nanoseconds, std::function<void()>>
        m_calls; // equal keys keep their insertion order
};

} // namespace veyrand::platform
