#pragma once

#include "controller/GameContext.h"
#include "play/Session.h"

#include <optional>

namespace veyrand::controller {

class GameController;

// Undo and redo, as the board shows them: a line goes as by its delete button, lines come back one
// after another, a move is shown again. What there is to undo is the puzzle's in play to know.
//
// A step may follow before the one before it has been shown: whatever moves is then put in its
// place at once. So a key that is held down walks as fast as it repeats. A block that anything else
// began is waited for.
class History {
public:
    explicit History(GameController& controller);

    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    // What that would be, whether or not it may be done at the moment.
    using Kind = play::Replay::StepKind;
    [[nodiscard]] std::optional<Kind> undoes() const;
    [[nodiscard]] std::optional<Kind> redoes() const;

    // Nothing happens when it may not be done.
    void undo();
    void redo();

private:
    [[nodiscard]] bool mayStep() const;
    [[nodiscard]] bool isOwnBlock() const;
    [[nodiscard]] bool prepare();
    void settleAll();
    void showGone(const play::Outcome& outcome);
    void showRemovalUndone(const play::Outcome& outcome);
    void showMoveAgain(const play::Outcome& outcome);

    GameController& m_controller;
    GameContext& m_game;
    unsigned m_steps = 0; // taken; what one left for later is nothing to the next
    unsigned m_firstRow = 0; // that the last one changed
    double m_delayUntil = 0.0; // of the block that it began
    std::optional<double> m_lastDing; // when
};

} // namespace veyrand::controller
