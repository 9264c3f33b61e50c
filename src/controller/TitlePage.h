#pragma once

#include "controller/GameContext.h"

namespace veyrand::controller {

// The title page: artwork, the three buttons, and badges that tell what they lead to.
class TitlePage {
public:
    explicit TitlePage(GameContext& game)
        : m_game(game)
    {
    }

    void createTitleAndStartButtons();

    // Which saved games there are: 3 none, 0 Endless, 5 Classic, 2 both.
    [[nodiscard]] int flagOngoingGames() const;

private:
    GameContext& m_game;
};

} // namespace veyrand::controller
