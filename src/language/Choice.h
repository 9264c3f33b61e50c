#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::language {

inline constexpr std::string_view kEnglish = "en";
// English with accents, in brackets and four tenths longer, made by code: who sees it sees which
// texts are not in the files, and which have no room to grow.
inline constexpr std::string_view kPseudo = "pseudo";

struct Name {
    std::string_view code; // of its folder
    std::string_view name; // in the language itself
};

// The languages of assets/languages, English first.
inline constexpr std::array kLanguages { Name { kEnglish, "English" }, Name { "de", "Deutsch" },
    Name { "fr", "Français" }, Name { "es", "Español" }, Name { "it", "Italiano" } };

// The codes of them all, and of the pseudo-language.
[[nodiscard]] std::vector<std::string> knownCodes();

// What is spoken where the desktop has these languages ("de-AT", "en_GB.UTF-8"), the dearest first;
// English when the game knows none of them.
[[nodiscard]] std::string_view bestFor(const std::vector<std::string>& desktop);

} // namespace veyrand::language
