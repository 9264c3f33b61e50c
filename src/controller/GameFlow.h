#pragma once

#include "controller/GameContext.h"

#include <functional>

namespace veyrand::controller {

class GameController;

// Starts, continues and advances games, holds the proof in play, and saves progress to the player's
// record after every puzzle.
class GameFlow {
public:
    explicit GameFlow(GameController& controller);

    // The puzzle in play, null on the title page and after the last Classic puzzle.
    [[nodiscard]] const std::shared_ptr<engine::Proof>& proof() const { return m_proof; }

    // The title page's entries.
    void newClassicGame();
    void newEndlessGame();

    void startClassicGame();
    void startEndlessGame();
    // What follows a solved puzzle: the next one.
    void puzzleFinished();
    void nextLevel();
    void returnToMenu();

    // Puts the current game's puzzle on the board, without greeting or music.
    void layOutPuzzle();

private:
    void startMusic();
    void saveClassicPosition();
    void saveEndlessScore();
    [[nodiscard]] std::string playerName() const;

    GameController& m_controller;
    GameContext& m_game;
    std::shared_ptr<engine::Proof> m_proof;
};

} // namespace veyrand::controller
