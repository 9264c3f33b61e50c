#pragma once

#include "platform/Preferences.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <variant>

namespace veyrand::platform {

// What every store of preferences promises. A program checks its own store with
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Memory, PreferencesContract, MemoryPreferencesHarness);
//
// where the harness begins with an empty store and offers
//
//     Preferences& preferences();
//     void reopen(); // a new Preferences over what the old one stored, as after a restart
template <class Harness> class PreferencesContract : public ::testing::Test {
protected:
    Preferences& preferences() { return m_harness.preferences(); }
    void reopen() { m_harness.reopen(); }

    static Preferences::Contents defaults()
    {
        Preferences::Contents contents;
        contents.values = { { "Name", std::string("New") }, { "Music", true } };
        contents.records
            = { { "Player-New", { { "Level", std::int64_t { 1 } }, { "Hinted", false } } } };
        return contents;
    }

private:
    Harness m_harness;
};

TYPED_TEST_SUITE_P(PreferencesContract);

TYPED_TEST_P(PreferencesContract, WhatIsMissingReadsAsNothing)
{
    const Preferences& preferences = this->preferences();
    EXPECT_EQ(preferences.value("Music"), std::nullopt);
    EXPECT_EQ(preferences.record("Player-New"), std::nullopt);
    EXPECT_FALSE(preferences.boolForKey("Music"));
    EXPECT_EQ(preferences.integerForKey("Music"), 0);
    EXPECT_EQ(preferences.stringForKey("Music"), "");
}

TYPED_TEST_P(PreferencesContract, ADefaultIsReadUntilTheUserStoresAValue)
{
    this->preferences().registerDefaults(this->defaults());
    EXPECT_EQ(this->preferences().stringForKey("Name"), "New");
    EXPECT_TRUE(this->preferences().boolForKey("Music"));

    this->preferences().setValue("Name", std::string("Ada"));
    this->preferences().setValue("Music", false);
    EXPECT_EQ(this->preferences().stringForKey("Name"), "Ada");
    EXPECT_FALSE(this->preferences().boolForKey("Music"));
}

TYPED_TEST_P(PreferencesContract, AStoredValueStandsWhenDefaultsComeLater)
{
    this->preferences().setValue("Name", std::string("Ada"));
    this->preferences().registerDefaults(this->defaults());
    EXPECT_EQ(this->preferences().stringForKey("Name"), "Ada");
}

TYPED_TEST_P(PreferencesContract, DefaultsAreNeverStored)
{
    this->preferences().registerDefaults(this->defaults());
    this->preferences().setValue("Other", true);
    this->reopen();
    EXPECT_EQ(this->preferences().value("Music"), std::nullopt);
    EXPECT_EQ(this->preferences().record("Player-New"), std::nullopt);
    EXPECT_TRUE(this->preferences().boolForKey("Other"));
}

TYPED_TEST_P(PreferencesContract, ARecordIsReplacedAsAWhole)
{
    this->preferences().registerDefaults(this->defaults());
    this->preferences().setRecord("Player-New", { { "Score", std::int64_t { 150 } } });

    const auto record = this->preferences().record("Player-New");
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(record->size(), 1U); // the default record's entries do not shine through
    EXPECT_EQ(integerForKey(*record, "Score"), 150);

    this->preferences().setRecord("Player-New", { { "Level", std::int64_t { 2 } } });
    const auto later = this->preferences().record("Player-New");
    ASSERT_TRUE(later.has_value());
    EXPECT_EQ(integerForKey(*later, "Score"), 0);
    EXPECT_EQ(integerForKey(*later, "Level"), 2);
}

TYPED_TEST_P(PreferencesContract, ValuesOfEveryKindSurviveARestart)
{
    constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
    constexpr auto kSmallest = std::numeric_limits<std::int64_t>::min();
    this->preferences().setValue("On", true);
    this->preferences().setValue("Off", false);
    this->preferences().setValue("Largest", kLargest);
    this->preferences().setValue("Smallest", kSmallest);
    this->preferences().setValue("Fraction", 1.5);
    this->preferences().setValue("Empty", std::string());
    this->preferences().setValue("Text", std::string("Zoë, \"Lines\" & 100% = \\n;"));
    this->reopen();

    const Preferences& preferences = this->preferences();
    EXPECT_TRUE(preferences.boolForKey("On"));
    EXPECT_FALSE(preferences.boolForKey("Off"));
    EXPECT_TRUE(preferences.value("Off").has_value()); // off is not missing
    EXPECT_EQ(preferences.integerForKey("Largest"), kLargest);
    EXPECT_EQ(preferences.integerForKey("Smallest"), kSmallest);
    EXPECT_EQ(preferences.value("Fraction"), PreferenceValue(1.5));
    EXPECT_EQ(preferences.value("Largest"), PreferenceValue(kLargest)); // to the last digit
    EXPECT_EQ(preferences.stringForKey("Empty"), "");
    EXPECT_EQ(preferences.stringForKey("Text"), "Zoë, \"Lines\" & 100% = \\n;");
}

TYPED_TEST_P(PreferencesContract, AFractionReadsAsTheNearestWholeNumber)
{
    PreferenceRecord record { { "Half", 2.5 }, { "Debt", -0.4 }, { "Much", 1e30 },
        { "Little", -1e30 } };
    this->preferences().setRecord("Numbers", record);
    this->reopen();
    record = this->preferences().record("Numbers").value();
    EXPECT_EQ(integerForKey(record, "Half"), 3);
    EXPECT_EQ(integerForKey(record, "Debt"), 0);
    EXPECT_EQ(integerForKey(record, "Much"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(integerForKey(record, "Little"), std::numeric_limits<std::int64_t>::min());
}

TYPED_TEST_P(PreferencesContract, RecordsSurviveARestart)
{
    this->preferences().setRecord(
        "Player-New", { { "Score", std::int64_t { -10 } }, { "Hinted", true } });
    this->reopen();
    const auto record = this->preferences().record("Player-New");
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(integerForKey(*record, "Score"), -10);
    EXPECT_TRUE(boolForKey(*record, "Hinted"));
}

TYPED_TEST_P(PreferencesContract, AReplacedRecordStaysReplacedAfterARestart)
{
    this->preferences().setRecord(
        "Player-New", { { "Score", std::int64_t { 150 } }, { "Hinted", true } });
    this->preferences().setRecord("Player-New", { { "Level", std::int64_t { 2 } } });
    this->reopen();
    const auto record = this->preferences().record("Player-New");
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(*record, (PreferenceRecord { { "Level", std::int64_t { 2 } } }));
}

// Players choose their names.
TYPED_TEST_P(PreferencesContract, AKeyMayHoldAnyCharacter)
{
    for (const char* key :
        { "Player-Zoë", "Player-a b", "Player-a/b", "Player-a=b", "Player-%20" }) {
        this->preferences().setRecord(key, { { "Name", std::string(key) } });
    }
    this->reopen();
    for (const char* key :
        { "Player-Zoë", "Player-a b", "Player-a/b", "Player-a=b", "Player-%20" }) {
        const auto record = this->preferences().record(key);
        ASSERT_TRUE(record.has_value()) << key;
        EXPECT_EQ(stringForKey(*record, "Name"), key);
    }
}

REGISTER_TYPED_TEST_SUITE_P(PreferencesContract, WhatIsMissingReadsAsNothing,
    ADefaultIsReadUntilTheUserStoresAValue, AStoredValueStandsWhenDefaultsComeLater,
    DefaultsAreNeverStored, ARecordIsReplacedAsAWhole, ValuesOfEveryKindSurviveARestart,
    AFractionReadsAsTheNearestWholeNumber, RecordsSurviveARestart,
    AReplacedRecordStaysReplacedAfterARestart, AKeyMayHoldAnyCharacter);

} // namespace veyrand::platform
