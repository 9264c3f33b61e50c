#pragma once

#include "platform/Menu.h"
#include "platform/Preferences.h"
#include "progress/Settings.h"

#include <functional>
#include <string_view>
#include <vector>

namespace veyrand::controller {
class GameController;
}

namespace veyrand::headless {

// The menu of a game without a menu bar: the same items, under the same names and keys, as the
// window's. Its switches are the player's saved choices.
class HeadlessMenu final : public platform::Menu {
public:
    explicit HeadlessMenu(platform::Preferences& preferences)
        : m_preferences(preferences)
    {
    }
    // Until then choosing an item does nothing.
    void connectTo(controller::GameController& controller);

    [[nodiscard]] bool musicOn() const override;
    [[nodiscard]] bool effectsOn() const override;

    // The names of all items, those too that may not be chosen now.
    [[nodiscard]] std::vector<std::string_view> items() const;
    // Chooses the item with the text, or with the keys ("Ctrl+N"). False when there is none, or it
    // may not be chosen now.
    bool trigger(std::string_view text);
    bool triggerKeys(std::string_view keys);
    [[nodiscard]] bool knowsKeys(std::string_view keys) const;
    // How often the box about the program would have been shown.
    [[nodiscard]] int timesAbout() const { return m_timesAbout; }

private:
    struct Item {
        std::string_view text; // empty: in no menu, but under its keys
        std::string_view keys;
        std::function<void()> choose;
        std::function<bool()> isEnabled {}; // none: always
        std::function<std::string_view()> textNow {}; // none: always the text
    };
    [[nodiscard]] static std::string_view textOf(const Item& item);
    [[nodiscard]] const Item* itemUnder(std::string_view keys) const;
    static bool choose(const Item& item);
    [[nodiscard]] Item setting(std::string_view text, bool progress::Settings::*which,
        controller::GameController& controller);
    void toggle(std::string_view key);

    platform::Preferences& m_preferences;
    std::vector<Item> m_items;
    int m_timesAbout = 0;
};

} // namespace veyrand::headless
