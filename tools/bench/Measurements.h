#pragma once

#include "Results.h"

namespace veyrand::bench {

// One search that finds nothing, within the game's limits, against the reference. False when the
// two did not meet the same lines in the same order.
[[nodiscard]] bool measureSearch(Results& results);

// A hint on a full board that no line of leads to the goal, against the reference.
void measureHint(Results& results);

// What is proven of two lines while they are being put together.
void measureVerdict(Results& results);

// What telling a move costs while nobody listens, and what the accessible tree does.
void measureSpeech(Results& results);

// Exact distances without a search's limits.
void measureDistances(Results& results);

// How distances grow with the length of the lines, from 12 to 16 chips.
void measureGrowth(Results& results);

// The application's start, memory, rest and frames, on the toolkit's offscreen platform and, where
// an X server can be had, in a window. The latter's names begin with "x11.". The program that
// measures lies beside this one. False when it could not.
[[nodiscard]] bool measureApplication(Results& results, const std::string& ownProgram);

} // namespace veyrand::bench
