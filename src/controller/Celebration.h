#pragma once

#include "controller/GameContext.h"
#include "present/Extra.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::engine {
class Proof;
}

namespace veyrand::controller {

class GameController;

// The reward for a solved puzzle, for the eye alone: a light along the line and the goal, a plate
// that says what it brought and counts the points up, dust of the stones. It lies within the time
// the game takes for the solved puzzle anyway, and leaves every time and record as it is.
class Celebration {
public:
    explicit Celebration(GameController& controller);

    void puzzleLaidOut();
    // The last line has met the goal; its points have not been added yet.
    void solved(long points);
    // The stones leave the board now, in one go.
    void boardEmpties();

    // Another page has opened, or none is left.
    void pageOpened(const std::string& page);

    // What stands of it, and what that follows from.
    void addTo(std::vector<present::Extra>& wanted) const;
    [[nodiscard]] std::string state() const;

private:
    [[nodiscard]] std::string headlineFor(long points, int over) const;
    [[nodiscard]] std::int64_t purse() const;
    [[nodiscard]] bool isOn() const;
    void showPlate();
    void count(int step);

    GameController& m_controller;
    GameContext& m_game;
    std::weak_ptr<engine::Proof> m_proof; // the puzzle that is being celebrated
    std::int64_t m_purseAtStart = 0;
    std::int64_t m_from = 0; // the points are counted from here
    std::int64_t m_shown = 0;
    long m_points = 0;
    unsigned m_row = 0;
    std::string m_headline; // empty while no plate is shown
    std::string m_inMoves; // in the place of points
    std::string m_hints; // what they cost, if anything
};

// Whether the page tells of a move that it opens.
[[nodiscard]] bool opensMove(std::string_view page);

} // namespace veyrand::controller
