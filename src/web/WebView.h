#pragma once

#include "controller/Game.h"
#include "input/Cursor.h"
#include "input/Touch.h"
#include "platform/Pointer.h"

#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

namespace veyrand::web {

// The canvas as the game knows it: hands the page what has changed since the last frame, a frame at
// a time while something animates and none while nothing does, and the game what the pointer does.
// Places are in the page's points, from the upper left corner of the canvas.
class WebView {
public:
    WebView(controller::Game& game, platform::Pointer& pointer);
    WebView(const WebView&) = delete;
    WebView& operator=(const WebView&) = delete;
    ~WebView();

    void resize(platform::Size size);
    // To be called for the frame asked for.
    void showFrame();
    // Called after each frame.
    void setFrameListener(std::function<void()> shown) { m_shownFrame = std::move(shown); }
    // The page has lost what it had painted, or has pictures that it had not.
    void forgetPainted();

    void press(platform::Point place, bool hasModifier);
    void move(platform::Point place, bool isHeld, bool hasModifier);
    void release(platform::Point place, bool hasModifier);
    void leave();
    void cancelGesture();
    void rightPress(platform::Point place, bool hasModifier);
    // The first finger; what others do is not looked at.
    void touchBegan(platform::Point place) { m_touch.began(gamePoint(place)); }
    void touchMoved(platform::Point place) { m_touch.moved(gamePoint(place)); }
    void touchEnded(platform::Point place) { m_touch.ended(gamePoint(place)); }
    void touchCancelled() { m_touch.cancelled(); }
    [[nodiscard]] platform::Size size() const { return m_size; }

private:
    [[nodiscard]] platform::Point gamePoint(platform::Point place) const;
    [[nodiscard]] input::MouseEvent track(platform::Point place, bool hasModifier);
    void followTo(const input::MouseEvent& event);
    void askForFrame();
    void showCursor();
    void pack(const present::DisplayItem& item);
    [[nodiscard]] double numberOf(const std::string& text);

    controller::Game& m_game;
    platform::Pointer& m_pointer;
    input::Touch m_touch;
    platform::Size m_size { .width = 1.0, .height = 1.0 };
    present::DisplayList m_shown;
    std::vector<double> m_items;
    std::vector<double> m_damage;
    std::unordered_map<std::string, double> m_numbers; // what pictures and texts are called
    std::optional<platform::Point> m_dragged; // where the held button was last seen
    input::Cursor m_cursor = input::Cursor::Arrow;
    std::function<void()> m_shownFrame;
    bool m_frameIsDue = false;
    bool m_paintsAll = true;
};

} // namespace veyrand::web
