#pragma once

#include "board/GameData.h"
#include "progress/CurrentGame.h"

namespace veyrand::board {

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
    void drawButton(std::string_view name, std::string_view image, double y);
    void drawEndlessButton(std::string_view name, std::string_view image, double y);
    void setCounter(std::string_view key, const std::string& text);

    GameData& m_gameData;
    const progress::CurrentGame& m_currentGame;
};

} // namespace veyrand::board
