#pragma once

#include "platform/MotionWish.h"

#include <memory>

namespace veyrand::app {

// Where this system's desktop tells whether less motion is wanted; null where it cannot be asked.
[[nodiscard]] std::unique_ptr<platform::MotionWish> systemMotionWish();

} // namespace veyrand::app
