#pragma once

#include "controller/GameContext.h"
#include "play/Replay.h"

#include <vector>

namespace veyrand::controller {

class GameController;

// Shows a list of actions on the board, one after another, each as whoever did it saw it, and ends
// with the last puzzle as it was left. The game must be nobody's: its record is written over. Input
// is for the owner to keep away.
class ReplayShow {
public:
    // The actions follow from each other, the first is a puzzle. The controller outlives the show.
    ReplayShow(GameController& controller, std::vector<play::Action> actions);
    ReplayShow(const ReplayShow&) = delete;
    ReplayShow& operator=(const ReplayShow&) = delete;
    ~ReplayShow() = default;

    void start();
    [[nodiscard]] bool isOver() const { return m_isOver; }
    // Where the actions shown so far lead.
    [[nodiscard]] const play::Replay& shown() const { return m_shown; }

private:
    void next();
    void whenAtRest();
    void layOut(const play::Replay& replay);
    void show(const play::Action& action);
    void show(const play::Puzzle& puzzle);
    void show(const play::Move& move);
    void show(const play::Remove& removal);
    void show(const play::Hint& hint);
    void show(const play::Undo& undo);
    void show(const play::Redo& redo);
    void show(const play::Leave& leave);

    GameController& m_controller;
    GameContext& m_game;
    std::vector<play::Action> m_actions;
    std::size_t m_at = 0;
    play::Replay m_shown;
    play::Replay m_atItsEnd; // the puzzle in play, but for its being left
    bool m_isOver = false;
};

} // namespace veyrand::controller
