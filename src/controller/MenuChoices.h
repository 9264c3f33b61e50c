#pragma once

#include "controller/MenuTable.h"
#include "platform/Preferences.h"

#include <functional>
#include <optional>
#include <vector>

namespace veyrand::controller {

// The menu of one game behind whatever shows it: what may be chosen now, what is on, and what a
// choice does. The switches are the player's saved choices. Until a game is there, choosing a
// command does nothing, and a switch only saves the choice.
class MenuChoices {
public:
    explicit MenuChoices(platform::Preferences& preferences)
        : m_preferences(preferences)
    {
    }

    // What the table leaves to whoever shows the menu, such as windows of its own, goes to the
    // function.
    void connectTo(GameController& game, std::function<void(MenuItemId)> others);

    // Nothing but these may be chosen, and goes to the function: there is no game to play.
    void connectTo(std::vector<MenuItemId> only, std::function<void(MenuItemId)> others);

    [[nodiscard]] bool mayChoose(const MenuItem& item) const;
    // Whether a switch with a setting is on.
    [[nodiscard]] bool isOn(const MenuItem& item) const;
    // The text for now, with its ampersand.
    [[nodiscard]] const char* textOf(const MenuItem& item) const;
    // Turns a switch round, then does what the item does. False when it may not be chosen now.
    bool choose(const MenuItem& item);
    // Turns a switch of the settings window round, by its text without an ampersand. False when
    // there is none.
    bool turn(std::string_view text);

private:
    platform::Preferences& m_preferences;
    GameController* m_game = nullptr;
    std::optional<std::vector<MenuItemId>> m_only; // none: all
    std::function<void(MenuItemId)> m_others;
};

} // namespace veyrand::controller
