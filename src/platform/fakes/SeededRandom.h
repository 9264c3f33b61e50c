#pragma once

#include "platform/Random.h"

#include <random>

namespace veyrand::platform {

// The same numbers from the same seed on every machine: for demonstrations and tests.
class SeededRandom final : public Random {
public:
    explicit SeededRandom(std::uint32_t seed)
        : m_engine(seed)
    {
    }
    std::uint32_t next() override { return static_cast<std::uint32_t>(m_engine()); }

private:
    std::mt19937 m_engine; // its sequence is fixed by the language standard
};

} // namespace veyrand::platform
