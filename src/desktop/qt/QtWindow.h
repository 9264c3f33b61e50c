#pragma once

#include "platform/Window.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace veyrand::desktop::qt {

// The main window's modes as the desktop's window manager keeps them. What is asked for in one go
// reaches the window manager as one request: some forget that a window was zoomed while it covers
// the screen, and bring up a zoomed one when told to leave both modes at once. So here it is known
// what the window will be when it no longer covers the screen. The game is built before its window,
// so the window is told later; until then nothing is zoomed and nothing happens.
class QtWindow final : public platform::Window {
public:
    void setMainWindow(QWidget& window) { m_window = &window; }

    [[nodiscard]] bool isZoomed() const override { return modes().zoomed; }
    void zoom() override;
    [[nodiscard]] bool isInFullScreenMode() const override { return modes().fullScreen; }
    void enterFullScreenMode() override;
    void exitFullScreenMode() override;

private:
    struct Modes {
        bool zoomed = false;
        bool fullScreen = false;
    };

    [[nodiscard]] Modes modes() const;
    void want(const Modes& modes);
    void request();

    QPointer<QWidget> m_window;
    std::optional<Modes> m_wanted; // and not yet asked for
    bool m_zoomedBelow = false; // of a window in full-screen mode
};

} // namespace veyrand::desktop::qt
