#pragma once

#include "app/WindowPlace.h"
#include "desktop/qt/BoardWidget.h"
#include "desktop/qt/GameMenu.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>

namespace veyrand::app {

// The window: the menu bar and, below it, the board. In full-screen mode the bar is hidden, Alt
// brings it back and its shortcuts go on working.
class MainWindow final : public QMainWindow {
public:
    // Takes the menu's bar and the widget into its own keeping only for as long as it lives.
    MainWindow(desktop::qt::GameMenu& menu, desktop::qt::BoardWidget& board);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

    // Before the window is shown: as it was left, as far as today's screens allow; or, for the
    // first time, as large as comfortably fits.
    void open(const std::optional<WindowPlace>& place);
    // Its place when it is neither zoomed nor in full-screen mode.
    [[nodiscard]] QRect ownGeometry() const;

    // Called whenever the window is about to go.
    void setClosingListener(std::function<void()> closing) { m_closing = std::move(closing); }

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void geometryChanged();

    desktop::qt::GameMenu& m_menu;
    desktop::qt::BoardWidget& m_board;
    std::function<void()> m_closing;
    QRect m_ownGeometry;
    QTimer m_geometryRests;
};

} // namespace veyrand::app
