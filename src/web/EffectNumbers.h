#pragma once

#include <string>

namespace veyrand::web {

// The table of present/EffectTable.h as the page's effects read it: JSON.
[[nodiscard]] std::string effectNumbers();

} // namespace veyrand::web
