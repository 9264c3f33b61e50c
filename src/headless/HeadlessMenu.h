#pragma once

#include "controller/MenuChoices.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::headless {

// The menu of a game without a menu bar: items are chosen by their names and keys.
class HeadlessMenu {
public:
    explicit HeadlessMenu(platform::Preferences& preferences)
        : m_choices(preferences)
    {
    }
    // Until then choosing a command does nothing.
    void connectTo(controller::GameController& controller);

    // The names of all items, those too that may not be chosen now.
    [[nodiscard]] std::vector<std::string> items() const;
    // Chooses the item with the text, or with the keys ("Ctrl+N"). False when there is none, or it
    // may not be chosen now.
    bool trigger(std::string_view text);
    bool triggerKeys(std::string_view keys);
    [[nodiscard]] bool knowsKeys(std::string_view keys) const;
    // How often the box about the program would have been shown.
    [[nodiscard]] int timesAbout() const { return m_timesAbout; }

private:
    controller::MenuChoices m_choices;
    int m_timesAbout = 0;
};

} // namespace veyrand::headless
