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

// The hands on a game that is launched at once, whether it has a window or none.
template <class Game> class BodyOf : public Body {
public:
    void move(platform::Point place) override { m_game.move(place); }
    void press(platform::Point place) override { m_game.press(place); }
    void release(platform::Point place) override { m_game.release(place); }
    void rightClick(platform::Point place) override { m_game.rightClick(place); }
    void touch(platform::Point place) override { m_game.touch(place); }
    void touchDrag(platform::Point from, platform::Point to) override
    {
        m_game.touchDrag(from, to);
    }
    void longPress(platform::Point place) override { m_game.longPress(place); }

protected:
    explicit BodyOf(const typename Game::Options& options)
        : m_game(options)
    {
        m_game.launch();
    }
    [[nodiscard]] Game& played() { return m_game; }

private:
    Game m_game;
};

// Launches a game.
using MakeBody = std::function<std::unique_ptr<Body>(const Body::Launch& launch)>;

// One that has no window, and so is never seen.
[[nodiscard]] std::unique_ptr<Body> bodyWithoutWindow(const Body::Launch& launch);

} // namespace veyrand::test
