#include "app/MainWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace veyrand::app {

MainWindow::MainWindow(desktop::qt::GameMenu& menu, desktop::qt::BoardWidget& board)
    : m_menu(menu)
    , m_board(board)
{
    setWindowTitle(QStringLiteral("Veyrand"));
    setMenuBar(m_menu.bar());
    setCentralWidget(&m_board);
    addActions(m_menu.actions());
    // A window manager may change the place first and say later that it was for zooming. What has
    // stood for a moment without a word was the player's.
    constexpr int kMoment = 300; // milliseconds
    m_geometryRests.setSingleShot(true);
    m_geometryRests.setInterval(kMoment);
    QObject::connect(
        &m_geometryRests, &QTimer::timeout, this, [this] { m_ownGeometry = ownGeometry(); });
    m_board.setFocus(); // or the desktop's first key press would go to the menu bar
}

MainWindow::~MainWindow()
{
    // Both are members of the application, which outlives the window.
    m_menu.bar()->setParent(nullptr);
    m_board.setParent(nullptr);
}

void MainWindow::open(const std::optional<WindowPlace>& place)
{
    if (place) {
        QList<QRect> screens;
        for (const QScreen* const each : QGuiApplication::screens()) {
            screens.append(each->availableGeometry());
        }
        setGeometry(fittedTo(screens, place->geometry));
        m_ownGeometry = geometry();
        setWindowState(windowState().setFlag(Qt::WindowMaximized, place->zoomed));
    } else {
        constexpr double kShare = 0.85;
        constexpr double kAspect = 1.6; // the game's own shape
        const QSizeF available = screen()->availableSize();
        const double height = std::min(available.height(), available.width() / kAspect) * kShare;
        resize(static_cast<int>(height * kAspect),
            static_cast<int>(height) + m_menu.bar()->sizeHint().height());
        m_ownGeometry = geometry();
    }
    show();
}

QRect MainWindow::ownGeometry() const
{
    return isMaximized() || isFullScreen() ? m_ownGeometry : geometry();
}

void MainWindow::geometryChanged()
{
    if (!isMaximized() && !isFullScreen()) {
        m_geometryRests.start();
    }
}

void MainWindow::moveEvent(QMoveEvent* event)
{
    geometryChanged();
    QMainWindow::moveEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    geometryChanged();
    QMainWindow::resizeEvent(event);
}

void MainWindow::changeEvent(QEvent* event)
{
    // Also when the desktop changes the state by itself.
    if (event->type() == QEvent::WindowStateChange) {
        m_menu.bar()->setVisible(!isFullScreen());
        m_menu.setFullScreen(isFullScreen());
        if (isMinimized()) {
            m_board.cancelGesture();
        }
    }
    QMainWindow::changeEvent(event);
}

bool MainWindow::event(QEvent* event)
{
    // A box has opened in front; only the window is told.
    if (event->type() == QEvent::WindowBlocked) {
        m_board.cancelGesture();
    }
    // A key that is asked for before the shortcuts are goes on to the board.
    if (event->type() == QEvent::ShortcutOverride
        && m_menu.leavesAlone(static_cast<QKeyEvent*>(event)->keyCombination())) {
        event->accept();
        return true;
    }
    return QMainWindow::event(event);
}

void MainWindow::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Alt && isFullScreen()) {
        m_menu.bar()->setVisible(!m_menu.bar()->isVisible());
    }
    QMainWindow::keyReleaseEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_closing) {
        m_closing();
    }
    QMainWindow::closeEvent(event);
}

} // namespace veyrand::app
