#pragma once

#include "catalogue/Puzzle.h"

#include <array>
#include <optional>
#include <string>

namespace veyrand::catalogue {

// What a level promises of its puzzles: something a player can see, or say aloud, by looking at
// the start and the goal alone. From level 2 on each level has its own.
enum class Promise {
    Undo, // one move turns the goal into the start
    Mirror, // the start, reversed
    GreensTurnBlue, // greens become blue, all else stays
    WhatLiesBetween, // blues meet, and the yellow stays
    OneChipApart, // one chip to add, drop or replace
    Repainted, // every chip of a colour becomes another
    Carried, // the start, its yellow carried to the end
    WithoutYellow, // swallowed
    FromAlmostNothing, // a start of two or three chips
    BothSidesAlike, // the yellow in the middle of a palindrome
};

inline constexpr std::array<Promise, 10> kPromises { Promise::Undo, Promise::Mirror,
    Promise::GreensTurnBlue, Promise::WhatLiesBetween, Promise::OneChipApart, Promise::Repainted,
    Promise::Carried, Promise::WithoutYellow, Promise::FromAlmostNothing, Promise::BothSidesAlike };

inline constexpr int kFirstLevelOfPromise = 2;

[[nodiscard]] Promise promiseOf(int level); // from kFirstLevelOfPromise on

// A few words: "one chip apart".
[[nodiscard]] std::string nameOf(Promise promise);

// Whether the two lines keep it. `needed` are the moves of every shortest solution: that blues must
// meet cannot be seen in the lines.
[[nodiscard]] bool keeps(const Puzzle& puzzle, MoveSet needed, Promise promise);

// Whether a puzzle does what its level promises. The level of the carried yellow takes mirrors too:
// it is where the mirror comes back with every move open.
[[nodiscard]] bool keepsPromiseOf(int level, const Puzzle& puzzle, MoveSet needed);

// The colour that each colour of the start became, when the goal is the start repainted: a letter
// for each of "RGB". Nothing when it is not, or when nothing changed.
[[nodiscard]] std::optional<std::string> paintOf(const Puzzle& puzzle);

} // namespace veyrand::catalogue
