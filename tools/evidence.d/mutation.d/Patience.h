#pragma once

#include <cstdlib>
#include <sys/time.h>

namespace veyrand_mutants {

// From now on, the program may work for so many seconds, whatever else the machine does meanwhile;
// then it is ended by a signal.
inline void workForNoLongerThanAllowed()
{
    const char* seconds = std::getenv("VEYRAND_MUTANT_PATIENCE");
    if (seconds != nullptr) {
        itimerval timer {};
        timer.it_value.tv_sec = std::atoi(seconds);
        setitimer(ITIMER_PROF, &timer, nullptr);
    }
}

} // namespace veyrand_mutants
