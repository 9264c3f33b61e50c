#pragma once

#include "platform/Preferences.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::progress {

// The names under which a store holds what the game should understand and does not: a record or a
// setting of another kind, a number beyond what it counts, a place outside the game. The group is
// the record's key, or "" for what stands outside all groups. What is not the game's is never
// named; nor is the place 0-0, by which nothing was saved.
[[nodiscard]] std::vector<std::string> misunderstood(
    std::string_view group, const platform::StoredGroup& stored);

} // namespace veyrand::progress
