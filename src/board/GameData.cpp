#include "board/GameData.h"

#include <mutex>

namespace veyrand::board {

GameData& GameData::sharedGameData(platform::Size screen)
{
    static std::mutex creation;
    static std::unique_ptr<GameData> instance;
    const std::lock_guard lock(creation);
    if (!instance) {
        instance = std::make_unique<GameData>(screen);
    }
    return *instance;
}

GameObjectPtr GameData::createGameObjectWithText(const TextStyle& style, double x, double y,
    double width, double height, double opacity, const std::string& key)
{
    auto record = std::make_shared<GameObject>(std::string(), x, y, width, height, opacity, true);
    record->setText(style);
    m_gameObjects.addGameObject(record, key);
    return record;
}

GameObjectPtr GameData::fadeInImage(std::string_view imageName, double x, double y, double width,
    double height, double opacity, const std::string& key)
{
    auto record
        = std::make_shared<GameObject>(std::string(imageName), x, y, width, height, 0.0, true);
    m_gameObjects.addGameObject(record, key);
    m_gameObjects.change(key, [opacity](GameObject& object) { object.setOpacity(opacity); });
    return record;
}

void GameData::fadeInCounter(const std::string& text, double x, double y, double width,
    double height, const std::string& key)
{
    createGameObjectWithText({ .text = text }, x, y, width, height, 0.0, key);
    m_gameObjects.change(key, [](GameObject& object) { object.setOpacity(1.0); });
}

void GameData::fadeInLabel(std::string_view imageName, double x, double y, double width,
    double height, const std::string& key)
{
    fadeInImage(imageName, x, y, width, height, 1.0, key);
}

void GameData::changeText(const std::string& text, const GameObjectPtr& record)
{
    if (!record || (record->text() && record->text()->text == text)) {
        return;
    }
    const std::string key = record->keyInGameData().value_or(std::string());
    m_gameObjects.removeEntry(key);
    createGameObjectWithText({ .text = text }, record->x(), record->y(), record->width(),
        record->height(), record->opacity(), key);
}

} // namespace veyrand::board
