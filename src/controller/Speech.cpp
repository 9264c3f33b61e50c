#include "controller/Speech.h"

namespace veyrand::controller {

std::string_view languageFor(
    progress::Settings::Language choice, const std::vector<std::string>& desktop)
{
    return choice == progress::Settings::Language::System ? language::bestFor(desktop)
                                                          : progress::wordFor(choice);
}

std::string wordsFor(const language::Texts& texts, const play::Refusal& refusal)
{
    const std::string id = "refusals." + std::string(play::entryOf(refusal.reason).name);
    return texts.knows(id)
        ? texts.text(id, { { "move", static_cast<std::int64_t>(refusal.label) } })
        : std::string();
}

} // namespace veyrand::controller
