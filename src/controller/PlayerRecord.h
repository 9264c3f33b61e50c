#pragma once

#include "platform/Preferences.h"

#include <functional>

namespace veyrand::controller {

// Changes the named player's record: reads it, lets the function set keys on the copy, and writes
// the whole back, so that keys nobody here knows survive.
void updatePlayerRecord(platform::Preferences& preferences, const std::string& playerName,
    const std::function<void(platform::PreferenceRecord&)>& change);

} // namespace veyrand::controller
