#pragma once

#include <string>
#include <string_view>

namespace veyrand::language {

// The text as the pseudo-language has it. Marks, the tags of a window's text and the letter behind
// an ampersand, which a menu is opened with, stay.
[[nodiscard]] std::string pseudo(std::string_view english);

} // namespace veyrand::language
