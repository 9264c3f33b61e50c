#pragma once

#include "controller/GameController.h"
#include "desktop/qt/BoardWidget.h"

namespace veyrand::app {

// Hands a key of the board's to the game. True if the game has a use for it.
inline bool pressKey(
    controller::GameController& game, const desktop::qt::BoardWidget::KeyPress& press)
{
    using Press = controller::GameController::Press;
    return game.key(press.keys, press.isRepeated ? Press::Repeated : Press::First);
}

} // namespace veyrand::app
