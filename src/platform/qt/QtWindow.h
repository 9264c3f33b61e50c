#pragma once

#include "platform/Window.h"

#include <QPointer>
#include <QWidget>

namespace veyrand::platform::qt {

// The main window's modes as the desktop's window manager keeps them. The game is built before its
// window, so the window is told later; until then nothing is zoomed and nothing happens.
class QtWindow final : public Window {
public:
    void setMainWindow(QWidget& window) { m_window = &window; }

    [[nodiscard]] bool isZoomed() const override { return has(Qt::WindowMaximized); }
    void zoom() override { set(Qt::WindowMaximized, !isZoomed()); }
    [[nodiscard]] bool isInFullScreenMode() const override { return has(Qt::WindowFullScreen); }
    void enterFullScreenMode() override { set(Qt::WindowFullScreen, true); }
    void exitFullScreenMode() override { set(Qt::WindowFullScreen, false); }

private:
    [[nodiscard]] bool has(Qt::WindowState state) const
    {
        return !m_window.isNull() && m_window->windowState().testFlag(state);
    }
    void set(Qt::WindowState state, bool on)
    {
        if (!m_window.isNull()) {
            m_window->setWindowState(m_window->windowState().setFlag(state, on));
        }
    }

    QPointer<QWidget> m_window;
};

} // namespace veyrand::platform::qt
