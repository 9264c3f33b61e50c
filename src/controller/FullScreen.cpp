#include "controller/FullScreen.h"

#include "controller/GameController.h"

namespace veyrand::controller {

FullScreen::FullScreen(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

void FullScreen::toggleFullscreen()
{
    if (m_game.window.isInFullScreenMode()) {
        leave();
    } else {
        enter();
    }
    m_game.view.reestablishTracking();
    if (!m_game.view.messageWindow()) {
        m_game.view.turnOnAllHovers(); // nothing lights up under a page
    }
    if (m_controller.isPuzzleOnBoard()) {
        m_controller.flow().regenerateBoard();
    }
}

void FullScreen::exitFullscreen()
{
    if (m_game.window.isInFullScreenMode()) {
        toggleFullscreen();
    }
}

bool FullScreen::staysZoomed() const
{
    return m_game.window.isZoomed() && !(m_originallyZoomed && m_game.window.isInFullScreenMode());
}

void FullScreen::enter()
{
    m_originallyZoomed = !m_game.window.isZoomed();
    if (m_originallyZoomed) {
        m_game.window.zoom();
    }
    m_game.window.enterFullScreenMode();
    if (m_controller.isPuzzleOnBoard()) {
        m_game.board.panel.drawButtons(); // the title page has none
    }
}

void FullScreen::leave()
{
    m_game.window.exitFullScreenMode();
    if (m_originallyZoomed && m_game.window.isZoomed()) {
        m_game.window.zoom();
    }
}

} // namespace veyrand::controller
