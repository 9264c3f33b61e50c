#pragma once

#include <array>
#include <string_view>

namespace veyrand::platform {

// The game's sounds.
enum class Effect { Click, Marble, No, CymbalRoll, DeleteDing, Triangle, GlockE2, Chimes };

// In the enumerators' order; their files are named so.
inline constexpr std::array<std::string_view, 8> kEffectNames { "Click", "Marble", "No",
    "CymbalRoll", "DeleteDing", "Triangle", "GlockE2", "Chimes" };

constexpr std::string_view nameOf(Effect effect)
{
    return kEffectNames.at(static_cast<std::size_t>(effect));
}

inline constexpr std::string_view kMusic = "Along the Seabed";

} // namespace veyrand::platform
