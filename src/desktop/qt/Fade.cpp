#include "desktop/qt/Fade.h"

#include <algorithm>

namespace veyrand::desktop::qt {

void Fade::to(double level, double seconds, double now)
{
    m_from = at(now);
    m_to = level;
    m_start = now;
    m_seconds = seconds;
}

double Fade::at(double now) const
{
    if (isOver(now)) {
        return m_to;
    }
    const double share = std::clamp((now - m_start) / m_seconds, 0.0, 1.0);
    return m_from + (m_to - m_from) * share;
}

void Duck::begin(double seconds, double now)
{
    constexpr double kStepBack = 0.631; // 4 dB
    constexpr double kDown = 1.5; // seconds
    m_fade.to(kStepBack, kDown, now);
    m_until = now + seconds;
    m_isBack = true;
}

double Duck::at(double now)
{
    constexpr double kUp = 1.4; // seconds
    if (m_isBack && now >= m_until) {
        m_isBack = false;
        m_fade.to(1.0, kUp, m_until);
    }
    return m_fade.at(now);
}

} // namespace veyrand::desktop::qt
