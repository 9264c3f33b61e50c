#include "app/MainWindow.h"

#include <QScreen>

#include <algorithm>

namespace veyrand::app {

MainWindow::MainWindow(platform::qt::GameMenu& menu, platform::qt::BoardWidget& board)
    : m_menu(menu)
    , m_board(board)
{
    setWindowTitle(QStringLiteral("Veyrand"));
    setMenuBar(m_menu.bar());
    setCentralWidget(&m_board);
    // As large as comfortably fits the screen, in the game's own shape.
    constexpr double kShare = 0.85;
    constexpr double kAspect = 1.6;
    const QSizeF available = screen()->availableSize();
    const double height = std::min(available.height(), available.width() / kAspect) * kShare;
    resize(static_cast<int>(height * kAspect),
        static_cast<int>(height) + m_menu.bar()->sizeHint().height());
}

MainWindow::~MainWindow()
{
    // Both are members of the application, which outlives the window.
    m_menu.bar()->setParent(nullptr);
    m_board.setParent(nullptr);
}

} // namespace veyrand::app
