#include "present/BoardLayers.h"

namespace veyrand::present {

namespace {

platform::PointF centreOf(platform::Size size)
{
    return { .x = static_cast<float>(size.width / 2.0),
        .y = static_cast<float>(size.height / 2.0) };
}

platform::SizeF single(platform::Size size)
{
    return { .width = static_cast<float>(size.width), .height = static_cast<float>(size.height) };
}

} // namespace

BoardLayers::BoardLayers(
    Scene& scene, board::GameData& gameData, const platform::TextMetrics& metrics)
    : m_scene(scene)
    , m_gameData(gameData)
    , m_metrics(metrics)
    , m_contentLayer(scene, { .red = 0.0, .green = 0.0, .blue = 0.0 })
    , m_backgroundLayer(
          m_contentLayer.addSublayer(std::make_unique<ImageLayer>(scene, "WoodBackground")))
    , m_margins(scene)
    , m_extras(scene)
{
    m_backgroundLayer.setMasksToBounds(true);
    gameData.gameObjects().setNewObjectListener(
        [this](const std::string& key) { createLayer(key); });
}

BoardLayers::~BoardLayers()
{
    m_gameData.gameObjects().setNewObjectListener({});
}

platform::Size BoardLayers::viewSize() const
{
    const platform::SizeF bounds = m_contentLayer.bounds();
    return { .width = static_cast<double>(bounds.width),
        .height = static_cast<double>(bounds.height) };
}

void BoardLayers::fitTo(platform::Size viewSize)
{
    m_contentLayer.setBounds(single(viewSize));
    m_contentLayer.setPosition(centreOf(viewSize));

    const platform::Size game { .width = m_gameData.gameWidth(),
        .height = m_gameData.gameHeight() };
    const bool viewIsWider = viewSize.width / viewSize.height > game.width / game.height;
    const double scale = viewIsWider ? viewSize.height / game.height : viewSize.width / game.width;
    m_backgroundLayer.setBounds(single(game));
    m_backgroundLayer.setPosition(centreOf(viewSize));
    m_backgroundLayer.setScale(static_cast<float>(scale));
}

void BoardLayers::setChips(ChipSet chips)
{
    if (chips != m_chips) {
        m_chips = chips;
        m_scene.setNeedsDisplay();
    }
}

void BoardLayers::createLayer(const std::string& key)
{
    Layer& layer = m_backgroundLayer.addSublayer(
        std::make_unique<GameObjectLayer>(m_scene, m_gameData, key));
    const board::GameObjectPtr record = m_gameData.gameObjects().objectForKey(key);
    if (record && record->text()) {
        layer.addSublayer(std::make_unique<TextLayer>(
            m_scene, *record->text(), m_metrics, m_gameData.gameHeight()));
    }
}

GameObjectLayer* BoardLayers::layerForKey(std::string_view key) const
{
    for (const auto& layer : m_backgroundLayer.sublayers()) {
        auto* const mirror = dynamic_cast<GameObjectLayer*>(layer.get());
        if (mirror != nullptr && mirror->gameObjectKey() == key) {
            return mirror;
        }
    }
    return nullptr;
}

GameObjectLayer* BoardLayers::gameLayerForGameObject(const board::GameObject& record) const
{
    const auto& key = record.keyInGameData();
    return key ? layerForKey(*key) : nullptr;
}

const TextLayer* BoardLayers::textOn(const GameObjectLayer& layer)
{
    return layer.sublayers().empty() ? nullptr
                                     : dynamic_cast<TextLayer*>(layer.sublayers().front().get());
}

DisplayList BoardLayers::displayList()
{
    DisplayList list;
    m_contentLayer.flattenInto(list);
    // A bloom's radius is given for a game of 900 points and grows with it, as everything does.
    constexpr double kGlowHeight = 900.0;
    for (DisplayItem& item : list) {
        item.glow *= static_cast<float>(m_gameData.gameHeight() / kGlowHeight);
    }
    m_margins.addTo(list, m_contentLayer.rectInRoot(), m_backgroundLayer.rectInRoot());
    m_extras.decorate(list, *this);
    if (m_chips != ChipSet::Pictures) {
        for (DisplayItem& item : list) {
            if (auto* const image = std::get_if<ImageContent>(&item.content)) {
                image->name = pictureIn(m_chips, image->name);
            }
        }
    }
    return list;
}

} // namespace veyrand::present
