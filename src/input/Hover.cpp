#include "input/Hover.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace veyrand::input {

namespace {

constexpr float kGlowRadius = 20.0F;

// Every button is tracked by its uncoloured face; the pointer lights the coloured one.
struct ButtonPair {
    std::string_view tracked;
    std::string_view lit;
};

constexpr std::array kButtonPairs {
    ButtonPair { "button-classicbuttonoff", "button-classicbuttonon" },
    ButtonPair { "button-endlessbuttonoff", "button-endlessbuttonon" },
    ButtonPair { "button-quitbuttonoff", "button-quitbuttonon" },
    ButtonPair { "button-lightbulboff", "button-lightbulbon" },
    ButtonPair { "button-movesbuttonoff", "button-movesbuttonon" },
    ButtonPair { "button-menubuttonoff", "button-menubuttonon" },
    ButtonPair { "button-harderbuttonoff", "button-harderbuttonon" },
    ButtonPair { "button-easierbuttonoff", "button-easierbuttonon" },
    ButtonPair { "fullScreen-1i", "fullScreen-3i" },
    ButtonPair { "fullScreen-2i", "fullScreen-4i" },
};

std::string litPartnerOf(std::string_view key)
{
    for (const ButtonPair& pair : kButtonPairs) {
        if (pair.tracked == key) {
            return std::string(pair.lit);
        }
    }
    return {};
}

bool isQuestionsFace(std::string_view key)
{
    return key == "fullScreen-3i" || key == "fullScreen-4i";
}

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
        m_buttonAreas.pointerMoved(position, *this);
    }
    m_dropAreas.pointerMoved(position, *this);
}

bool Hover::isLitFace(const std::string& key)
{
    return std::any_of(kButtonPairs.begin(), kButtonPairs.end(),
        [&key](const ButtonPair& pair) { return pair.lit == key; });
}

void Hover::mouseEntered(const std::string& key)
{
    if (m_isBlocked && m_isBlocked()) {
        return;
    }
    m_effects.play(platform::Effect::Click);
    if (const std::string lit = litPartnerOf(key); !lit.empty()) {
        interfaceElementOn(lit);
    } else {
        setEffect(key, kGlowRadius);
    }
}

void Hover::mouseExited(const std::string& key)
{
    if (const std::string lit = litPartnerOf(key); !lit.empty()) {
        interfaceElementOff(lit);
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

void Hover::establishButtonTracking(bool endlessGame)
{
    removeCurrentTrackingAreas();
    createTrackingForObjectWithKey("button-lightbulboff");
    createTrackingForObjectWithKey("button-movesbuttonoff");
    createTrackingForObjectWithKey("button-menubuttonoff");
    if (endlessGame) {
        createTrackingForObjectWithKey("button-harderbuttonoff");
        createTrackingForObjectWithKey("button-easierbuttonoff");
    }
}

void Hover::establishTitlePagButtonTracking()
{
    removeCurrentTrackingAreas();
    createTrackingForObjectWithKey("button-classicbuttonoff");
    createTrackingForObjectWithKey("button-endlessbuttonoff");
    createTrackingForObjectWithKey("button-quitbuttonoff");
}

void Hover::establishDialogueButtonTracking()
{
    removeCurrentTrackingAreas();
    createTrackingForObjectWithKey("fullScreen-1i");
    createTrackingForObjectWithKey("fullScreen-2i");
}

void Hover::turnOffButtons()
{
    for (const char* key : { "button-lightbulbon", "button-movesbuttonon", "button-menubuttonon",
             "button-harderbuttonon", "button-easierbuttonon" }) {
        interfaceElementOff(key);
    }
}

void Hover::turnOffTitlePageButtons()
{
    removeCurrentTrackingAreas();
    for (const char* key :
        { "button-classicbuttonon", "button-endlessbuttonon", "button-quitbuttonon" }) {
        interfaceElementOff(key);
    }
}

void Hover::turnOffDialogueButtons()
{
    removeCurrentTrackingAreas();
    interfaceElementOff("fullScreen-3i");
    interfaceElementOff("fullScreen-4i");
}

void Hover::turnOnAllHovers(Asking asking)
{
    for (const char* key : { "button-lightbulbon", "button-movesbuttonon", "button-menubuttonon",
             "fullScreen-3i", "fullScreen-4i", "button-classicbuttonon", "button-endlessbuttonon",
             "button-quitbuttonon", "button-harderbuttonon", "button-easierbuttonon" }) {
        if (asking == Asking::No || isQuestionsFace(key)) {
            turnOnHoveredElement(key);
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
