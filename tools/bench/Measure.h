#pragma once

#include <algorithm>
#include <chrono>
#include <limits>

namespace veyrand::bench {

inline double secondsNow()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// The least time of several runs, in seconds: the run that the rest of the machine disturbed least.
template <class Run> double leastSeconds(int runs, const Run& run)
{
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i < runs; ++i) {
        const double start = secondsNow();
        run();
        least = std::min(least, secondsNow() - start);
    }
    return least;
}

} // namespace veyrand::bench
