#pragma once

#include "board/Buttons.h"
#include "input/GestureTarget.h"
#include "input/HitAreas.h"
#include "platform/Pointer.h"
#include "platform/SoundEffects.h"
#include "present/BoardLayers.h"

#include <functional>

namespace veyrand::input {

// What the pointer's rest and movement light up: a button shows its coloured face, a chip glows.
// Holds the hit areas of buttons, and for one drag those of the chips that can be dropped on. Which
// buttons are tracked follows from what is on the screen: the board, the title page or a dialogue.
class Hover final {
public:
    Hover(board::GameData& gameData, const present::BoardLayers& layers,
        const platform::Pointer& pointer, const platform::SoundEffects& effects);

    // While this answers true, entering an element gives no feedback.
    void setBlockedTest(std::function<bool()> isBlocked) { m_isBlocked = std::move(isBlocked); }

    // The pointer has moved (or left the view). While a button is held only drop targets answer.
    enum class Button { Up, Held };
    void pointerMoved(Button button);

    void createTrackingForObjectWithKey(const std::string& key);
    void removeCurrentTrackingAreas() { m_buttonAreas.removeAll(); }
    void establishButtonTracking(bool endlessGame);
    void establishTitlePagButtonTracking();
    void establishDialogueButtonTracking();

    void turnOffButtons();
    void turnOffTitlePageButtons();
    void turnOffDialogueButtons();
    // Lights what lies under the pointer, silently. While a question is asked its own two buttons
    // are all that can be.
    enum class Asking { No, Yes };
    void turnOnAllHovers(Asking asking);

    void createTrackingAreas(unsigned row, const std::vector<unsigned>& columns);
    void flushTrackingAreas() { m_dropAreas.removeAll(); }
    void turnOffEffectsForRow(unsigned row, unsigned length);

    void interfaceElementOn(const std::string& key);
    void interfaceElementOff(const std::string& key);
    [[nodiscard]] std::vector<std::string> trackedButtons() const { return m_buttonAreas.keys(); }

    // Whether the key is that of a button's coloured face, which lies in front of the other.
    [[nodiscard]] static bool isLitFace(const std::string& key);

private:
    void answer(const HitAreas::Crossed& crossed);
    void mouseEntered(const std::string& key);
    void mouseExited(const std::string& key);
    void track(board::ButtonScreen screen);
    void turnOff(board::ButtonScreen screen);
    void setEffect(const std::string& key, float radius);
    void turnOnHoveredElement(const std::string& key);
    void setOpacity(const std::string& key, double opacity);

    board::GameData& m_gameData;
    const present::BoardLayers& m_layers;
    const platform::Pointer& m_pointer;
    const platform::SoundEffects& m_effects;
    std::function<bool()> m_isBlocked;
    HitAreas m_buttonAreas;
    HitAreas m_dropAreas;
};

} // namespace veyrand::input
