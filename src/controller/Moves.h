#pragma once

#include "controller/GameContext.h"
#include "controller/MoveDecision.h"

namespace veyrand::controller {

class GameController;

// Turns accepted gestures into moves: decides, applies through the proof, enforces the board's
// limits, starts the animation and has the proof checked. Every refusal sounds "No" and changes
// nothing.
class Moves {
public:
    explicit Moves(GameController& controller);

    void mouseClick(unsigned row, unsigned column);
    // True if a move was made.
    bool mouseDrag(unsigned fromRow, unsigned fromColumn, unsigned toRow, unsigned toColumn);

    [[nodiscard]] std::optional<unsigned> rowToDrag() const;
    [[nodiscard]] std::optional<std::vector<unsigned>> areasToTrack(
        unsigned row, unsigned column) const;
    [[nodiscard]] unsigned lengthOfRow(unsigned row) const;

private:
    [[nodiscard]] bool checkTheoremLength() const;
    [[nodiscard]] bool checkLastLine() const;
    [[nodiscard]] bool canPlay() const;
    [[nodiscard]] const engine::Theorem& lastLine() const;
    bool apply(const std::optional<MoveDecision>& move);
    void animate(const MoveDecision& move, const std::string& lineBefore, unsigned row);
    void settleWhenOver(MoveAnimation animation, unsigned row);
    void moveMade();
    void playNoRuleApplied() const;

    GameController& m_controller;
    GameContext& m_game;
};

} // namespace veyrand::controller
