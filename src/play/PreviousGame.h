#pragma once

#include "play/Recovery.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::play {

// A game of one mode that another has taken the place of: what the record said, and the puzzle that
// was in play, if one was kept. As text: a line of the record and the puzzle's journal; such texts
// may stand one behind the other.
struct PreviousGame {
    Standing standing;
    bool knowsHints = false; // the first hint has been explained
    std::optional<Replay> puzzle {};
};

// Its file: "New-classic-previous.txt".
[[nodiscard]] std::string previousName(std::string_view player, progress::Mode mode);

[[nodiscard]] std::vector<std::string> linesOf(const PreviousGame& game, std::string_view player);

// All that stand in the text, up to the first that is damaged or does not fit the catalogue.
[[nodiscard]] std::vector<PreviousGame> previousGamesIn(std::string_view text,
    std::string_view player, progress::Mode mode, const progress::Catalogue& catalogue);

// "5-3, 320 points", or "320 points" of an Endless game.
[[nodiscard]] std::string nameForPeople(const Standing& standing);

} // namespace veyrand::play
