#pragma once

#include <cstddef>

// The allocations of this program, which can be counted, and one of which can fail.
namespace veyrand::test::allocations {

// Begins to count; the one of that number, from 0, fails. A number that is never reached: none.
void failAt(std::size_t number);
inline constexpr std::size_t kNone = static_cast<std::size_t>(-1);
// No longer. How many there were.
std::size_t stop();

} // namespace veyrand::test::allocations
