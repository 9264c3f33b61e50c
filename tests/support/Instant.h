#pragma once

namespace veyrand::test {

inline constexpr double kInstant = 1e-9; // seconds; nothing is timed more finely

} // namespace veyrand::test
