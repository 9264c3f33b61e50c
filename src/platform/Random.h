#pragma once

#include <cstdint>

namespace veyrand::platform {

// Uniformly random 32-bit numbers.
class Random {
public:
    Random() = default;
    Random(const Random&) = delete;
    Random& operator=(const Random&) = delete;
    virtual ~Random() = default;

    virtual std::uint32_t next() = 0;
};

} // namespace veyrand::platform
