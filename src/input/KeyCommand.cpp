#include "input/KeyCommand.h"

#include <algorithm>
#include <array>

namespace veyrand::input {

namespace {

using Verb = KeyCommand::Verb;

struct Binding {
    std::string_view keys;
    Verb verb;
};

// Toolkits have more than one name for some keys.
constexpr std::array kBindings {
    Binding { "Left", Verb::Left },
    Binding { "Right", Verb::Right },
    Binding { "Up", Verb::Up },
    Binding { "Down", Verb::Down },
    Binding { "Ctrl+Left", Verb::FarLeft },
    Binding { "Ctrl+Right", Verb::FarRight },
    Binding { "Ctrl+Up", Verb::FarUp },
    Binding { "Ctrl+Down", Verb::FarDown },
    Binding { "Home", Verb::First },
    Binding { "End", Verb::Last },
    Binding { "Tab", Verb::NextGroup },
    Binding { "Shift+Tab", Verb::PreviousGroup },
    Binding { "Backtab", Verb::PreviousGroup },
    Binding { "Shift+Backtab", Verb::PreviousGroup },
    Binding { "Return", Verb::Click },
    Binding { "Enter", Verb::Click },
    Binding { "Space", Verb::Lift },
    Binding { "Esc", Verb::PutBack },
    Binding { "Escape", Verb::PutBack },
    Binding { "Backspace", Verb::TakeBack },
    Binding { "H", Verb::Hint },
    Binding { "M", Verb::Moves },
    Binding { "G", Verb::SpeakGoal },
    Binding { "L", Verb::SpeakLine },
    Binding { "D", Verb::SpeakDifference },
    Binding { "P", Verb::SpeakPoints },
    Binding { "R", Verb::SpeakAgain },
    Binding { "Shift+H", Verb::SpeakChoices },
    Binding { "N", Verb::HowFar },
};

} // namespace

std::optional<KeyCommand> commandFor(std::string_view keys)
{
    if (keys.size() == 1 && keys[0] >= '0' && keys[0] <= '9') {
        constexpr unsigned kTenth = 9;
        const auto digit = static_cast<unsigned>(keys[0] - '0');
        return KeyCommand { .verb = Verb::Column, .column = digit == 0 ? kTenth : digit - 1 };
    }
    const auto* const found = std::find_if(kBindings.begin(), kBindings.end(),
        [keys](const Binding& binding) { return binding.keys == keys; });
    return found != kBindings.end() ? std::optional(KeyCommand { .verb = found->verb })
                                    : std::nullopt;
}

bool speaks(KeyCommand::Verb verb)
{
    return verb >= Verb::SpeakGoal && verb <= Verb::SpeakChoices;
}

bool movesFocus(KeyCommand::Verb verb)
{
    return verb <= Verb::Column;
}

} // namespace veyrand::input
