#pragma once

#include "platform/RunLoop.h"
#include "progress/Settings.h"

#include <functional>
#include <utility>

namespace veyrand::board {

// How fast the board moves: turns times at the usual tempo into seconds of the clock. One game has
// one, and everybody who waits for the board asks it. What has begun keeps the tempo it began with.
class Tempo {
public:
    using Speed = progress::Settings::Tempo;

    void setSpeed(Speed speed) { m_speed = speed; }
    [[nodiscard]] Speed speed() const { return m_speed; }

    // Until something happens. At "off" that is at once, though never all in one instant: what
    // comes after something else still comes after it.
    [[nodiscard]] double delay(double seconds) const;

    // How long something is seen on its way; no time at "off".
    [[nodiscard]] double duration(double seconds) const;

    // A time of the celebration, for `delay`. However little the rest takes, the next puzzle keeps
    // a solved one on the screen for a second.
    [[nodiscard]] double celebration(double seconds) const;

private:
    Speed m_speed = Speed::Normal;
};

// The tempo of whoever was told no other.
inline constexpr Tempo kUsualTempo;

// The run loop as the board sees it: what is asked to run later runs at the tempo's time. The clock
// is the real one.
class PacedRunLoop final : public platform::RunLoop {
public:
    PacedRunLoop(platform::RunLoop& runLoop, const Tempo& tempo)
        : m_runLoop(runLoop)
        , m_tempo(tempo)
    {
    }

    [[nodiscard]] double now() const override { return m_runLoop.now(); }
    void performAfterDelay(double seconds, std::function<void()> call) override
    {
        m_runLoop.performAfterDelay(m_tempo.delay(seconds), std::move(call));
    }

private:
    platform::RunLoop& m_runLoop;
    const Tempo& m_tempo;
};

} // namespace veyrand::board
