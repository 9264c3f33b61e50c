#pragma once

#include "headless/HeadlessGame.h"

#include <functional>
#include <memory>

namespace veyrand::test {

// The hands with which a monkey is at a game, and the eyes with which it is watched. Places are in
// game heights, origin at the board's lower left.
class Body {
public:
    // What outlasts the game, and its seed.
    struct Launch {
        std::uint32_t seed = 1;
        platform::Preferences* store = nullptr;
        platform::Journal* journal = nullptr;
    };

    Body() = default;
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;
    virtual ~Body() = default;

    [[nodiscard]] virtual headless::HeadlessGame& game() = 0;

    virtual void move(platform::Point place) = 0;
    virtual void press(platform::Point place) = 0;
    virtual void release(platform::Point place) = 0;
    virtual void rightClick(platform::Point place) = 0;
    virtual void touch(platform::Point place) = 0;
    virtual void touchDrag(platform::Point from, platform::Point to) = 0;
    virtual void longPress(platform::Point place) = 0;
    virtual void key(const std::string& keys) = 0;
    virtual void menu(const std::string& item) = 0;
    virtual void resize(platform::Size size) = 0;

    // After each event: what is wrong with what is seen, in words.
    [[nodiscard]] virtual std::string faultOfPicture() = 0;
};

// Launches a game.
using MakeBody = std::function<std::unique_ptr<Body>(const Body::Launch& launch)>;

// One that has no window, and so is never seen.
[[nodiscard]] std::unique_ptr<Body> bodyWithoutWindow(const Body::Launch& launch);

} // namespace veyrand::test
