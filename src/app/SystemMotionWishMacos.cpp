#include "app/SystemMotionWish.h"
#include "desktop/macos/MacMotionWish.h"

namespace veyrand::app {

std::unique_ptr<platform::MotionWish> systemMotionWish()
{
    return std::make_unique<desktop::macos::MacMotionWish>();
}

} // namespace veyrand::app
