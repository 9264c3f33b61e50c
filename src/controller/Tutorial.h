#pragma once

#include "controller/GameContext.h"
#include "play/Position.h"

namespace veyrand::controller {

class GameController;

// The lessons that accept only the gesture they ask for, and answer every other with a note that
// points at the right place. Keeps nothing but whether the tutorial runs: which gate stands follows
// from the place in the Classic game and the number of lines.
class Tutorial {
public:
    explicit Tutorial(GameController& controller);

    // It runs from the launch; the how-to-play page sets it once more, and nothing ends it.
    [[nodiscard]] bool running() const { return m_running; }
    void start() { m_running = true; }

    // What the gate that stands accepts; nothing while every gesture may go on.
    [[nodiscard]] std::optional<play::Lesson> lesson() const;

    // Whether the gesture may go on to the board; if not, a note has been shown. Rows and columns
    // are zero-based.
    [[nodiscard]] bool checkTutorialClick(unsigned row, unsigned column);
    [[nodiscard]] bool checkTutorialDrag(
        unsigned fromRow, unsigned fromColumn, unsigned toRow, unsigned toColumn);

private:
    [[nodiscard]] const Gate* gate() const;
    [[nodiscard]] bool isAccepted(const play::Gesture& gesture);

    GameController& m_controller;
    GameContext& m_game;
    bool m_running = true;
};

} // namespace veyrand::controller
