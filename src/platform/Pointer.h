#pragma once

#include "platform/Geometry.h"

#include <optional>

namespace veyrand::platform {

// Where the pointer rests, as whoever receives its events tells it.
class Pointer {
public:
    // In the view's points, origin lower left; nothing while the pointer is outside the view.
    [[nodiscard]] std::optional<Point> position() const { return m_position; }
    void setPosition(std::optional<Point> position) { m_position = position; }

private:
    std::optional<Point> m_position;
};

} // namespace veyrand::platform
