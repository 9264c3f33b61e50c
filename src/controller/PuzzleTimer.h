#pragma once

#include "controller/GameContext.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace veyrand::controller {

// How long the puzzle in play takes, where the player wants to know it: from the moment it lies
// there to the move that solves it. Who makes a long pause has gone away, or put the window aside,
// which the board cannot tell: so one counts for five minutes at most. Of a puzzle that an earlier
// launch has left unfinished nobody knows how long it took, and it is not timed.
class PuzzleTimer {
public:
    explicit PuzzleTimer(GameContext& game)
        : m_game(game)
    {
    }

    // A puzzle lies on the board; what lay there before has been left. Its name is its own.
    void begin(const std::string& puzzle);
    // It is one that was left unfinished.
    void resume();
    // A move, a removal, a hint.
    void acted();
    // It has been solved: whole seconds, and at least one; 0 when it was not timed.
    [[nodiscard]] std::uint64_t end();
    void leave();

private:
    GameContext& m_game;
    std::map<std::string, double> m_left; // s, of those unfinished since the launch
    std::string m_puzzle;
    std::optional<double> m_taken; // s; nothing while nothing is timed
    double m_since = 0.0;
};

} // namespace veyrand::controller
