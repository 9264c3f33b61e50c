#pragma once

#include "board/LineDrawing.h"

namespace veyrand::board {

// Draws the goal line at the bottom of the board and flies it onto the line that matches it. Holds
// the goal's chips from the drawing until they have flown.
class GoalDrawing {
public:
    GoalDrawing(GameData& gameData, LineDrawing& lines, platform::RunLoop& runLoop)
        : m_gameData(gameData)
        , m_lines(lines)
        , m_runLoop(runLoop)
    {
    }

    // The goal slides from near the top down to its row while fading in to 70 %.
    void drawGoal(const std::string& goal);

    // The goal flies up onto the row and nearly vanishes; a second later its chips go.
    void goalMetAtRow(unsigned row);

    [[nodiscard]] const Chips& goalLine() const { return m_goalLine; }

private:
    void goalMet2();
    void sendGoalTo(unsigned row, float opacity);

    GameData& m_gameData;
    LineDrawing& m_lines;
    platform::RunLoop& m_runLoop;
    Chips m_goalLine;
};

} // namespace veyrand::board
