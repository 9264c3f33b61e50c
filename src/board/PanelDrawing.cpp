#include "board/PanelDrawing.h"

#include <array>

namespace veyrand::board {

namespace {

constexpr double kPanelX = 0.3;

struct Caption {
    std::string_view key;
    std::string_view image;
    double y;
    double width;
    double height;
};

struct Counter {
    std::string_view key;
    std::string_view text; // until drawCounters sets the real one
    double y;
};

constexpr std::array kClassicCaptions { Caption { "label-points", "Points", 0.9, 0.2, 0.06 },
    Caption { "label-stage", "Stage", 0.7, 0.271186440677966, 0.08150943396226 },
    Caption { "label-par", "Par", 0.5, 0.2, 0.06 } };
constexpr std::array kClassicCounters { Counter { "counter-score", "0", 0.8 },
    Counter { "counter-stage", "1-1", 0.6 }, Counter { "counter-par", "1", 0.4 } };

constexpr std::array kEndlessCaptions { Caption { "label-points", "Points", 0.9, 0.2, 0.06 },
    Caption { "label-par", "Par", 0.7, 0.2, 0.06 } };
constexpr std::array kEndlessCounters { Counter { "counter-score", "0", 0.8 },
    Counter { "counter-par", "5", 0.6 } };

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
    const auto draw = [this](const auto& captions, const auto& counters) {
        for (const Caption& caption : captions) {
            m_gameData.fadeInLabel(caption.image, kPanelX, caption.y, caption.width, caption.height,
                std::string(caption.key));
        }
        for (const Counter& counter : counters) {
            m_gameData.fadeInCounter(
                std::string(counter.text), kPanelX, counter.y, 0.0, 0.0, std::string(counter.key));
        }
    };
    if (m_currentGame.endlessGame()) {
        draw(kEndlessCaptions, kEndlessCounters);
    } else {
        draw(kClassicCaptions, kClassicCounters);
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
