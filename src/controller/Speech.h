#pragma once

#include "language/Choice.h"
#include "language/Texts.h"
#include "play/Refusal.h"
#include "progress/Settings.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::controller {

// The language that the player's choice comes to on a desktop that speaks these.
[[nodiscard]] std::string_view languageFor(
    progress::Settings::Language choice, const std::vector<std::string>& desktop);

// Why not, in words; empty where there is nothing to say.
[[nodiscard]] std::string wordsFor(const language::Texts& texts, const play::Refusal& refusal);

} // namespace veyrand::controller
