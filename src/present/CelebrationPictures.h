#pragma once

#include "platform/TextMetrics.h"
#include "present/Extra.h"

#include <string>

namespace veyrand::present {

// How a solved puzzle and the pages that praise the player look: values, as in ExtraPictures.h.

// The light behind a line of so many stones, and the one that runs along it.
[[nodiscard]] Extra litLine(unsigned row, unsigned length);
[[nodiscard]] Extra runningLight(unsigned row, unsigned length);
// What the puzzle brought, engraved on brass, where it does not hide the line that met the goal.
[[nodiscard]] Extra brassPlate(unsigned row, const std::string& headline, const std::string& below,
    const platform::TextMetrics& metrics);
// A stone of the board that is gone already: it stays until its turn comes, then it is dust.
[[nodiscard]] Extra vanishingStone(char letter, unsigned column, unsigned row);
// The name of the dust that a stone's picture becomes.
[[nodiscard]] std::string dustNameOf(const std::string& stone);
[[nodiscard]] Extra dustOf(char letter, unsigned column, unsigned row);

// What lies behind a coloured heading of a page, and the medal over it.
[[nodiscard]] Extra headingPlate(const std::string& key, const ExtraRect& heading);
[[nodiscard]] Extra medalFor(int rank);
inline constexpr int kMedals = 11;

[[nodiscard]] std::vector<std::string> celebrationPictureNames();

} // namespace veyrand::present
