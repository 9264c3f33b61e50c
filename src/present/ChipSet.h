#pragma once

#include "progress/Settings.h"

#include <string>
#include <vector>

namespace veyrand::present {

using ChipSet = progress::Settings::Chips;

// The picture that stands for the named one in the set: another drawing of the same stone, or of
// whatever shows some. Every other name stands for itself.
[[nodiscard]] std::string pictureIn(ChipSet set, const std::string& name);

// The names of all those pictures but the usual ones.
[[nodiscard]] std::vector<std::string> chipSetPictureNames();

} // namespace veyrand::present
