#pragma once

#include "catalogue/Evidence.h"

#include <string>

namespace veyrand::catalogue {

// A picture of both catalogues, as SVG: par, bits and steps of the Classic game from place to
// place, and of the Endless puzzles how many there are of each par and how hard those are.
[[nodiscard]] std::string plot(
    const std::vector<Evidence>& classic, const std::vector<Evidence>& endless);

} // namespace veyrand::catalogue
