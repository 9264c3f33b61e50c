#pragma once

#include "catalogue/Evidence.h"

namespace veyrand::catalogue {

// What a catalogue must be as a whole, beyond what each puzzle must be.

// The given puzzles stand in their places; the moves arrive as the levels bring them, and are
// needed there; puzzles get harder within a level and from one level to the next; nothing is asked
// twice; each level ends with a puzzle to remember.
[[nodiscard]] Faults classicFaults(const std::vector<Evidence>& evidence);

// No puzzle stands there twice; every par and every length of root has its share, and no root more
// than one in a hundred.
[[nodiscard]] Faults endlessFaults(const std::vector<Evidence>& evidence);

} // namespace veyrand::catalogue
