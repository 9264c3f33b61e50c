#pragma once

#include "controller/GameContext.h"

namespace veyrand::controller {

// The hint stage reached on the last line, and what it has put on the board.
class Hints {
public:
    explicit Hints(GameContext& game)
        : m_game(game)
    {
    }

    // 0 none given on this line, 1 the last good line is marked, 2 the next line's pieces are
    // shown.
    [[nodiscard]] int hintMode() const { return m_hintMode; }

    // Ends any hint on the current line.
    void resetHintMode();

private:
    void clearHint();

    GameContext& m_game;
    int m_hintMode = 0;
};

} // namespace veyrand::controller
