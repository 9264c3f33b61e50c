#pragma once

#include <array>
#include <cstdlib>

// What tools/evidence mutation puts into the copy of the game that it mutates: every place asks
// whether its mutant is the one that this run is about, and notes that it was asked.
namespace veyrand_mutants {

inline constexpr int kMost = 100000;

inline std::array<bool, kMost> reached {};

inline int chosen()
{
    const char* number = std::getenv("VEYRAND_MUTANT");
    return number == nullptr ? -1 : std::atoi(number);
}

inline int active = chosen();

inline bool on(int number)
{
    reached[static_cast<std::size_t>(number)] = true;
    return active == number;
}

// In functions that the compiler may run as well: there, nothing is ever mutated.
constexpr bool onAtRunTime(int number)
{
    return !__builtin_is_constant_evaluated() && on(number);
}

} // namespace veyrand_mutants
