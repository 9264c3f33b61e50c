#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

namespace veyrand::language {

// The one kind of JSON that the portable rooms and the browser's adapters read and write: names
// stay in the order in which they came. Each kind, and each kind of text it is read from, is a
// parser of its own in the program.
using Json = nlohmann::ordered_json;

// Throws Json::exception with the place when the text is no JSON.
[[nodiscard]] Json jsonIn(std::string_view text);

// Json::is_discarded() when the text is no JSON.
[[nodiscard]] Json jsonOrNothingIn(std::string_view text);

} // namespace veyrand::language
