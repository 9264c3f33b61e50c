#pragma once

#include "board/ElementKey.h"
#include "platform/Geometry.h"

#include <string_view>

namespace veyrand::board {

// Where things stand on the board, in game heights: the play area spans 0 to 1.6 by 0 to 1, origin
// lower left. Row 0 is the start line at the top, row 12 the goal line; columns step by one chip.

inline constexpr double kChipSize = 0.075;
inline constexpr unsigned kGoalRow = 12;
inline constexpr unsigned kHintRow = 99; // hint chips stand in no row; their keys say 99
inline constexpr double kBelowTheBoard = -0.1; // y of a chip that has fallen off

inline double xPositionForColumn(unsigned column)
{
    // One unit in the last place above 0.72, as every saved measurement of the board has it.
    constexpr double kFirstColumn = 0.7200000000000001;
    return kChipSize * static_cast<double>(column) + kFirstColumn;
}

inline double yPositionForRow(unsigned row)
{
    return 0.95 + -kChipSize * static_cast<double>(row);
}

// The image of a line's letter; a letter that is no colour draws the many-coloured chip.
std::string_view imageForLetter(char letter);

// The largest 16:10 rectangle that fits a screen, in points.
platform::Size gameSizeForScreen(platform::Size screen);

} // namespace veyrand::board
