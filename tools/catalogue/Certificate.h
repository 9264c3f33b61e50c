#pragma once

#include "catalogue/Evidence.h"

#include <string>

namespace veyrand::catalogue {

// What is known of every puzzle, one line each, as it is kept beside the catalogues: anybody can
// follow the solution by hand, and a change to the rules, the search or a puzzle shows in it. Moves
// are written "rule.match", both counted from 0 as in a proof.
[[nodiscard]] std::string certificate(
    const std::vector<Evidence>& classic, const std::vector<Evidence>& endless);

// "3.0 1.0".
[[nodiscard]] std::string textOf(const std::vector<Move>& solution);

// The indices of the moves, "0 1 3"; "-" for none.
[[nodiscard]] std::string textOf(MoveSet moves);

// Two digits behind the point.
[[nodiscard]] std::string textOfBits(double bits);

} // namespace veyrand::catalogue
