#pragma once

#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace veyrand::test {

struct MemoryUse {
    double inUse = 0.0; // megabytes that were asked for and not given back
    double resident = 0.0; // megabytes of the machine's that the process has
};

inline MemoryUse memoryUse()
{
    constexpr double kMegabyte = 1024.0 * 1024.0;
    malloc_trim(0); // what has been given back is nobody's
    const auto info = ::mallinfo2();
    std::ifstream pages("/proc/self/statm");
    double all = 0.0;
    double resident = 0.0;
    pages >> all >> resident;
    return { .inUse = static_cast<double>(info.uordblks + info.hblkhd) / kMegabyte,
        .resident = resident * static_cast<double>(::sysconf(_SC_PAGESIZE)) / kMegabyte };
}

// The sanitizers bring an allocator of their own, which knows no such figures.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kMemoryIsCounted = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool kMemoryIsCounted = false;
#else
inline constexpr bool kMemoryIsCounted = true;
#endif
#else
inline constexpr bool kMemoryIsCounted = true;
#endif

// What a command asks for in the environment, or else what a test usually does.
inline int numberOf(const char* variable, int usual)
{
    const char* const wanted = std::getenv(variable);
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

} // namespace veyrand::test
