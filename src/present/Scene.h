#pragma once

#include "board/Tempo.h"
#include "platform/RunLoop.h"
#include "present/Timing.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>

namespace veyrand::present {

enum class MotionTaste { Full, Reduced };

// What the layers of one window share: the clock, the tempo and the taste that move their
// animations, the stacking counter, and the wish to be painted again. Owned by whoever owns the
// layer tree, and outlives it.
class Scene {
public:
    explicit Scene(const platform::Clock& clock, const board::Tempo& tempo = board::kUsualTempo)
        : m_clock(clock)
        , m_tempo(tempo)
    {
    }

    [[nodiscard]] double now() const { return m_clock.now(); }

    [[nodiscard]] const board::Tempo& tempo() const { return m_tempo; }

    [[nodiscard]] MotionTaste motionTaste() const { return m_taste; }
    // What has begun to move goes on as it began.
    void setMotionTaste(MotionTaste taste) { m_taste = taste; }

    // How something goes from one place or size to another: where motion is to be reduced it fades
    // out and in again instead.
    [[nodiscard]] Timing calmed(Timing timing, bool goesAnywhere) const
    {
        return goesAnywhere && m_taste == MotionTaste::Reduced ? Timing::Jump : timing;
    }

    // True while any animation runs: only then are frames needed that nothing else asks for.
    [[nodiscard]] bool isAnimating() const { return now() < m_animationsEnd; }

    // Called on every change of what the layers show, so often that the listener should only take
    // note.
    void setDisplayListener(std::function<void()> listener) { m_listener = std::move(listener); }

    void setNeedsDisplay() const
    {
        if (m_listener) {
            m_listener();
        }
    }

    void animationStarted(double duration)
    {
        m_animationsEnd = std::max(m_animationsEnd, now() + duration);
        setNeedsDisplay();
    }

    // Starts at 0 and falls by 2 with every update of any layer, before the update reads it.
    std::int64_t lowerStackingCounter() { return m_stackingCounter -= 2; }

    std::uint64_t nextLayerId() { return ++m_lastLayerId; }

private:
    const platform::Clock& m_clock;
    const board::Tempo& m_tempo;
    MotionTaste m_taste = MotionTaste::Full;
    std::function<void()> m_listener;
    double m_animationsEnd = 0.0;
    std::int64_t m_stackingCounter = 0;
    std::uint64_t m_lastLayerId = 0;
};

} // namespace veyrand::present
