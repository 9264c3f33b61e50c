#include "app/MenuActions.h"

namespace veyrand::app {

namespace {

using Step = desktop::qt::GameMenu::Actions::Step;

Step stepFor(std::optional<controller::History::Kind> kind)
{
    if (!kind) {
        return Step::None;
    }
    return *kind == controller::History::Kind::Move ? Step::Move : Step::Removal;
}

} // namespace

desktop::qt::GameMenu::Actions menuActions(
    controller::GameController& controller, std::function<void()> about)
{
    return { .classicGame = [&controller] { controller.flow().newClassicGame(); },
        .endlessGame = [&controller] { controller.flow().newEndlessGame(); },
        .quit = [&controller] { controller.context().quit.terminate(); },
        .undo = [&controller] { controller.history().undo(); },
        .redo = [&controller] { controller.history().redo(); },
        .musicChanged = [&controller] { controller.musicMenuClick(); },
        .settingsChanged =
            [&controller] {
                controller.answers().settingsChanged();
                controller.kept().settingsChanged();
            },
        .toggleFullScreen = [&controller] { controller.toggleFullscreen(); },
        .exitFullScreen = [&controller] { controller.escape(); },
        .howToPlay = [&controller] { controller.showHowToPlay(); },
        .takingBack = [&controller] { controller.pages().show("takingBackMessageWindow"); },
        .moves = [&controller] { controller.pages().show("movesMessageWindow"); },
        .scoring = [&controller] { controller.pages().show("scoringMessageWindow"); },
        .about = std::move(about),
        .canStartGame = [&controller] { return controller.canStartGame(); },
        .canUndo = [&controller] { return controller.history().canUndo(); },
        .canRedo = [&controller] { return controller.history().canRedo(); },
        .canOpenPage = [&controller] { return controller.canOpenPage(); },
        .canListMoves = [&controller] { return controller.canListMoves(); },
        .undoes = [&controller] { return stepFor(controller.history().undoes()); },
        .redoes = [&controller] { return stepFor(controller.history().redoes()); } };
}

} // namespace veyrand::app
