#include "play/Scoring.h"

namespace veyrand::play {

long pointsForSolving(bool endless, int par, unsigned lines)
{
    constexpr long kClassicBase = 150;
    constexpr long kPointsPerLine = 10;
    const long base = endless ? par * kPointsPerLine - kPointsPerLine : kClassicBase;
    return base - (static_cast<long>(lines) - par) * kPointsPerLine;
}

} // namespace veyrand::play
