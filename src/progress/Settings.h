#pragma once

#include "platform/Preferences.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::progress {

// What the player has chosen for the whole game, whoever plays. The initial values are the
// defaults. Music and effects have keys of their own in the preferences; everything else is in the
// group kSettingsKey.
struct Settings {
    enum class Tempo { Off, Fast, Normal, Slow };
    enum class ReducedMotion { System, On, Off };
    enum class Chips { Pictures, Contrast, Letters, Patterns };
    enum class Language { System, English, German, French, Spanish, Italian, Pseudo };

    bool music = true;
    bool effects = true;

    bool answers = true;
    bool sayWhy = false;
    bool rememberPress = false;
    bool forgivingClicks = false;
    bool woodToTheEdges = false;
    bool liftByClick = false;
    bool keepUnfinishedPuzzles = true;
    bool spokenKeys = true;
    bool timePuzzles = false;
    Tempo tempo = Tempo::Normal;
    ReducedMotion reducedMotion = ReducedMotion::System;
    int musicVolume = 100; // of 100
    int effectsVolume = 100;
    Chips chips = Chips::Pictures;
    double tipSize = 1; // 1, 1.5 or 2 times the usual
    Language language = Language::System;

    friend bool operator==(const Settings&, const Settings&) = default;
};

inline constexpr std::string_view kSettingsKey = "Settings";

// What is missing, unknown or of the wrong kind reads as the default; volumes are brought into 0 to
// 100.
[[nodiscard]] Settings readSettings(const platform::Preferences& preferences);

// Writes what differs from what would be read, and nothing else, so that a value from a later
// version stays until the player chooses another.
void writeSettings(platform::Preferences& preferences, const Settings& settings);

// All of them as a store keeps them, with what a later version has put there: to be taken
// elsewhere.
struct StoredSettings {
    bool music = false;
    bool effects = false;
    platform::PreferenceRecord group {};
};
[[nodiscard]] StoredSettings storedSettings(const platform::Preferences& preferences);
void storeSettings(platform::Preferences& preferences, StoredSettings settings);

// How the preferences and the language folders spell it.
[[nodiscard]] std::string_view wordFor(Settings::Language language);

// One line of the manual: "Tempo", "\"off\", \"fast\", \"normal\", \"slow\"", "\"normal\"".
struct SettingDescription {
    std::string name;
    std::string values;
    std::string usual; // the default
};

// Those of the group, in the manual's order.
[[nodiscard]] std::vector<SettingDescription> describedSettings();

} // namespace veyrand::progress
