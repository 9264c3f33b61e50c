#pragma once

#include "progress/Settings.h"

#include <array>
#include <span>
#include <string_view>

namespace veyrand::controller {

enum class SettingsSection { Sound, Look, Play };

// One line of the settings window: what it is called, what it may be set to, and which setting that
// is. Whoever shows the window translates the texts; it need not know what the settings do.
struct SettingItem {
    enum class Kind {
        Switch, // 0 or 1
        Choice, // one of the choices, from 0; a value past the last is none of them
        Volume, // 0 to 100
    };
    static constexpr std::size_t kMostChoices = 7;

    SettingsSection section {};
    Kind kind = Kind::Switch;
    const char* text = ""; // with an ampersand before the letter that reaches it with Alt
    const char* help = ""; // a sentence for whoever wonders
    int (*get)(const progress::Settings& settings) = nullptr;
    void (*set)(progress::Settings& settings, int value) = nullptr;
    std::array<const char*, kMostChoices> choices {}; // null after the last
    bool isOfEffects = false; // a change wants to be heard
};

// In the window's order, section by section.
[[nodiscard]] std::span<const SettingItem> settingItems();
[[nodiscard]] const char* textOf(SettingsSection section);

// The texts of the window itself.
inline constexpr const char* kSettingsTitle = "Settings";
inline constexpr const char* kResetSettings = "Reset to &Defaults";
inline constexpr const char* kCloseSettings = "Clo&se";

// The switch of that name, without its ampersand; null if there is none.
[[nodiscard]] const SettingItem* settingSwitch(std::string_view text);

// All that the window can set, as it is at first; what the menu switches stays as it is.
[[nodiscard]] progress::Settings resetSettings(const progress::Settings& now);

} // namespace veyrand::controller
