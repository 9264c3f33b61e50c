#pragma once

#include "platform/MotionWish.h"

namespace veyrand::desktop::macos {

// System Settings > Accessibility > Display > Reduce Motion.
class MacMotionWish final : public platform::MotionWish {
public:
    MacMotionWish();
    ~MacMotionWish() override;

    [[nodiscard]] bool wantsLess() const override { return m_wantsLess; }
    void setListener(std::function<void()> listener) override { m_listener = std::move(listener); }

private:
    void ask();

    std::function<void()> m_listener;
    void* m_observer = nullptr; // the workspace's token, kept alive by this
    bool m_wantsLess = false;
};

} // namespace veyrand::desktop::macos
