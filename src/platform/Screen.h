#pragma once

#include "platform/Geometry.h"

namespace veyrand::platform {

// The main screen. Its size is asked once, for the size of the game area.
class Screen {
public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;

    [[nodiscard]] virtual Size mainScreenSize() const = 0; // points
};

} // namespace veyrand::platform
