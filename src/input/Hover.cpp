#include "input/Hover.h"

namespace veyrand::input {

namespace {

constexpr float kGlowRadius = 20.0F;

} // namespace

Hover::Hover(board::GameData& gameData, const present::BoardLayers& layers,
    const platform::Pointer& pointer, const platform::SoundEffects& effects)
    : m_gameData(gameData)
    , m_layers(layers)
    , m_pointer(pointer)
    , m_effects(effects)
{
}

void Hover::pointerMoved(Button button)
{
    const auto position = m_pointer.position();
    if (button == Button::Up) {
        answer(m_buttonAreas.pointerMoved(position));
    }
    answer(m_dropAreas.pointerMoved(position));
}

void Hover::answer(const HitAreas::Crossed& crossed)
{
    for (const std::string& key : crossed.left) {
        mouseExited(key);
    }
    for (const std::string& key : crossed.entered) {
        mouseEntered(key);
    }
}

bool Hover::isLitFace(const std::string& key)
{
    return board::buttonWithLitFace(key) != nullptr;
}

void Hover::mouseEntered(const std::string& key)
{
    if (m_isBlocked && m_isBlocked()) {
        return;
    }
    m_effects.play(platform::Effect::Click);
    if (const board::Button* const button = board::buttonWithFace(key)) {
        interfaceElementOn(std::string(button->litKey));
    } else {
        setEffect(key, kGlowRadius);
    }
}

void Hover::mouseExited(const std::string& key)
{
    if (const board::Button* const button = board::buttonWithFace(key)) {
        interfaceElementOff(std::string(button->litKey));
    } else {
        setEffect(key, 0.0F);
    }
}

void Hover::createTrackingForObjectWithKey(const std::string& key)
{
    if (const present::GameObjectLayer* const layer = m_layers.layerForKey(key)) {
        m_buttonAreas.install(key, layer->rectInRoot(), m_pointer.position());
    }
}

void Hover::track(board::ButtonScreen screen)
{
    board::forEachButton(screen, [this](const board::Button& button) {
        createTrackingForObjectWithKey(std::string(button.key));
    });
}

void Hover::turnOff(board::ButtonScreen screen)
{
    board::forEachButton(screen,
        [this](const board::Button& button) { interfaceElementOff(std::string(button.litKey)); });
}

void Hover::establishButtonTracking(bool endlessGame)
{
    removeCurrentTrackingAreas();
    track(board::ButtonScreen::Board);
    if (endlessGame) {
        track(board::ButtonScreen::EndlessBoard);
    }
}

void Hover::establishTitlePagButtonTracking()
{
    removeCurrentTrackingAreas();
    track(board::ButtonScreen::TitlePage);
}

void Hover::establishDialogueButtonTracking()
{
    removeCurrentTrackingAreas();
    track(board::ButtonScreen::Question);
}

void Hover::turnOffButtons()
{
    turnOff(board::ButtonScreen::Board);
    turnOff(board::ButtonScreen::EndlessBoard);
}

void Hover::turnOffTitlePageButtons()
{
    removeCurrentTrackingAreas();
    turnOff(board::ButtonScreen::TitlePage);
}

void Hover::turnOffDialogueButtons()
{
    removeCurrentTrackingAreas();
    turnOff(board::ButtonScreen::Question);
}

void Hover::turnOnAllHovers(Asking asking)
{
    for (const board::Button& button : board::kButtons) {
        if (asking == Asking::No || button.screen == board::ButtonScreen::Question) {
            turnOnHoveredElement(std::string(button.litKey));
        }
    }
    // What is lit now goes out when the pointer leaves, held or not as it came.
    m_buttonAreas.takeAsEntered(m_pointer.position());
}

void Hover::turnOnHoveredElement(const std::string& key)
{
    const auto pointer = m_pointer.position();
    const present::GameObjectLayer* const layer = m_layers.layerForKey(key);
    if (pointer && layer != nullptr
        && layer->rectInRoot().contains(
            { .x = static_cast<float>(pointer->x), .y = static_cast<float>(pointer->y) })) {
        interfaceElementOn(key);
    }
}

void Hover::createTrackingAreas(unsigned row, const std::vector<unsigned>& columns)
{
    flushTrackingAreas();
    for (const unsigned column : columns) {
        const std::string key = board::generateKeyChipKey(column, row);
        if (const present::GameObjectLayer* const layer = m_layers.layerForKey(key)) {
            m_dropAreas.install(key, layer->rectInRoot(), m_pointer.position());
        }
    }
}

void Hover::turnOffEffectsForRow(unsigned row, unsigned length)
{
    for (unsigned column = 0; column < length; ++column) {
        setEffect(board::generateKeyChipKey(column, row), 0.0F);
    }
}

void Hover::interfaceElementOn(const std::string& key)
{
    setOpacity(key, 1.0);
}

void Hover::interfaceElementOff(const std::string& key)
{
    setOpacity(key, 0.0);
}

void Hover::setOpacity(const std::string& key, double opacity)
{
    m_gameData.gameObjects().change(
        key, [opacity](board::GameObject& record) { record.setOpacity(opacity); });
}

void Hover::setEffect(const std::string& key, float radius)
{
    if (present::GameObjectLayer* const layer = m_layers.layerForKey(key)) {
        layer->setGlow(radius);
    }
}

} // namespace veyrand::input
