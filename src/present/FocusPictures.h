#pragma once

#include "present/Extra.h"

#include <string>
#include <vector>

namespace veyrand::present {

// Round the thing on which the keyboard stands; the place is the thing's own. It goes round a stone
// or a button as they are shaped, and round anything else as a frame. It jumps: nobody who holds a
// key down wants to wait for it.
[[nodiscard]] Extra focusRing(const std::string& key, const ExtraRect& thing);

[[nodiscard]] std::vector<std::string> focusPictureNames();

} // namespace veyrand::present
