#pragma once

#include "catalogue/Puzzle.h"

#include <cstdint>

namespace veyrand::catalogue {

// What a day of the week asks of its puzzle: easy on Mondays, hard on Sundays.
struct DailyWish {
    unsigned fewest = 0; // moves
    unsigned most = 0;
    double fromBits = 0;
    double toBits = 0; // not included
};
[[nodiscard]] DailyWish dailyWish(std::size_t weekday); // 0 for Monday

// The puzzles of 53 weeks, Monday first. None is one of those taken already.
[[nodiscard]] Puzzles dailyPuzzles(
    std::uint32_t seed, const Puzzles& taken, const Progress& progress);

// The list as the game reads it: the Monday with which it begins, then a code a day.
[[nodiscard]] std::string dailyText(const Puzzles& puzzles, const std::string& firstMonday);

} // namespace veyrand::catalogue
