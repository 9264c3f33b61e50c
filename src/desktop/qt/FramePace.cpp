#include "desktop/qt/FramePace.h"

#include <cmath>

namespace veyrand::desktop::qt {

double FramePace::untilNext(double now, double rate)
{
    constexpr double kUsualRate = 60.0; // of a display that does not say
    const double period = 1.0 / (rate > 0.0 ? rate : kUsualRate);
    m_due += period;
    if (m_due <= now) {
        m_due += std::ceil((now - m_due) / period) * period;
    }
    return m_due - now;
}

} // namespace veyrand::desktop::qt
