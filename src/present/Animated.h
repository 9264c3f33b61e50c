#pragma once

#include "platform/Geometry.h"
#include "present/Timing.h"

#include <cmath>
#include <optional>
#include <utility>

namespace veyrand::present {

inline float interpolate(float from, float to, float progress)
{
    return from + (to - from) * progress;
}

inline platform::PointF interpolate(platform::PointF from, platform::PointF to, float progress)
{
    return { .x = interpolate(from.x, to.x, progress), .y = interpolate(from.y, to.y, progress) };
}

inline platform::SizeF interpolate(platform::SizeF from, platform::SizeF to, float progress)
{
    return { .width = interpolate(from.width, to.width, progress),
        .height = interpolate(from.height, to.height, progress) };
}

// A value and, perhaps, an animation that decorates it. The value is the truth and changes at once;
// the animation only decides what is shown until it ends. Dropping every animation leaves the
// picture right.
template <class T> class Animated {
public:
    Animated() = default;
    explicit Animated(T value)
        : m_value(std::move(value))
    {
    }

    [[nodiscard]] const T& value() const { return m_value; }
    // Leaves a running animation running.
    void set(T value) { m_value = std::move(value); }

    // Shows a way from one value to another, starting now (s). It replaces a running animation; the
    // value itself is set apart from it.
    void animate(T from, T to, double now, double duration, Timing timing)
    {
        m_run = Run { std::move(from), std::move(to), now, duration, timing };
    }

    // What is shown at the time (s).
    [[nodiscard]] T at(double now) const
    {
        if (!isAnimating(now)) {
            return m_value;
        }
        return interpolate(m_run->from, m_run->to,
            progressOf(m_run->timing, (now - m_run->start) / m_run->duration));
    }

    // How much of the way is done, by its timing; 1 when nothing runs.
    [[nodiscard]] float progress(double now) const
    {
        return isAnimating(now) ? progressOf(m_run->timing, (now - m_run->start) / m_run->duration)
                                : 1.0F;
    }

    [[nodiscard]] bool isAnimating(double now) const
    {
        return m_run && now < m_run->start + m_run->duration;
    }

    // How much is to be seen of whatever has this value: what jumps goes out before it does, and
    // comes back after.
    [[nodiscard]] float presence(double now) const
    {
        if (!isAnimating(now) || m_run->timing != Timing::Jump) {
            return 1.0F;
        }
        return static_cast<float>(std::abs(2.0 * (now - m_run->start) / m_run->duration - 1.0));
    }

private:
    struct Run {
        T from;
        T to;
        double start;
        double duration;
        Timing timing;
    };

    T m_value {};
    std::optional<Run> m_run;
};

} // namespace veyrand::present
