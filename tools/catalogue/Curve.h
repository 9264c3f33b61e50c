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

// What a place wants of its puzzle, from level 2 on.
struct Wish {
    unsigned moves = 0;
    double bits = 0;
    bool isBreather = false; // easier than the one before it
    bool isLast = false; // of its level: one to remember
};
[[nodiscard]] Wish wishAt(Place place);

// Blue chips come with the move that makes them.
inline constexpr int kFirstLevelWithBlue = 4;

// From this level on all moves are known, and a puzzle may need any of them.
inline constexpr int kFirstLevelOfAll = 6;

// The moves that come late, and are what those levels are about.
inline constexpr MoveSet kLateMoves = only(4) | only(5) | only(6);

} // namespace veyrand::catalogue
