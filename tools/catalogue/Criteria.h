#pragma once

#include "catalogue/Evidence.h"

namespace veyrand::catalogue {

// What a catalogue must be as a whole, beyond what each puzzle must be.

// The given puzzles stand in their places; the moves arrive as the levels bring them, and are
// needed there; each level keeps its promise and spares those of later ones; it rises, takes a
// breath and ends with one of its hardest; the next is harder by both measures; no puzzle is like
// another, and most forgive.
[[nodiscard]] Faults classicFaults(const std::vector<Evidence>& evidence);

// No puzzle stands there twice; every par and every length of root has its share, and no root more
// than one in a hundred; those of one par are about as hard, and no way solves more than a few.
[[nodiscard]] Faults endlessFaults(const std::vector<Evidence>& evidence);

} // namespace veyrand::catalogue
