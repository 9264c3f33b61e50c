#include "controller/OverlayFrame.h"

namespace veyrand::controller {

platform::RectF overlayFrame(platform::Size view, platform::Size game)
{
    constexpr double kShare = 2.0 / 3.0;
    constexpr double kInset = 0.25;
    const bool viewIsWider = view.width / view.height > game.width / game.height;
    const double areaWidth = viewIsWider ? view.height * game.width / game.height : view.width;
    const double areaHeight = viewIsWider ? view.height : view.width * game.height / game.width;
    const double width = areaWidth * kShare;
    const double height = areaHeight * kShare;
    return { .x = static_cast<float>(width * kInset),
        .y = static_cast<float>(height * kInset),
        .width = static_cast<float>(width),
        .height = static_cast<float>(height) };
}

} // namespace veyrand::controller
