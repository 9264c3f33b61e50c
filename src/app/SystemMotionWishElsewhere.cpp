#include "app/SystemMotionWish.h"

namespace veyrand::app {

std::unique_ptr<platform::MotionWish> systemMotionWish()
{
    return nullptr;
}

} // namespace veyrand::app
