#pragma once

#include "platform/Geometry.h"

#include <optional>

namespace veyrand::platform {

// Where the pointer rests.
class Pointer {
public:
    Pointer() = default;
    Pointer(const Pointer&) = delete;
    Pointer& operator=(const Pointer&) = delete;
    virtual ~Pointer() = default;

    // In the view's points, origin lower left; nothing while the pointer is outside the view.
    [[nodiscard]] virtual std::optional<Point> position() const = 0;
};

} // namespace veyrand::platform
