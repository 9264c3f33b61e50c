#include "present/InfoLayer.h"

namespace veyrand::present {

namespace {

constexpr double kCentreX = 0.8;
constexpr double kFirstLineY = 0.75;
constexpr double kLinePitch = 0.075;

std::string lineKey(std::size_t number)
{
    return "fullScreen-" + std::to_string(number);
}

std::string imageKey(std::size_t number)
{
    return lineKey(number) + 'i';
}

} // namespace

InfoLayer::InfoLayer(board::GameData& gameData, const Style& style)
    : m_gameData(gameData)
    , m_veil(std::make_shared<board::GameObject>("Veil", 0.8, 0.5, 1.6, 1.0, 0.0, style.visible))
    , m_verticalOffset(style.verticalOffset)
{
    m_gameData.gameObjects().addGameObject(m_veil, style.key);
    setOpacity(style.key, static_cast<double>(style.veil));
    const Background& background = style.background;
    if (!background.imageName.empty()) {
        fadeInImage(background.imageName, background.x, background.y, background.width,
            background.height, background.opacity);
    }
}

InfoLayer::~InfoLayer()
{
    for (const board::GameObjectPtr& line : m_text) {
        remove(line);
    }
    for (const board::GameObjectPtr& image : m_images) {
        remove(image);
    }
    remove(m_veil);
}

void InfoLayer::addText(const std::string& text)
{
    addText(text, {});
}

void InfoLayer::addText(
    const std::string& text, Offsets offsets, const board::Color& color, double size)
{
    const auto number = static_cast<double>(m_text.size());
    const auto multiplier = static_cast<double>(m_fontMultiplier);
    const double y = kFirstLineY - static_cast<double>(m_verticalOffset)
        - kLinePitch * number * multiplier + offsets.vertical;
    fadeInText({ .text = text, .fontSize = multiplier * size, .color = color },
        kCentreX + offsets.horizontal, y, lineKey(m_text.size()));
}

void InfoLayer::fadeInText(
    const board::TextStyle& style, double x, double y, const std::string& key)
{
    m_text.push_back(m_gameData.createGameObjectWithText(style, x, y, 0.0, 0.0, 0.0, key));
    setOpacity(key, 1.0);
}

void InfoLayer::fadeInImage(
    std::string_view imageName, double x, double y, double width, double height, double opacity)
{
    fadeInImage(imageName, x, y, width, height, opacity, 1.0);
}

void InfoLayer::fadeInImage(std::string_view imageName, double x, double y, double width,
    double height, double fromOpacity, double toOpacity)
{
    const std::string key = imageKey(m_images.size());
    m_images.push_back(std::make_shared<board::GameObject>(
        std::string(imageName), x, y, width, height, fromOpacity, true));
    m_gameData.gameObjects().addGameObject(m_images.back(), key);
    setOpacity(key, toOpacity);
}

void InfoLayer::removeLayer()
{
    remove(m_veil);
}

void InfoLayer::leaveEverything()
{
    m_text.clear();
    m_images.clear();
    m_veil.reset();
}

void InfoLayer::setOpacity(const std::string& key, double opacity)
{
    m_gameData.gameObjects().change(
        key, [opacity](board::GameObject& record) { record.setOpacity(opacity); });
}

void InfoLayer::remove(const board::GameObjectPtr& record)
{
    if (!record || !record->keyInGameData()) {
        return;
    }
    // A record that was replaced keeps its key, though another has it now.
    const std::string key = *record->keyInGameData();
    if (m_gameData.gameObjects().objectForKey(key) == record) {
        m_gameData.gameObjects().removeGameObjectForKey(key);
    }
}

} // namespace veyrand::present
