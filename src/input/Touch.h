#pragma once

#include "input/GameView.h"
#include "platform/Pointer.h"

namespace veyrand::input {

// Turns the touches of one finger into presses of the view. A finger is wide and hides what it
// touches, so it reaches an element whose centre lies near; what it drags follows from there on.
class Touch {
public:
    Touch(GameView& view, const present::BoardLayers& layers, platform::Pointer& pointer)
        : m_view(view)
        , m_layers(layers)
        , m_pointer(pointer)
    {
    }

    // Places are in the view's points.
    void began(platform::Point place);
    void moved(platform::Point place);
    void ended(platform::Point place);
    void cancelled();

    // Of the elements whose centre is no further than a finger reaches, or which lie under it, that
    // with the nearest centre; but a removal never wins over a chip. Empty when there is none.
    [[nodiscard]] std::string keyReached(platform::Point place) const;

private:
    [[nodiscard]] std::optional<platform::Point> centreOf(const std::string& key) const;
    [[nodiscard]] platform::Point corrected(platform::Point place) const;
    void followTo(platform::Point place);
    void lift();

    GameView& m_view;
    const present::BoardLayers& m_layers;
    platform::Pointer& m_pointer;
    platform::Point m_correction; // from the finger to the centre it reached
    platform::Point m_place; // of the finger, last seen
    bool m_isDown = false;
};

} // namespace veyrand::input
