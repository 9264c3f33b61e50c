#include "present/ExtraMotions.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace veyrand::present {

namespace {

// Comes, stays and goes within its time.
double envelope(const Extra& extra, double elapsed)
{
    const double in = extra.fade.in > 0.0 ? elapsed / extra.fade.in : 1.0;
    const double out = extra.fade.out > 0.0 ? (extra.duration - elapsed) / extra.fade.out : 1.0;
    return std::clamp(std::min(in, out), 0.0, 1.0);
}

// Lights up and goes out so many times; it never jumps.
double waves(double fraction, int count)
{
    const double wave = std::sin(std::numbers::pi * static_cast<double>(count) * fraction);
    return wave * wave;
}

// To the left first. Its crests lie in the middles of its swings.
double swing(double fraction)
{
    const auto count = static_cast<double>(extras::kSwings);
    const double crest = extras::kFirstSwing - extras::kSwingLess * (fraction * count - 0.5);
    return -std::min(crest, extras::kFirstSwing) * std::sin(std::numbers::pi * count * fraction);
}

ExtraPose moving(const Extra& extra, double elapsed, double fraction)
{
    ExtraPose pose { .opacity = envelope(extra, elapsed) };
    switch (extra.motion) {
    case ExtraMotion::Travel: {
        const auto way = static_cast<double>(progressOf(Timing::EaseInEaseOut, fraction));
        pose.x = extra.wayX * way;
        pose.y = extra.wayY * way;
        break;
    }
    case ExtraMotion::Rise: {
        const double come = extra.fade.travel > 0.0 ? elapsed / extra.fade.travel : 1.0;
        const auto left = 1.0 - static_cast<double>(progressOf(Timing::EaseOut, come));
        pose.x = -extra.wayX * left;
        pose.y = -extra.wayY * left;
        break;
    }
    case ExtraMotion::Burst: {
        const auto way = static_cast<double>(progressOf(Timing::EaseOut, fraction));
        pose.x = extra.wayX * way;
        pose.y = extra.wayY * way;
        pose.scale = 1.0 + (extra.growth - 1.0) * way;
        break;
    }
    default:
        break;
    }
    return pose;
}

// It sets out late, or stands for good where it would have set out from in time.
ExtraPose recurring(const Extra& extra, double elapsed, MotionTaste taste)
{
    const bool moves = taste == MotionTaste::Full;
    const double rounds = moves ? elapsed / extra.period - extra.phase : 1.0 - extra.phase;
    if (rounds < 0.0) {
        return { .opacity = 0.0 };
    }
    const double way = rounds - std::floor(rounds);
    return { .x = extra.wayX * way, .y = extra.wayY * way };
}

} // namespace

ExtraPose poseOf(const Extra& extra, double elapsed, MotionTaste taste)
{
    if (extra.motion == ExtraMotion::Recur) {
        return recurring(extra, elapsed, taste);
    }
    const double fraction = std::clamp(elapsed / extra.duration, 0.0, 1.0);
    switch (extra.motion) {
    case ExtraMotion::Swing:
        return taste == MotionTaste::Full
            ? ExtraPose { .x = swing(fraction) }
            : ExtraPose { .glow = extras::kShakeGlow * waves(fraction, 1) };
    case ExtraMotion::Pulse:
        return { .opacity = waves(fraction, 2) };
    case ExtraMotion::Flash:
        return { .opacity = waves(fraction, 1) };
    default:
        return taste == MotionTaste::Full ? moving(extra, elapsed, fraction)
                                          : ExtraPose { .opacity = envelope(extra, elapsed) };
    }
}

} // namespace veyrand::present
