#pragma once

#include "board/GoalDrawing.h"
#include "board/HintDrawing.h"
#include "board/MoveAnimations.h"
#include "board/PanelDrawing.h"

namespace veyrand::board {

// The board of one game with everything that draws on it. Owned by the application (or a test); the
// controller is handed a reference.
struct Board {
    Board(GameData& data, const progress::CurrentGame& currentGame, platform::RunLoop& runLoop)
        : gameData(data)
        , lines(data, runLoop)
        , goal(data, lines, runLoop)
        , panel(data, currentGame)
        , hints(data)
        , animations(data, lines, runLoop)
    {
    }

    // Clears the table and lays out a new puzzle.
    void newGame(const std::string& startLine, const std::string& goalLine)
    {
        gameData.gameObjects().removeAllEntries();
        lines.createChipsForTheorem(startLine, 0);
        goal.drawGoal(goalLine);
        panel.drawLabels();
        panel.drawButtons();
    }

    GameData& gameData;
    LineDrawing lines;
    GoalDrawing goal;
    PanelDrawing panel;
    HintDrawing hints;
    MoveAnimations animations;
};

} // namespace veyrand::board
