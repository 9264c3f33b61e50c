#pragma once

#include "engine/Range.h"

#include <string>
#include <string_view>

namespace veyrand::engine {

// The few regular-expression operations the game needs, with the pattern syntax and the replacement
// rules of ICU. Each byte of a text is one character, so that columns and bytes are the same thing.
//
// Compiled patterns are kept from call to call, by each thread for itself. A pattern that does not
// compile (the empty one included) matches nowhere.

[[nodiscard]] bool isRegexValid(std::string_view pattern);

// Where a search that finds nothing says it is.
inline constexpr unsigned kNotFound = 0x7fffffff;

// The first match, or kNotFound with length 0. With a range, that range is the whole text to the
// pattern: `^`, `$` and look-around see its bounds. The answer counts from the start of the full
// text either way.
[[nodiscard]] Range rangeOfRegex(std::string_view text, std::string_view pattern);
[[nodiscard]] Range rangeOfRegex(std::string_view text, std::string_view pattern, Range range);

// Every match, from left to right and never overlapping, gives way to the template: $n stands for
// capture group n (nothing, if there is no such group or it took no part), `\` takes the next
// character literally. A text without a match comes back unchanged, as does any text when the
// template is malformed.
[[nodiscard]] std::string stringByReplacingOccurrencesOfRegex(
    std::string_view text, std::string_view pattern, std::string_view replacement);

[[nodiscard]] bool isMatchedByRegex(std::string_view text, std::string_view pattern);

} // namespace veyrand::engine
