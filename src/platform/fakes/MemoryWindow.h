#pragma once

#include "platform/Window.h"

#include <functional>
#include <utility>

namespace veyrand::platform {

// A window that is nowhere to be seen: for demonstrations and tests. Whoever shows its content may
// ask to be told when it would have another size.
class MemoryWindow final : public Window {
public:
    void setModeListener(std::function<void()> changed) { m_changed = std::move(changed); }

    [[nodiscard]] bool isZoomed() const override { return m_zoomed; }
    void zoom() override { set(m_zoomed, !m_zoomed); }
    [[nodiscard]] bool isInFullScreenMode() const override { return m_fullScreen; }
    void enterFullScreenMode() override { set(m_fullScreen, true); }
    void exitFullScreenMode() override { set(m_fullScreen, false); }

private:
    void set(bool& mode, bool on)
    {
        if (std::exchange(mode, on) != on && m_changed) {
            m_changed();
        }
    }

    bool m_zoomed = false;
    bool m_fullScreen = false;
    std::function<void()> m_changed;
};

} // namespace veyrand::platform
