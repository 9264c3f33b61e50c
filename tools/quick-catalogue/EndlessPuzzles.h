#pragma once

#include "Puzzles.h"

namespace veyrand::quick_catalogue {

// As many puzzles as the Endless game draws from, in random order: every number of moves it can ask
// for is there, most often the middling ones. No goal is used twice.
[[nodiscard]] Puzzles endlessPuzzles(platform::Random& random, const Progress& progress);

} // namespace veyrand::quick_catalogue
