#pragma once

#include "catalogue/Evidence.h"

namespace veyrand::catalogue {

// Everything a catalogue is held to: each puzzle, the whole, and the second opinion on every par.
struct Verdict {
    std::vector<Evidence> evidence;
    Faults faults;
};
[[nodiscard]] Verdict check(Game game, const Puzzles& puzzles, const Progress& progress);

// The faults the exhaustive search finds: pars that are not the exact distance.
[[nodiscard]] Faults parFaults(Game game, const Puzzles& puzzles, const Progress& progress);

} // namespace veyrand::catalogue
