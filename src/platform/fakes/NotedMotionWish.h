#pragma once

#include "platform/MotionWish.h"

#include <utility>

namespace veyrand::platform {

// A desktop whose wish is whatever it is told.
class NotedMotionWish final : public MotionWish {
public:
    [[nodiscard]] bool wantsLess() const override { return m_wantsLess; }
    void setListener(std::function<void()> listener) override { m_listener = std::move(listener); }

    void wish(bool less)
    {
        if (std::exchange(m_wantsLess, less) != less && m_listener) {
            m_listener();
        }
    }

private:
    std::function<void()> m_listener;
    bool m_wantsLess = false;
};

} // namespace veyrand::platform
