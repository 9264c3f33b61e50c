#pragma once

#include "platform/Alerts.h"

#include <deque>
#include <utility>

namespace veyrand::platform {

// Alerts that are written down, and answered when somebody says so: for demonstrations and tests.
class NotedAlerts final : public Alerts {
public:
    void show(const Alert& alert, Answered answered) override
    {
        m_open.emplace_back(alert, std::move(answered));
    }

    [[nodiscard]] bool isOpen() const { return !m_open.empty(); }
    // The alert that waits for an answer. There must be one.
    [[nodiscard]] const Alert& alert() const { return m_open.front().first; }
    void answer(const AlertAnswer& answer)
    {
        const Answered answered = std::move(m_open.front().second);
        m_open.pop_front();
        answered(answer);
    }
    // Away with it, without a button.
    void close()
    {
        answer({ .button = alert().alternateButton.empty() ? AlertAnswer::Button::Default
                                                           : AlertAnswer::Button::Alternate });
    }

private:
    std::deque<std::pair<Alert, Answered>> m_open;
};

} // namespace veyrand::platform
