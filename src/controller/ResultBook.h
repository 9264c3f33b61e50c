#pragma once

#include "controller/KeptText.h"
#include "controller/PuzzleTimer.h"
#include "play/Results.h"

#include <map>

namespace veyrand::controller {

class GameController;

// Keeps what has been solved, in a file of its own beside the unfinished puzzles: never in the
// player's record. Without a journal it lasts as long as the game.
class ResultBook {
public:
    explicit ResultBook(GameController& controller);

    // Before anything is shown.
    void load();

    [[nodiscard]] const play::Results& results() const { return m_results; }
    [[nodiscard]] progress::CalendarDate today() const;
    [[nodiscard]] play::Statistics statistics() const;

    // The solution to look at again: the last one since the launch, or the one that is kept. Null
    // when there is none.
    [[nodiscard]] const play::Result* toReplay(const std::string& name) const;

    // The puzzle in play has been solved, under this name.
    void solved(const std::string& name);
    void playerKnowsAllMoves();
    // The better of each result.
    void join(const play::Results& others);
    void replace(const play::Results& others);

    [[nodiscard]] PuzzleTimer& timer() { return m_timer; }

    // The names of the puzzles of both modes as they are kept; empty for what is not kept.
    [[nodiscard]] std::string nameOfPuzzleInPlay() const;

private:
    void save();

    GameController& m_controller;
    GameContext& m_game;
    KeptText m_file;
    PuzzleTimer m_timer;
    play::Results m_results;
    std::map<std::string, play::Result> m_latest; // since the launch
};

} // namespace veyrand::controller
