#pragma once

#include "engine/Rule.h"

namespace veyrand::progress {

// The seven moves by their index in every proof's rules. The player learns doubling first, so the
// first two labels are crossed: doubling is shown as "Move #1" and the green at the end as
// "Move #2". All others are labelled with their index plus one.
inline constexpr unsigned kGreenToEnd = 0; // R$ -> RG
inline constexpr unsigned kDoubling = 1; // Y(.*) -> Y$1$1
inline constexpr unsigned kThreeReds = 2; // RRR -> G
inline constexpr unsigned kTwoGreens = 3; // GG -> nothing
inline constexpr unsigned kFlip = 4; // Y(.)(.) -> $2$1Y
inline constexpr unsigned kSplitGreens = 5; // GG -> GBG
inline constexpr unsigned kDropBetweenBlues = 6; // B[YGR]+B -> BB

// Each set is the one before it and more. Every puzzle is played with all seven moves: the searches
// may use any of them, and CurrentGame::highestRule alone says which the player may.
[[nodiscard]] engine::Rules basicRules(); // the first four
[[nodiscard]] engine::Rules intermediateRules(); // the first five
[[nodiscard]] engine::Rules advancedRules(); // all seven

inline constexpr int kMoveCount = 7;

// How many moves are open at a place of the Classic game, 1 to 7.
[[nodiscard]] int highestRuleAt(int level, int stage);

} // namespace veyrand::progress
