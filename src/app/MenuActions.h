#pragma once

#include "controller/GameController.h"
#include "desktop/qt/GameMenu.h"

namespace veyrand::app {

// What the menu's items do to the game. The box about the program is shown by the function given.
desktop::qt::GameMenu::Actions menuActions(
    controller::GameController& controller, std::function<void()> about);

} // namespace veyrand::app
