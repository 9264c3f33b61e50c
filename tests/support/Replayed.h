#pragma once

#include <cstdint>
#include <string>

namespace veyrand::test {

// For whoever reads of a failure of that evidence: the seed, the commit, and what shows it again.
[[nodiscard]] std::string howToReplay(const std::string& evidence, std::uint32_t seed);

} // namespace veyrand::test
