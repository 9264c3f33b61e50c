#pragma once

#include "catalogue/Puzzle.h"

#include <optional>

// The shape of the Classic game: what each place asks for.

namespace veyrand::catalogue {

// The puzzle that the tutorial's pages speak of at that place, if they do: all of level 1, and the
// first of each level that brings a new move.
[[nodiscard]] std::optional<Puzzle> givenPuzzle(Place place);

// The index of the move that the level is about, if it brings one: 2 to 5 do.
[[nodiscard]] std::optional<unsigned> newMoveOf(int level);

// Blue chips come with the move that makes them.
inline constexpr int kFirstLevelWithBlue = 4;

// From this level on all moves are known, and a puzzle may need any of them.
inline constexpr int kFirstLevelOfAll = 6;

// The moves that come late: each is needed often from that level on.
inline constexpr MoveSet kLateMoves = only(4) | only(5) | only(6);

// The puzzle to breathe at after two thirds of a level.
inline constexpr int kBreatherStage = 7;

} // namespace veyrand::catalogue
