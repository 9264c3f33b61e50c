#include "progress/Settings.h"

#include "platform/MemoryPreferences.h"
#include "progress/PlayerKeys.h"
#include "support/Places.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace veyrand::progress {

namespace {

using platform::PreferenceRecord;
using platform::PreferenceValue;

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { preferences.registerDefaults(registeredDefaults()); }

    Settings readWith(const std::string& name, PreferenceValue value)
    {
        preferences.setRecord(kSettingsKey, { { name, std::move(value) } });
        return readSettings(preferences);
    }

    platform::MemoryPreferences preferences;
};

Settings everythingElse()
{
    return { .music = false,
        .effects = false,
        .answers = false,
        .sayWhy = true,
        .rememberPress = true,
        .forgivingClicks = true,
        .woodToTheEdges = true,
        .liftByClick = true,
        .keepUnfinishedPuzzles = false,
        .spokenKeys = false,
        .timePuzzles = true,
        .tempo = Settings::Tempo::Off,
        .reducedMotion = Settings::ReducedMotion::Off,
        .musicVolume = 0,
        .effectsVolume = 37,
        .chips = Settings::Chips::Patterns,
        .tipSize = 1.5,
        .language = Settings::Language::Pseudo };
}

} // namespace

TEST_F(SettingsTest, WhoeverHasChosenNothingHasTheDefaults)
{
    EXPECT_EQ(readSettings(preferences), Settings());
}

TEST_F(SettingsTest, EverySettingIsReadAsItWasWritten)
{
    writeSettings(preferences, everythingElse());
    EXPECT_EQ(readSettings(preferences), everythingElse());
    writeSettings(preferences, Settings());
    EXPECT_EQ(readSettings(preferences), Settings());
}

TEST_F(SettingsTest, TheGroupSpellsItsValuesOut)
{
    writeSettings(preferences, everythingElse());
    EXPECT_EQ(preferences.record("Settings"),
        (PreferenceRecord { { "Answers", false }, { "SayWhy", true }, { "RememberPress", true },
            { "ForgivingClicks", true }, { "WoodToTheEdges", true }, { "LiftByClick", true },
            { "KeepUnfinishedPuzzles", false }, { "SpokenKeys", false }, { "TimePuzzles", true },
            { "Tempo", std::string("off") }, { "ReducedMotion", std::string("off") },
            { "MusicVolume", std::int64_t { 0 } }, { "EffectsVolume", std::int64_t { 37 } },
            { "Chips", std::string("patterns") }, { "TipSize", 1.5 },
            { "Language", std::string("pseudo") } }));
    EXPECT_EQ(preferences.value("TRNPlayMusicKey"), PreferenceValue(false));
    EXPECT_EQ(preferences.value("TRNPlayEffectsKey"), PreferenceValue(false));
}

TEST_F(SettingsTest, WhatIsNotUnderstoodCountsAsTheDefault)
{
    EXPECT_EQ(readWith("Tempo", std::string("hasty")), Settings());
    EXPECT_EQ(readWith("Tempo", std::string("Fast")), Settings());
    EXPECT_EQ(readWith("Tempo", std::int64_t { 1 }), Settings());
    EXPECT_EQ(readWith("Answers", std::string("false")), Settings());
    EXPECT_EQ(readWith("SpokenKeys", 0.0), Settings());
    EXPECT_EQ(readWith("MusicVolume", std::string("50")), Settings());
    EXPECT_EQ(readWith("MusicVolume", true), Settings());
    EXPECT_EQ(readWith("TipSize", std::int64_t { 3 }), Settings());
    EXPECT_EQ(readWith("TipSize", 1.25), Settings());
    EXPECT_EQ(readWith("Language", std::string()), Settings());
    EXPECT_EQ(readWith("FromALaterVersion", true), Settings());
}

TEST_F(SettingsTest, NumbersAreBroughtIntoTheirRange)
{
    EXPECT_EQ(readWith("MusicVolume", std::int64_t { 101 }).musicVolume, 100);
    EXPECT_EQ(readWith("MusicVolume", std::int64_t { -1 }).musicVolume, 0);
    EXPECT_EQ(readWith("EffectsVolume", std::int64_t { 1 } << 32).effectsVolume, 100);
}

// As people write them by hand.
TEST_F(SettingsTest, ANumberReadsAsAFlagAndAWholeSizeAsASize)
{
    EXPECT_FALSE(readWith("Answers", std::int64_t { 0 }).answers);
    EXPECT_TRUE(readWith("SayWhy", std::int64_t { 1 }).sayWhy);
    EXPECT_EQ(readWith("TipSize", std::int64_t { 2 }).tipSize, 2);
}

TEST_F(SettingsTest, OnlyWhatChangesIsWritten)
{
    Settings settings = readSettings(preferences);
    writeSettings(preferences, settings);
    EXPECT_EQ(preferences.record("Settings"), std::nullopt);

    settings.tempo = Settings::Tempo::Fast;
    writeSettings(preferences, settings);
    EXPECT_EQ(
        preferences.record("Settings"), (PreferenceRecord { { "Tempo", std::string("fast") } }));
}

TEST_F(SettingsTest, WhatALaterVersionWroteStaysUntilThePlayerChooses)
{
    preferences.setRecord("Settings",
        { { "Tempo", std::string("hasty") }, { "Chips", std::string("jewels") },
            { "Ghosts", true } });
    Settings settings = readSettings(preferences);
    settings.chips = Settings::Chips::Letters;
    writeSettings(preferences, settings);
    EXPECT_EQ(preferences.record("Settings"),
        (PreferenceRecord { { "Tempo", std::string("hasty") }, { "Chips", std::string("letters") },
            { "Ghosts", true } }));
}

TEST_F(SettingsTest, ALanguageIsSpelledAsItsFolder)
{
    EXPECT_EQ(wordFor(Settings::Language::System), "system");
    EXPECT_EQ(wordFor(Settings::Language::German), "de");
    EXPECT_EQ(wordFor(Settings::Language::Pseudo), "pseudo");
}

TEST_F(SettingsTest, TheManualListsEachWithItsValuesAndDefault)
{
    std::ostringstream manual;
    manual << std::ifstream(test::sourceFolder() + "/docs/settings.md").rdbuf();
    for (const SettingDescription& setting : describedSettings()) {
        const std::string row
            = "| `" + setting.name + "` | " + setting.values + " | " + setting.usual + " | ";
        EXPECT_NE(manual.str().find(row), std::string::npos) << row;
    }
}

} // namespace veyrand::progress
