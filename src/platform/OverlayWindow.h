#pragma once

#include "platform/Geometry.h"

#include <string_view>

namespace veyrand::platform {

// A second window above the main one: without a border, clear where its picture is, moving with its
// parent and answering the mouse.
class OverlayWindow {
public:
    OverlayWindow() = default;
    OverlayWindow(const OverlayWindow&) = delete;
    OverlayWindow& operator=(const OverlayWindow&) = delete;
    virtual ~OverlayWindow() = default;

    // Opens it, or opens it anew. The frame is in points, its origin counted from the lower left
    // corner of the main window's frame; the named picture fills it.
    virtual void open(const RectF& frame, std::string_view imageName) = 0;
};

} // namespace veyrand::platform
