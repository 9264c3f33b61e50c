#pragma once

#include "play/Refusal.h"

#include <optional>
#include <vector>

namespace veyrand::controller {

class GameController;

// What a gesture would come to now, without its being made.

// Why a click there is no move; nothing when it is one.
[[nodiscard]] std::optional<play::Refusal> whyNoClick(
    const GameController& controller, unsigned row, unsigned column);
// The columns onto which a stone of the last line can be dragged for a move.
[[nodiscard]] std::vector<unsigned> dropsThatAreMoves(
    const GameController& controller, unsigned row, unsigned column);

} // namespace veyrand::controller
