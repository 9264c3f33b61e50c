#pragma once

#include "board/GameData.h"
#include "progress/CurrentGame.h"

namespace veyrand::board {

struct Button;

// Draws the panel left of the lines: buttons, captions and counters, as the mode of the current
// game wants them.
class PanelDrawing {
public:
    PanelDrawing(GameData& gameData, const progress::CurrentGame& currentGame)
        : m_gameData(gameData)
        , m_currentGame(currentGame)
    {
    }

    // Draws every button anew and has their hit areas rebuilt.
    void drawButtons();
    void drawLabels();
    // Sets the counters to the current game's score, position and par. Each shows a change at once.
    void drawCounters();

private:
    void drawButton(const Button& button);
    void drawEndlessButton(const Button& button);
    void fadeInUncoloured(const Button& button);
    void setCounter(std::string_view key, const std::string& text);

    GameData& m_gameData;
    const progress::CurrentGame& m_currentGame;
};

} // namespace veyrand::board
