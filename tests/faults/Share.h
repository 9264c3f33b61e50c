#pragma once

#include <cstddef>
#include <cstdlib>
#include <string>

namespace veyrand::test {

// Of what could all be tried, a part is tried by every change: one in so many. The variable
// VEYRAND_FAULTS asks for another part: "1" for all.
inline bool isInShare(std::size_t index, std::size_t usual = 5)
{
    const char* const wanted = std::getenv("VEYRAND_FAULTS");
    const std::size_t oneIn = wanted != nullptr ? std::stoul(wanted) : usual;
    return oneIn > 0 && index % oneIn == 0;
}

inline bool isAskedForAll()
{
    const char* const wanted = std::getenv("VEYRAND_FAULTS");
    return wanted != nullptr && std::string(wanted) == "1";
}

} // namespace veyrand::test
