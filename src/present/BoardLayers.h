#pragma once

#include "present/ChipSet.h"
#include "present/Extras.h"
#include "present/GameObjectLayer.h"
#include "present/TextLayer.h"
#include "present/WoodenMargins.h"

namespace veyrand::present {

// The layer tree of one window: a black content layer as large as the view, on it the game area
// with its wooden background, and on that one layer for each record of the object table. Gives new
// records their layers and texts their place; everything that shows a board is reached from here.
class BoardLayers final {
public:
    BoardLayers(Scene& scene, board::GameData& gameData, const platform::TextMetrics& metrics);
    BoardLayers(const BoardLayers&) = delete;
    BoardLayers& operator=(const BoardLayers&) = delete;
    ~BoardLayers();

    [[nodiscard]] Scene& scene() const { return m_scene; }
    [[nodiscard]] Layer& contentLayer() { return m_contentLayer; }
    [[nodiscard]] const Layer& contentLayer() const { return m_contentLayer; }
    [[nodiscard]] ImageLayer& backgroundLayer() const { return m_backgroundLayer; }

    [[nodiscard]] const platform::TextMetrics& textMetrics() const { return m_metrics; }

    // The size of the view, in points.
    [[nodiscard]] platform::Size viewSize() const;
    // Fits the game area into a view of the size: letter-boxed and centred, never stretched.
    void fitTo(platform::Size viewSize);

    // The layer of the record under the key; null if none.
    [[nodiscard]] GameObjectLayer* layerForKey(std::string_view key) const;
    [[nodiscard]] GameObjectLayer* gameLayerForGameObject(const board::GameObject& record) const;
    // The text on the record's layer; null when it has none.
    [[nodiscard]] static const TextLayer* textOn(const GameObjectLayer& layer);

    // What the view adds to the board.
    [[nodiscard]] Extras& extras() { return m_extras; }
    [[nodiscard]] WoodenMargins& margins() { return m_margins; }

    // Which drawings of the stones are shown, wherever one is. The records keep the usual names.
    void setChips(ChipSet chips);

    [[nodiscard]] DisplayList displayList();

private:
    void createLayer(const std::string& key);

    Scene& m_scene;
    board::GameData& m_gameData;
    const platform::TextMetrics& m_metrics;
    SolidLayer m_contentLayer;
    ImageLayer& m_backgroundLayer; // owned by the content layer
    WoodenMargins m_margins;
    Extras m_extras;
    ChipSet m_chips = ChipSet::Pictures;
};

} // namespace veyrand::present
