#pragma once

#include "catalogue/Evidence.h"
#include "catalogue/Promises.h"

#include <array>
#include <map>

namespace veyrand::catalogue {

// The ten puzzles of one level.
using Level = std::array<const Evidence*, progress::kLastStage>;
[[nodiscard]] Level levelOf(const std::vector<Evidence>& evidence, int level);

[[nodiscard]] std::size_t promisesKept(int level, const Level& puzzles);

// Steps of the human-like solver, never 0.
[[nodiscard]] double stepsOf(const Evidence& evidence);

// How many times harder the harder of the two is.
[[nodiscard]] double timesApart(const Evidence& a, const Evidence& b);

// Of steps with stage, by ranks: 1 when each puzzle is harder than the one before it.
[[nodiscard]] double rankCorrelation(const Level& puzzles);

// What the Classic catalogue is measured by as a whole. Lists are by level, from 2.
struct Figures {
    std::vector<std::size_t> kept; // promises
    std::vector<double> medianSteps;
    std::vector<double> medianBits;
    std::vector<double> ranks; // correlation of steps with stage
    std::size_t guessed = 0; // puzzles of 6 to 11 whose nearest by ideas is of their own level
    std::size_t jumps = 0; // neighbours of a level 8 times apart
    std::size_t nearPar = 0; // with a solution of par + 1 or par + 2, of 100
    double dead = 0; // share of wrong steps in 6 to 11 after which nothing leads to the goal
    double alike = 0; // the most that two are
    std::map<unsigned, std::size_t> needing; // a late move, in 6 to 11
};
[[nodiscard]] Figures figuresOf(const std::vector<Evidence>& evidence);

// The places of the puzzles most like one of them, best first.
[[nodiscard]] std::vector<std::size_t> kinOf(
    const std::vector<Evidence>& evidence, std::size_t entry, std::size_t most);

} // namespace veyrand::catalogue
