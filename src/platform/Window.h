#pragma once

namespace veyrand::platform {

// The main window's size as the desktop knows it: its own, zoomed to fill the screen beside the
// desktop's panels, or over the whole screen with nothing beside it. Being zoomed outlasts
// full-screen mode.
class Window {
public:
    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window() = default;

    [[nodiscard]] virtual bool isZoomed() const = 0;
    // Zooms the window, or gives a zoomed one its own size back.
    virtual void zoom() = 0;

    [[nodiscard]] virtual bool isInFullScreenMode() const = 0;
    // Nothing happens to a window already in the mode, or out of it.
    virtual void enterFullScreenMode() = 0;
    virtual void exitFullScreenMode() = 0;
};

} // namespace veyrand::platform
