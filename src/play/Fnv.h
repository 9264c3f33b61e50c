#pragma once

#include <cstdint>
#include <string_view>

namespace veyrand::play {

// FNV-1a over 64 bits: a sum that every front end computes alike, against accidents and not against
// anybody. A sum goes on where another ended.
inline constexpr std::uint64_t kFnvStart = 0xcbf29ce484222325U;

[[nodiscard]] constexpr std::uint64_t fnv1a(
    std::string_view bytes, std::uint64_t before = kFnvStart)
{
    constexpr std::uint64_t kFnvPrime = 0x100000001b3U;
    std::uint64_t sum = before;
    for (const char byte : bytes) {
        sum = (sum ^ static_cast<unsigned char>(byte)) * kFnvPrime;
    }
    return sum;
}

} // namespace veyrand::play
