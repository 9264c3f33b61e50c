#pragma once

#include "controller/GameController.h"

namespace veyrand::app {

// What a player may have come to who stands at 6-7 of the Classic game and plays most days: for the
// pictures of the pages that show it. The pars are those of the puzzles.
[[nodiscard]] play::Results resultsToShow(controller::GameController& game);

} // namespace veyrand::app
