#pragma once

#include "headless/HeadlessGame.h"
#include "support/Simulator.h"

#include <functional>
#include <memory>

namespace veyrand::test {

// The hands with which a monkey is at a game, and the eyes with which it is watched. Places are in
// game heights, origin at the board's lower left.
class Body {
public:
    Body() = default;
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;
    virtual ~Body() = default;

    // Anew, as after a kill.
    virtual void launch() = 0;
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

// Of a game that is not yet launched.
using MakeBody = std::function<std::unique_ptr<Body>(std::uint32_t seed, SimulatedDisk& disk)>;

// One that has no window, and so is never seen.
[[nodiscard]] std::unique_ptr<Body> bodyWithoutWindow(std::uint32_t seed, SimulatedDisk& disk);

// What every simulated game is touched by in the same way.
template <class Game> class BodyOn : public Body {
public:
    BodyOn(std::uint32_t seed, SimulatedDisk& disk, typename Game::Options options)
        : m_simulator(seed, disk, std::move(options))
    {
    }

    void launch() override { m_simulator.launch(); }
    void move(platform::Point place) override { touched().move(place); }
    void press(platform::Point place) override { touched().press(place); }
    void release(platform::Point place) override { touched().release(place); }
    void rightClick(platform::Point place) override { touched().rightClick(place); }
    void touch(platform::Point place) override { touched().touch(place); }
    void touchDrag(platform::Point from, platform::Point to) override
    {
        touched().touchDrag(from, to);
    }
    void longPress(platform::Point place) override { touched().longPress(place); }

protected:
    [[nodiscard]] Game& touched() { return m_simulator.game(); }

private:
    Simulator<Game> m_simulator;
};

} // namespace veyrand::test
