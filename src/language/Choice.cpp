#include "language/Choice.h"

#include <algorithm>

namespace veyrand::language {

std::vector<std::string> knownCodes()
{
    std::vector<std::string> codes;
    codes.reserve(kLanguages.size() + 1);
    for (const Name& language : kLanguages) {
        codes.emplace_back(language.code);
    }
    codes.emplace_back(kPseudo);
    return codes;
}

std::string_view bestFor(const std::vector<std::string>& desktop)
{
    for (const std::string& tag : desktop) {
        const std::string_view language
            = std::string_view(tag).substr(0, tag.find_first_of("-_.@"));
        const auto* const found = std::find_if(kLanguages.begin(), kLanguages.end(),
            [language](const Name& known) { return known.code == language; });
        if (found != kLanguages.end()) {
            return found->code;
        }
    }
    return kEnglish;
}

} // namespace veyrand::language
