#include "present/GameObjectLayer.h"

#include "board/Times.h"
#include "present/Points.h"

#include <string_view>
#include <utility>

namespace veyrand::present {

namespace {

platform::SizeF size(double width, double height)
{
    return { .width = static_cast<float>(width), .height = static_cast<float>(height) };
}

// A layer keeps single precision. A value that single precision cannot hold counts as different
// from what it was set to, and is set (and animated, over no distance) again at every update.
bool differs(float kept, double wanted)
{
    return static_cast<double>(kept) != wanted;
}

// Messages lie in front of the board, and of them the later in front of the earlier. On the board
// it is the other way round: a layer placed later lies behind those before it.
std::int64_t stackingValue(std::string_view key, std::int64_t counter)
{
    constexpr std::string_view kMessagePrefix = "fullScreen";
    return key.substr(0, kMessagePrefix.size()) == kMessagePrefix ? 10 - counter : counter;
}

} // namespace

GameObjectLayer::GameObjectLayer(Scene& scene, board::GameData& gameData, std::string gameObjectKey)
    : ImageLayer(scene)
    , m_gameData(gameData)
    , m_key(std::move(gameObjectKey))
{
    m_gameData.gameObjects().observe(m_key, *this);
    update();
}

GameObjectLayer::~GameObjectLayer()
{
    m_gameData.gameObjects().unobserve(m_key, *this);
}

void GameObjectLayer::entryChanged(const board::GameObject* newValue)
{
    if (newValue == nullptr) {
        removeFromSuperlayer();
    } else {
        update();
    }
}

void GameObjectLayer::update()
{
    const std::int64_t z = stackingValue(m_key, scene().lowerStackingCounter());
    const board::GameObjectPtr record = m_gameData.gameObjects().objectForKey(m_key);
    if (!record) {
        return;
    }
    const double scale = m_gameData.gameHeight();
    const double x = record->x() * scale;
    const double y = record->y() * scale;
    const double width = record->width() * scale;
    const double height = record->height() * scale;
    const double opacity = record->opacity();
    setImageName(record->imageName());

    // Only a layer whose x is 0 counts as not yet placed; one that belongs at x = 0 is placed
    // afresh, without animation, every time.
    if (position().x == 0.0F) {
        setPosition(point(x, y));
        setBounds(size(width, height));
        setOpacity(static_cast<float>(opacity));
        setHidden(!record->visible());
        setZPosition(z);
        return;
    }
    // Visibility and stacking take effect at the first placement only; later, things come and go by
    // their opacity.
    if (differs(position().x, x) || differs(position().y, y)) {
        animateToXAndY(x, y);
    }
    if (differs(bounds().width, width) || differs(bounds().height, height)) {
        animateToWidthAndHeight(width, height);
    }
    if (differs(this->opacity(), opacity)) {
        animateToOpacity(opacity);
    }
}

void GameObjectLayer::animateToOpacity(double opacity)
{
    const auto target = static_cast<float>(opacity);
    animateOpacity(
        this->opacity(), target, scene().tempo().duration(board::times::kFade), Timing::Linear);
    setOpacity(target);
}

void GameObjectLayer::animateToXAndY(double x, double y)
{
    const platform::PointF target = point(x, y);
    animatePosition(
        position(), target, scene().tempo().duration(board::times::kSlide), Timing::EaseInEaseOut);
    setPosition(target);
}

void GameObjectLayer::animateToWidthAndHeight(double width, double height)
{
    const platform::SizeF target = size(width, height);
    animateBounds(
        bounds(), target, scene().tempo().duration(board::times::kResize), Timing::Linear);
    setBounds(target);
}

} // namespace veyrand::present
