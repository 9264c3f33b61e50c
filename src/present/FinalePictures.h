#pragma once

#include "platform/TextMetrics.h"
#include "present/Extra.h"

#include <string>

namespace veyrand::present {

// How the great moments look: a move that opens, and the end of the Classic game. Values, as in
// ExtraPictures.h.

// Light that fans out behind what is praised at the top of a page.
[[nodiscard]] Extra rays();

// A page tells of a new move: the seal over it, and the dust that flies from it as it comes.
[[nodiscard]] Extra moveSeal();
inline constexpr unsigned kSealGrains = 12;
[[nodiscard]] Extra sealDust(unsigned grain);

// The stones that rise over the board when the last puzzle is solved: one for each puzzle, over and
// over, from below the board to above it.
inline constexpr unsigned kRisingStones = 110;
[[nodiscard]] Extra risingStone(unsigned number);
// The ranks that were achieved on the way, one after the other, and what it all came to.
[[nodiscard]] Extra achievedMedal(int rank);
[[nodiscard]] Extra finaleWords(const std::string& words, const platform::TextMetrics& metrics);

[[nodiscard]] std::vector<std::string> finalePictureNames();

} // namespace veyrand::present
