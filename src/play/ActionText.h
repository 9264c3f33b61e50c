#pragma once

#include "play/Action.h"

#include <optional>
#include <string>
#include <string_view>

namespace veyrand::play {

// An action as one line of text, and back: docs/actions.md describes the texts. They are what
// journals hold and what stays readable for ever, so a change of theirs is a new format.
inline constexpr int kActionFormat = 1;

[[nodiscard]] std::string print(const Action& action);

// Nothing for any text but one that print makes.
[[nodiscard]] std::optional<Action> parse(std::string_view text);

} // namespace veyrand::play
