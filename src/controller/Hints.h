#pragma once

#include "controller/GameContext.h"
#include "play/Session.h"

namespace veyrand::controller {

class GameController;

// The help that a player can buy, revealed in three clicks: the mark that the proof is good so far
// (or the walk back to where it was), the pieces of the next line, the pieces in their places.
// Shows it; what is found out, and how far the help has come, is the puzzle's in play.
class Hints {
public:
    explicit Hints(GameController& controller);

    // The light bulb: a hint for 50 points, or the word that there are too few.
    void lightBulbClick();

    // One click's worth of hint, its price already taken.
    void hintClick();
    void practiceClick();
    void giveHint();

    // A hint that has been decided elsewhere, paid for here.
    void give(const play::Hint& hint);

    // 0 none given on this line, 1 the last good line is marked, 2 the next line's pieces are
    // shown.
    [[nodiscard]] int hintMode() const { return static_cast<int>(stage()); }

    // Takes any hint on the current line off the board.
    void resetHintMode();
    // What was left of a hint on the last line, on a board that has been laid out anew.
    void drawAsLeft();
    // Takes away the hint's chips.
    void clearHint();

    // The next step of the walk back: a bad line goes from the end, one every half second, or the
    // last good one is marked. Input stays blocked until then.
    void findLastGood();

private:
    [[nodiscard]] bool isFirstHintOfPlayer();
    [[nodiscard]] play::HintStage stage() const;
    // Its price is taken; given back when the puzzle takes no hint now.
    void apply(const play::Hint& hint);
    void show(play::Hint::Kind kind, const play::Outcome& outcome);
    void showPieces();
    void drawPieces();
    void placePieces();
    void completeHint();
    void walkBack(const play::Outcome& outcome);
    void lastGoodFound();

    GameController& m_controller;
    GameContext& m_game;
};

} // namespace veyrand::controller
