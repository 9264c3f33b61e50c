#pragma once

#include "progress/Catalogue.h"

#include <cstdint>
#include <set>
#include <string>

namespace veyrand::test {

// One game played at random, as its journal has it.
struct RecordedGame {
    std::string journal;
    std::uint64_t hash = 0; // of the state it ended in
    std::set<std::string> met; // kinds of actions, and reasons of refusals
};

// Gestures, rows taken back, steps back and again, hints and other pars, as a die falls that is the
// same everywhere: the same number makes the same game.
[[nodiscard]] RecordedGame recordGame(
    std::uint32_t number, const progress::Catalogue& classic, const progress::Catalogue& endless);

} // namespace veyrand::test
