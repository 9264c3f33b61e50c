#include "fuzz/Targets.h"

#include <algorithm>
#include <array>

namespace veyrand::fuzz {

namespace {

constexpr std::array kTargets {
    Target { "actions", fuzzActions },
    Target { "catalogue", fuzzCatalogue },
    Target { "codes", fuzzCodes },
    Target { "daily", fuzzDaily },
    Target { "game", fuzzGame },
    Target { "journal", fuzzJournal },
    Target { "language", fuzzLanguage },
    Target { "pages", fuzzPages },
    Target { "preferences", fuzzPreferences },
    Target { "results", fuzzResults },
    Target { "rules", fuzzRules },
    Target { "tutorial", fuzzTutorial },
    Target { "workshop", fuzzWorkshop },
};

} // namespace

std::span<const Target> targets()
{
    return kTargets;
}

const Target& targetNamed(const std::string& name)
{
    const auto found = std::find_if(kTargets.begin(), kTargets.end(),
        [&](const Target& target) { return name == target.name; });
    if (found == kTargets.end()) {
        throw std::invalid_argument("there is no target \"" + name + '"');
    }
    return *found;
}

} // namespace veyrand::fuzz
