#pragma once

#include "platform/RunLoop.h"
#include "present/BoardLayers.h"

#include <optional>

namespace veyrand::input {

// The floating copy of a dragged chip. It lives on the background layer above the board and below
// messages, is never under the pointer, and goes half a second after the drag's end. At most one
// drag is in hand at a time, but an earlier one's image may still be fading.
class DragImage {
public:
    DragImage(const present::BoardLayers& layers, platform::RunLoop& runLoop)
        : m_layers(layers)
        , m_runLoop(runLoop)
    {
    }

    // The centre is in the background layer's points, the side in points.
    void createDragImageLayer(const std::string& imageName, platform::PointF centre, double side);
    void moveTo(platform::PointF centre);
    void fadeOut();
    void flyTo(platform::PointF centre);
    void removeAfterFade();

private:
    [[nodiscard]] double flight() const; // seconds
    [[nodiscard]] present::Layer* layer(std::uint64_t id) const;
    [[nodiscard]] present::Layer* current() const;
    void removeDragImageLayer(std::uint64_t id);

    const present::BoardLayers& m_layers;
    platform::RunLoop& m_runLoop;
    std::optional<std::uint64_t> m_current; // a layer's number, as layers may go at any time
};

} // namespace veyrand::input
