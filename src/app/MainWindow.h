#pragma once

#include "platform/qt/BoardWidget.h"
#include "platform/qt/GameMenu.h"

#include <QMainWindow>

namespace veyrand::app {

// The window: the menu bar and, below it, the board.
class MainWindow final : public QMainWindow {
public:
    // Takes the menu's bar and the widget into its own keeping only for as long as it lives.
    MainWindow(platform::qt::GameMenu& menu, platform::qt::BoardWidget& board);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;
    ~MainWindow() override;

private:
    platform::qt::GameMenu& m_menu;
    platform::qt::BoardWidget& m_board;
};

} // namespace veyrand::app
