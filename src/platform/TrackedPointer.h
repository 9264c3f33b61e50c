#pragma once

#include "platform/Pointer.h"

namespace veyrand::platform {

// A pointer whose place is told by whoever receives its events.
class TrackedPointer final : public Pointer {
public:
    [[nodiscard]] std::optional<Point> position() const override { return m_position; }
    void setPosition(std::optional<Point> position) { m_position = position; }

private:
    std::optional<Point> m_position;
};

} // namespace veyrand::platform
