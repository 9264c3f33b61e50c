#pragma once

#include "controller/GameContext.h"
#include "engine/HintHelper.h"

namespace veyrand::controller {

class GameController;

// The help that a player can buy, revealed in three clicks: the mark that the proof is good so far
// (or the walk back to where it was), the pieces of the next line, the pieces in their places.
// Holds the stage reached on the last line and the search behind it; both end with the line.
class Hints {
public:
    explicit Hints(GameController& controller);

    // The light bulb: a hint for 50 points, or the word that there are too few.
    void lightBulbClick();

    // One click's worth of hint, its price already taken.
    void hintClick();

    // 0 none given on this line, 1 the last good line is marked, 2 the next line's pieces are
    // shown.
    [[nodiscard]] int hintMode() const { return m_hintMode; }

    // Ends any hint on the current line.
    void resetHintMode();
    // Takes away the hint's chips.
    void clearHint();

    // Removes bad lines from the end, one every half second, and marks the last good one. Input
    // stays blocked until then.
    void findLastGood();

private:
    [[nodiscard]] bool isFirstHintOfPlayer();
    void markLastLine(bool isGood);
    void showPieces(const engine::HintHelper& helper);
    void placePieces(const engine::HintHelper& helper);
    void completeHint(const engine::Theorem& line);
    void lastGoodFound();

    GameController& m_controller;
    GameContext& m_game;
    int m_hintMode = 0;
    std::optional<engine::HintHelper> m_hintHelper; // of the lines as they stand
};

} // namespace veyrand::controller
