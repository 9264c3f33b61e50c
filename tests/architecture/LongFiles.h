#pragma once

#include "architecture/Repository.h"

#include <string_view>

namespace veyrand::architecture {

constexpr std::size_t kLongFileLines = 500;

// Finds code (C++, scripts) of more than kLongFileLines lines that the list gives no reason for,
// and entries of the list that have become idle. The list has one "path: reason" a line; lines that
// begin with # are remarks.
[[nodiscard]] Findings longFileFindings(
    const std::vector<SourceFile>& repository, std::string_view list);

} // namespace veyrand::architecture
