#pragma once

#include "language/Texts.h"
#include "platform/Preferences.h"

#include <string>

namespace veyrand::web {

// What the page's settings panel shows: the table of the settings window with the values of now, in
// the language of now. JSON.
[[nodiscard]] std::string panelOfSettings(
    const platform::Preferences& preferences, const language::Texts& texts);

} // namespace veyrand::web
