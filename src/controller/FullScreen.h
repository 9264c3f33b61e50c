#pragma once

#include "controller/GameContext.h"

namespace veyrand::controller {

class GameController;

// Takes the window over the whole screen and back. A window goes there zoomed, so that nothing of
// the desktop shows around it, and comes back as it was; what is on the board stays as it is.
class FullScreen {
public:
    explicit FullScreen(GameController& controller);

    void toggleFullscreen();
    // Nothing happens out of full-screen mode.
    void exitFullscreen();

    // Whether entering zoomed the window, so that leaving zooms it back.
    [[nodiscard]] bool originallyZoomed() const { return m_originallyZoomed; }
    // Whether the window would be zoomed out of full-screen mode: what is worth remembering.
    [[nodiscard]] bool staysZoomed() const;

private:
    void enter();
    void leave();

    GameController& m_controller;
    GameContext& m_game;
    bool m_originallyZoomed = false;
};

} // namespace veyrand::controller
