#pragma once

#include "platform/TextMetrics.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::present {

// Breaks a text at its blanks into lines of nearly equal length, as few as fit the width (ems).
[[nodiscard]] std::vector<std::string> broken(
    const std::string& text, double width, const platform::TextMetrics& metrics);

// Every picture on which extras write.
[[nodiscard]] std::vector<std::string> wordPictureNames();

} // namespace veyrand::present
