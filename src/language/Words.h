#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::language {

// What stands between the blanks and line breaks of a text, which are those of ASCII: a blank that
// does not break belongs to its word. A stream would do the same, and bring half of a library for
// calendars and money along.
[[nodiscard]] std::vector<std::string> wordsIn(std::string_view text);

} // namespace veyrand::language
