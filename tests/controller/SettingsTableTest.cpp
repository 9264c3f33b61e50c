#include "controller/SettingsTable.h"

#include "controller/MenuTable.h"
#include "progress/Settings.h"

#include <gtest/gtest.h>

namespace veyrand::controller {

using progress::Settings;

TEST(SettingsTable, WhatIsSetIsReadAgainAndTouchesNothingElse)
{
    for (const SettingItem& item : settingItems()) {
        Settings settings;
        const int usual = item.get(settings);
        const int other = item.kind == SettingItem::Kind::Volume ? 35 : usual == 0 ? 1 : 0;
        item.set(settings, other);
        EXPECT_EQ(item.get(settings), other) << item.text;
        EXPECT_NE(settings, Settings()) << item.text;
        item.set(settings, usual);
        EXPECT_EQ(settings, Settings()) << item.text;
    }
}

TEST(SettingsTable, EveryChoiceOfASettingHasAName)
{
    for (const SettingItem& item : settingItems()) {
        const bool isChoice = item.kind == SettingItem::Kind::Choice;
        EXPECT_EQ(item.choices.at(0) != nullptr, isChoice) << item.text;
        EXPECT_EQ(item.choices.at(1) != nullptr, isChoice) << item.text;
    }
}

TEST(SettingsTable, SwitchesAreFoundByTheirNames)
{
    ASSERT_NE(settingSwitch("Keep Unfinished Puzzles"), nullptr);
    EXPECT_STREQ(settingSwitch("Say Why")->text, "Sa&y Why");
    EXPECT_EQ(settingSwitch("Tempo"), nullptr) << "which has more than two";
    EXPECT_EQ(settingSwitch(""), nullptr);
}

TEST(SettingsTable, AResetLeavesWhatTheMenuSwitches)
{
    Settings settings;
    settings.music = false;
    settings.chips = Settings::Chips::Letters;
    settings.musicVolume = 3;
    settings.language = Settings::Language::German;
    Settings expected;
    expected.music = false;
    EXPECT_EQ(resetSettings(settings), expected);
}

TEST(SettingsTable, LaysTheSettingsOutInSectionsWithNames)
{
    std::vector<std::string> names;
    for (const SettingItem& item : settingItems()) {
        if (names.empty() || names.back() != textOf(item.section)) {
            names.emplace_back(textOf(item.section));
        }
    }
    EXPECT_EQ(names, (std::vector<std::string> { "Sound", "Board", "Play" }));
}

} // namespace veyrand::controller
