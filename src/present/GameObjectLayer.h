#pragma once

#include "board/GameData.h"
#include "present/ImageLayer.h"

namespace veyrand::present {

// Mirrors one record of the object table by its key: placed at once when it is made, it then
// animates towards the record's geometry and opacity whenever the table announces a change, and
// ends its own life when the entry leaves the table. It reads the table and never writes it.
class GameObjectLayer final : public ImageLayer, private board::KeyObserver {
public:
    // The record must be in the table already.
    GameObjectLayer(Scene& scene, board::GameData& gameData, std::string gameObjectKey);
    GameObjectLayer(const GameObjectLayer&) = delete;
    GameObjectLayer& operator=(const GameObjectLayer&) = delete;
    ~GameObjectLayer() override;

    [[nodiscard]] const std::string& gameObjectKey() const { return m_key; }

    void update();

    // Points.
    void animateToOpacity(double opacity);
    void animateToXAndY(double x, double y);
    void animateToWidthAndHeight(double width, double height);

private:
    void entryChanged(const board::GameObject* newValue) override;

    board::GameData& m_gameData;
    std::string m_key;
};

} // namespace veyrand::present
