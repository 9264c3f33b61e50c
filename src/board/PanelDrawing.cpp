#include "board/PanelDrawing.h"

#include "board/Buttons.h"

#include <array>

namespace veyrand::board {

namespace {

constexpr double kPanelX = 0.3;

// A caption has an image and a size. A counter has a text, until drawCounters sets the real one,
// and is as large as that turns out.
struct PanelItem {
    std::string_view key;
    std::string_view imageOrText;
    double y;
    double width = 0.0;
    double height = 0.0;

    [[nodiscard]] bool isCounter() const { return width == 0.0; }
};

constexpr std::array kClassicItems { PanelItem { "label-points", "Points", 0.9, 0.2, 0.06 },
    PanelItem { "counter-score", "0", 0.8 },
    PanelItem { "label-stage", "Stage", 0.7, 0.271186440677966, 0.08150943396226 },
    PanelItem { "label-par", "Par", 0.5, 0.2, 0.06 }, PanelItem { "counter-stage", "1-1", 0.6 },
    PanelItem { "counter-par", "1", 0.4 } };

constexpr std::array kEndlessItems { PanelItem { "label-points", "Points", 0.9, 0.2, 0.06 },
    PanelItem { "counter-score", "0", 0.8 }, PanelItem { "label-par", "Par", 0.7, 0.2, 0.06 },
    PanelItem { "counter-par", "5", 0.6 } };

} // namespace

void PanelDrawing::drawButtons()
{
    forEachButton(ButtonScreen::Board, [this](const Button& button) { drawButton(button); });
    if (m_currentGame.endlessGame()) {
        forEachButton(ButtonScreen::EndlessBoard,
            [this](const Button& button) { drawEndlessButton(button); });
    }
    if (m_gameData.buttonTracking() != nullptr) {
        m_gameData.buttonTracking()->establishButtonTracking();
    }
}

// The lit face is added first, and so lies in front.
void PanelDrawing::drawButton(const Button& button)
{
    const std::string litKey(button.litKey);
    m_gameData.gameObjects().removeGameObjectForKey(litKey);
    m_gameData.gameObjects().addGameObject(
        std::make_shared<GameObject>(std::string(button.picture), button.x, button.y, button.width,
            button.height, 0.0, true),
        litKey);
    m_gameData.gameObjects().removeGameObjectForKey(std::string(button.key));
    fadeInUncoloured(button);
}

void PanelDrawing::drawEndlessButton(const Button& button)
{
    m_gameData.fadeInImage(button.picture, button.x, button.y, button.width, button.height, 0.0,
        std::string(button.litKey));
    fadeInUncoloured(button);
}

void PanelDrawing::fadeInUncoloured(const Button& button)
{
    m_gameData.fadeInImage(uncolouredPicture(button), button.x, button.y, button.width,
        button.height, 1.0, std::string(button.key));
}

void PanelDrawing::drawLabels()
{
    const auto draw = [this](const auto& items) {
        for (const PanelItem& item : items) {
            const std::string key(item.key);
            if (item.isCounter()) {
                m_gameData.fadeInCounter(
                    std::string(item.imageOrText), kPanelX, item.y, 0.0, 0.0, key);
            } else {
                m_gameData.fadeInLabel(
                    item.imageOrText, kPanelX, item.y, item.width, item.height, key);
            }
        }
    };
    if (m_currentGame.endlessGame()) {
        draw(kEndlessItems);
    } else {
        draw(kClassicItems);
    }
}

void PanelDrawing::drawCounters()
{
    const bool endless = m_currentGame.endlessGame();
    const auto& practice = m_currentGame.practice();
    setCounter("counter-score",
        practice ? "\u2013"
                 : std::to_string(endless ? m_currentGame.endlessScore() : m_currentGame.score()));
    if (!endless) {
        setCounter("counter-stage",
            practice ? practice->caption
                     : std::to_string(m_currentGame.level()) + '-'
                    + std::to_string(m_currentGame.stage()));
    }
    // The player counts moves; the par is kept in lines, the start line included.
    setCounter("counter-par", std::to_string(m_currentGame.par() - 1));
}

void PanelDrawing::setCounter(std::string_view key, const std::string& text)
{
    m_gameData.changeText(text, m_gameData.gameObjects().objectForKey(key));
}

} // namespace veyrand::board
