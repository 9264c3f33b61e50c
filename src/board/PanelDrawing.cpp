#include "board/PanelDrawing.h"

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
    drawButton("lightbulb", "HintButton", 0.275);
    drawButton("movesbutton", "MovesButton", 0.2);
    drawButton("menubutton", "MenuButton", 0.125);
    if (m_currentGame.endlessGame()) {
        drawEndlessButton("harderbutton", "HarderEasierTop", 0.485);
        drawEndlessButton("easierbutton", "HarderEasierBottom", 0.3985);
    }
    if (m_gameData.buttonTracking() != nullptr) {
        m_gameData.buttonTracking()->establishButtonTracking();
    }
}

// A button is two records in one place. The lit face is added first, and so lies in front and is
// the one that is hit, though it shows only under the pointer.
void PanelDrawing::drawButton(std::string_view name, std::string_view image, double y)
{
    constexpr double kWidth = 0.15;
    constexpr double kHeight = 0.06880733944954;
    const std::string key = "button-" + std::string(name);
    m_gameData.gameObjects().removeGameObjectForKey(key + "on");
    m_gameData.gameObjects().addGameObject(
        std::make_shared<GameObject>(std::string(image), kPanelX, y, kWidth, kHeight, 0.0, true),
        key + "on");
    m_gameData.gameObjects().removeGameObjectForKey(key + "off");
    m_gameData.fadeInImage(
        std::string(image) + "Uncoloured", kPanelX, y, kWidth, kHeight, 1.0, key + "off");
}

void PanelDrawing::drawEndlessButton(std::string_view name, std::string_view image, double y)
{
    constexpr double kWidth = 0.2;
    constexpr double kHeight = 0.08703703703704;
    const std::string key = "button-" + std::string(name);
    m_gameData.fadeInImage(image, kPanelX, y, kWidth, kHeight, 0.0, key + "on");
    m_gameData.fadeInImage(
        std::string(image) + "Uncoloured", kPanelX, y, kWidth, kHeight, 1.0, key + "off");
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
    setCounter("counter-score",
        std::to_string(endless ? m_currentGame.endlessScore() : m_currentGame.score()));
    if (!endless) {
        setCounter("counter-stage",
            std::to_string(m_currentGame.level()) + '-' + std::to_string(m_currentGame.stage()));
    }
    // The player counts moves; the par is kept in lines, the start line included.
    setCounter("counter-par", std::to_string(m_currentGame.par() - 1));
}

void PanelDrawing::setCounter(std::string_view key, const std::string& text)
{
    m_gameData.changeText(text, m_gameData.gameObjects().objectForKey(key));
}

} // namespace veyrand::board
