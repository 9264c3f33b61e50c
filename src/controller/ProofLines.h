#pragma once

#include "controller/GameContext.h"
#include "play/Session.h"

namespace veyrand::controller {

class GameController;

// The lines of the proof in play, on the board and in the proof: the test whether it is solved and
// the celebration that follows, and every removal of lines.
class ProofLines {
public:
    explicit ProofLines(GameController& controller);

    // Celebrates when the last line is the goal: score and sound at once, then the delete buttons
    // go, the goal flies, the board empties and the next puzzle comes, all while input is blocked.
    bool checkProofComplete();

    // Removes the rows' chips and lines and, if asked, their delete buttons.
    enum class DeleteButtons { Keep, Remove };
    void clearProof(unsigned firstRow, unsigned count, DeleteButtons buttons);
    void clearProof();
    // The same for lines that the puzzle in play has lost already.
    void clearRows(
        unsigned firstRow, const std::vector<engine::Theorem>& lines, DeleteButtons buttons);

    // Removes the row and every row below it; they shrink away.
    void deleteClick(unsigned row);

    void removeAllDeleteButtons();

    // The lines that have gone shrink away, their buttons at once.
    void dropRows(const play::Outcome& outcome);

private:
    void removeDeleteButtons(unsigned firstRow, unsigned count);
    void calculateScore();

    GameController& m_controller;
    GameContext& m_game;
};

} // namespace veyrand::controller
