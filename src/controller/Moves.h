#pragma once

#include "board/Choreography.h"
#include "controller/GameContext.h"
#include "play/Move.h"
#include "play/Position.h"

namespace veyrand::controller {

class GameController;

// Makes the moves that gestures come to: asks for the decision, has the proof apply it, starts the
// animation and has the proof checked. Every refusal that reaches it sounds "No".
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

    // What the gestures are held against. It refers to the proof in play.
    [[nodiscard]] play::Position position() const;

    // A move that has been decided elsewhere.
    void make(const play::Move& move);

    // The animation of the move that made the row's line; input stays blocked for as long as it
    // takes.
    void show(const board::Choreography& choreography, const std::string& lineBefore, unsigned row);
    // Animations under way have been overtaken: what they promised to make good at their end is.
    void abandonSettling() { ++m_abandoned; }

private:
    bool perform(const play::Gesture& gesture);
    void make(const play::Move& move, const board::Choreography& choreography);
    void settleAfter(double seconds, unsigned row);
    void playNoRuleApplied() const;

    GameController& m_controller;
    GameContext& m_game;
    unsigned m_abandoned = 0;
};

} // namespace veyrand::controller
