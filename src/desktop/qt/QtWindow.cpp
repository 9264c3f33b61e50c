#include "desktop/qt/QtWindow.h"

#include <QTimer>

#include <utility>

namespace veyrand::desktop::qt {

QtWindow::Modes QtWindow::modes() const
{
    if (m_window.isNull()) {
        return {};
    }
    if (m_wanted) {
        return *m_wanted;
    }
    return m_window->isFullScreen() ? Modes { m_zoomedBelow, true }
                                    : Modes { m_window->isMaximized(), false };
}

void QtWindow::zoom()
{
    want({ !modes().zoomed, modes().fullScreen });
}

void QtWindow::enterFullScreenMode()
{
    want({ modes().zoomed, true });
}

void QtWindow::exitFullScreenMode()
{
    want({ modes().zoomed, false });
}

void QtWindow::want(const Modes& modes)
{
    if (m_window.isNull()) {
        return;
    }
    if (!m_wanted) {
        QTimer::singleShot(0, m_window, [this] { request(); });
    }
    m_wanted = modes;
}

void QtWindow::request()
{
    const Modes wanted = std::exchange(m_wanted, std::nullopt).value();
    m_zoomedBelow = wanted.zoomed;
    if (wanted.fullScreen) {
        m_window->setWindowState(m_window->windowState() | Qt::WindowFullScreen);
    } else {
        m_window->setWindowState(wanted.zoomed ? Qt::WindowMaximized : Qt::WindowNoState);
    }
}

} // namespace veyrand::desktop::qt
