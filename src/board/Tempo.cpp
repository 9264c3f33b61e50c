#include "board/Tempo.h"

#include "board/Times.h"

namespace veyrand::board {

namespace {

// So small that nobody sees it, and so large that a hundredth of a second stays ten of the
// nanoseconds in which waits are compared.
constexpr double kOff = 1e-6;

double factor(Tempo::Speed speed)
{
    switch (speed) {
    case Tempo::Speed::Off:
        return kOff;
    case Tempo::Speed::Fast:
        return 0.5;
    case Tempo::Speed::Normal:
        return 1.0;
    case Tempo::Speed::Slow:
        return 2.0;
    }
    return 1.0;
}

} // namespace

double Tempo::delay(double seconds) const
{
    return seconds * factor(m_speed);
}

double Tempo::duration(double seconds) const
{
    return m_speed == Speed::Off ? 0.0 : delay(seconds);
}

double Tempo::celebration(double seconds) const
{
    return m_speed == Speed::Off ? times::kSolvedIsShown / kOff + (seconds - times::kNextPuzzle)
                                 : seconds;
}

} // namespace veyrand::board
