#include "app/MenuActions.h"

namespace veyrand::app {

desktop::qt::GameMenu::Actions menuActions(
    controller::GameController& controller, std::function<void()> about)
{
    return { .classicGame = [&controller] { controller.flow().newClassicGame(); },
        .endlessGame = [&controller] { controller.flow().newEndlessGame(); },
        .quit = [&controller] { controller.context().quit.terminate(); },
        .musicChanged = [&controller] { controller.musicMenuClick(); },
        .settingsChanged = [&controller] { controller.answers().settingsChanged(); },
        .toggleFullScreen = [&controller] { controller.toggleFullscreen(); },
        .exitFullScreen = [&controller] { controller.exitFullscreen(); },
        .howToPlay = [&controller] { controller.showHowToPlay(); },
        .moves = [&controller] { controller.pages().show("movesMessageWindow"); },
        .about = std::move(about),
        .canStartGame = [&controller] { return controller.canStartGame(); },
        .canOpenPage = [&controller] { return controller.canOpenPage(); },
        .canListMoves = [&controller] { return controller.canListMoves(); } };
}

} // namespace veyrand::app
