#pragma once

#include "Results.h"

namespace veyrand::bench {

// One search that finds nothing, within the game's limits, against the reference. False when the
// two did not meet the same lines in the same order.
[[nodiscard]] bool measureSearch(Results& results);

// A hint on a full board that no line of leads to the goal, against the reference.
void measureHint(Results& results);

// Exact distances without a search's limits.
void measureDistances(Results& results);

// How distances grow with the length of the lines, from 12 to 16 chips.
void measureGrowth(Results& results);

} // namespace veyrand::bench
