#pragma once

#include "catalogue/Portrait.h"

namespace veyrand::catalogue {

// Everything that keeps a level's promise there, to choose from: puzzles of `fewest` to `most`
// moves that its moves can make and the hints lead through. Of what is too much to look at, one in
// `oneIn`, the same for the same seed.
struct Wanted {
    int level = 6;
    unsigned fewest = 4;
    unsigned most = kMostMoves;
    unsigned oneIn = 1;
    std::uint32_t seed = 1;
};
[[nodiscard]] std::vector<Portrait> find(const Wanted& wanted, const Progress& progress);

} // namespace veyrand::catalogue
