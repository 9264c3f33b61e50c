#pragma once

#include "board/Board.h"
#include "board/Tempo.h"
#include "controller/TutorialScript.h"
#include "input/GameView.h"
#include "language/Texts.h"
#include "platform/Alerts.h"
#include "platform/Calendar.h"
#include "platform/Clipboard.h"
#include "platform/FileExchange.h"
#include "platform/Journal.h"
#include "platform/Log.h"
#include "platform/MotionWish.h"
#include "platform/OverlayWindow.h"
#include "platform/Preferences.h"
#include "platform/Quit.h"
#include "platform/Resources.h"
#include "platform/Window.h"
#include "present/BoardLayers.h"
#include "progress/CurrentGame.h"

#include <functional>

namespace veyrand::controller {

// Everything outside the controller that its collaborators work on. Owned by whoever assembles the
// game, and outlives it.
struct GameContext {
    progress::CurrentGame& currentGame;
    board::Board& board;
    present::BoardLayers& layers;
    input::GameView& view;
    platform::RunLoop& runLoop;
    platform::RunLoop& pacedLoop; // for whatever waits for the board
    board::Tempo& tempo;
    platform::Preferences& preferences;
    platform::Sounds& sounds;
    const platform::SoundEffects& effects;
    const TutorialScript& script;
    language::Texts& texts;
    platform::Log& log;
    platform::Quit& quit;
    platform::OverlayWindow& overlay;
    platform::Window& window;
    platform::Alerts& alerts;
    // Calls its argument when the offer to install the game is answered. Without one nothing is
    // offered.
    std::function<void(std::function<void()>)> offerInstallation;
    platform::Journal* journal; // null: no puzzle outlasts the board
    platform::MotionWish* motionWish; // null: the desktop has none
    const platform::Resources& resources;
    const platform::Calendar* calendar; // null: it is always the first day of 1970
    platform::Clipboard* clipboard; // null: nothing can be copied or pasted
    platform::FileExchange* exchange; // null: nothing can be exported or imported
};

} // namespace veyrand::controller
