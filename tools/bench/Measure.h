#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>

namespace veyrand::bench {

// The time this thread has had a processor for. Other programs on the machine take none of it away,
// though they may still slow it down.
inline double processorSeconds()
{
    std::timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// Time as it passes for everybody: what counts when several threads share the work.
inline double wallSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// The least processor time of several runs, in seconds: the run least disturbed by the rest.
template <class Run> double leastSeconds(int runs, const Run& run)
{
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i < runs; ++i) {
        const double start = processorSeconds();
        run();
        least = std::min(least, processorSeconds() - start);
    }
    return least;
}

} // namespace veyrand::bench
