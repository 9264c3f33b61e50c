#pragma once

#include "catalogue/Ideas.h"
#include "catalogue/Kindness.h"
#include "catalogue/Likeness.h"
#include "catalogue/Metrics.h"

#include <string>
#include <vector>

namespace veyrand::catalogue {

// Sentences about what is wrong, each with the puzzle's name. None when all is well.
using Faults = std::vector<std::string>;

// What is known of one puzzle of a catalogue.
struct Evidence {
    Puzzle puzzle;
    Metrics metrics {};
    std::vector<Move>
        solution {}; // the one the game's search finds; none when there is no solution

    Way way {};
    unsigned steps = 0; // of the human-like solver

    // Of a Classic puzzle only, which stands in a place of its own among the others.
    IdeaSet ideas = 0;
    Kindness kindness {};
};

// "2-1", or the number of an Endless puzzle from 0; both with their lines.
[[nodiscard]] std::string nameOf(Game game, std::size_t entry, const Puzzle& puzzle);

// The evidence for every puzzle, in order. Faults of single puzzles are appended to `faults`: a par
// that is not the exact distance, a solution that the moves open at its place or the board's
// gestures cannot make, hints that leave the shortest solutions or do not lead to the goal, from
// the start line or after a detour. Entry 0 of the Classic catalogue, which nobody plays, is
// measured as if it stood in 1-1's place with all moves open, and not held to anything but its par.
[[nodiscard]] std::vector<Evidence> gatherEvidence(
    Game game, const Puzzles& puzzles, Faults& faults, const Progress& progress);

// The same, without looking for faults.
[[nodiscard]] std::vector<Evidence> measureAll(
    Game game, const Puzzles& puzzles, const Progress& progress);

} // namespace veyrand::catalogue
