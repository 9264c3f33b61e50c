#include "controller/Hints.h"

namespace veyrand::controller {

namespace {

constexpr unsigned kMostHintChips = 12;

} // namespace

void Hints::resetHintMode()
{
    if (m_hintMode == 2) {
        clearHint();
    }
    m_hintMode = 0;
    m_game.board.hints.clearProofGoodSoFar();
}

void Hints::clearHint()
{
    board::ObjectTable& table = m_game.board.gameData.gameObjects();
    for (unsigned i = 0; i < kMostHintChips; ++i) {
        const std::string key = board::chipKey("hint", i, board::kHintRow);
        if (!table.contains(key)) {
            // A line shorter than the board's width leaves the mark alone; resetting clears it
            // anyway.
            return;
        }
        table.removeGameObjectForKey(key);
    }
    m_game.board.hints.clearProofGoodSoFar();
}

} // namespace veyrand::controller
