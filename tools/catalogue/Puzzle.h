#pragma once

#include "play/Steps.h"
#include "progress/Place.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What everything that makes and checks puzzles speaks of.

namespace veyrand::catalogue {

// One puzzle as the catalogues write it.
struct Puzzle {
    std::string root;
    std::string goal;
    unsigned moves = 0; // of a shortest solution
    friend bool operator==(const Puzzle&, const Puzzle&) = default;
};

using Puzzles = std::vector<Puzzle>;

using play::kAllMoves;
using play::kMostChips;
using play::MoveSet;
using play::only;
using progress::Place;

// The most moves a puzzle may ask for.
inline constexpr unsigned kMostMoves = 11;

// "7-3".
[[nodiscard]] std::string nameOf(Place place);

// The place of an entry of the Classic catalogue, from 1: entry 0 has none.
[[nodiscard]] Place placeOfEntry(std::size_t entry);

// The digit of a move as the player sees it: the first two indices are crossed.
[[nodiscard]] inline constexpr char labelOf(unsigned rule)
{
    return rule == 0 ? '2' : rule == 1 ? '1' : static_cast<char>('1' + rule);
}

// How many moves are open where an entry of a catalogue is played, and which.
enum class Game { Classic, Endless };
[[nodiscard]] int highestRuleOf(Game game, std::size_t entry);
[[nodiscard]] MoveSet openMoves(int highestRule);

// The text of a catalogue file: three lines a puzzle, nothing behind the last. Reading throws
// std::runtime_error for a text that is none.
[[nodiscard]] std::string textOf(const Puzzles& puzzles);
[[nodiscard]] Puzzles puzzlesIn(std::string_view text);

// Every line of a yellow chip and `fewest` to `most` chips of these letters.
[[nodiscard]] std::vector<std::string> roots(
    std::string_view letters, std::size_t fewest, std::size_t most);

// Told how far a piece of work has come.
using Progress = std::function<void(std::size_t done, std::size_t all)>;

} // namespace veyrand::catalogue
