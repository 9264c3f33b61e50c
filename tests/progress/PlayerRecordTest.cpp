#include "progress/PlayerRecord.h"

#include "platform/MemoryPreferences.h"
#include "progress/PlayerKeys.h"

#include <gtest/gtest.h>
#include <limits>

namespace veyrand::progress {

namespace {

using platform::PreferenceRecord;

constexpr PlayerRecord kAda { .level = 5,
    .stage = 7,
    .score = -850,
    .firstHintClick = true,
    .endlessScore = 120,
    .endlessPar = 9 };

class PlayerRecordTest : public testing::Test {
protected:
    platform::MemoryPreferences preferences;
};

} // namespace

TEST_F(PlayerRecordTest, ARecordIsReadAsItWasStored)
{
    preferences.setRecord("Player-Ada", storedRecord(kAda));
    EXPECT_EQ(readPlayerRecord(preferences, "Ada"), kAda);
    EXPECT_EQ(readPlayerRecord(preferences, "New"), PlayerRecord());
}

TEST_F(PlayerRecordTest, WhatIsMissingOrOfAnotherKindIsNothing)
{
    preferences.setRecord("Player-Ada",
        { { "TRNLevelKey", std::string("5") }, { "TRNScoreKey", true },
            { "TRNFirstHintClickKey", std::int64_t { 1 } } });
    EXPECT_EQ(readPlayerRecord(preferences, "Ada"),
        (PlayerRecord { .score = 1, .firstHintClick = true }));
}

TEST_F(PlayerRecordTest, AbsurdNumbersAreBroughtIntoABoundAndStayOutsideTheGame)
{
    constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
    constexpr auto kSmallest = std::numeric_limits<std::int64_t>::min();
    preferences.setRecord("Player-Ada",
        { { "TRNLevelKey", kLargest }, { "TRNStageKey", kSmallest }, { "TRNScoreKey", kLargest },
            { "TRNEndlessScoreKey", kSmallest },
            { "TRNEndlessParKey", (std::int64_t { 1 } << 32) + 5 } });
    EXPECT_EQ(readPlayerRecord(preferences, "Ada"),
        (PlayerRecord { .level = kFarthestPlace,
            .stage = -kFarthestPlace,
            .score = kGreatestScore,
            .endlessScore = -kGreatestScore,
            .endlessPar = kFarthestPlace }));
}

TEST_F(PlayerRecordTest, AChangeLeavesEverythingElseAsItStood)
{
    preferences.setRecord("Player-Ada",
        { { "TRNLevelKey", std::string("odd") }, { "Colour", std::string("red") },
            { "TRNScoreKey", std::int64_t { 10 } } });
    updatePlayerRecord(preferences, "Ada", { .score = 20, .endlessPar = 0 });
    EXPECT_EQ(preferences.record("Player-Ada"),
        (PreferenceRecord { { "TRNLevelKey", std::string("odd") }, { "Colour", std::string("red") },
            { "TRNScoreKey", std::int64_t { 20 } }, { "TRNEndlessParKey", std::int64_t { 0 } } }));
}

TEST_F(PlayerRecordTest, TheFirstChangeMakesTheRecord)
{
    updatePlayerRecord(preferences, "Ada", { .firstHintClick = true });
    EXPECT_EQ(
        preferences.record("Player-Ada"), (PreferenceRecord { { "TRNFirstHintClickKey", true } }));
}

TEST_F(PlayerRecordTest, TheEndlessGameIsOpenedForEverybody)
{
    preferences.registerDefaults(registeredDefaults());
    EXPECT_EQ(currentPlayer(preferences), "New");
    EXPECT_FALSE(isEndlessGameUnlocked(preferences));
    setEndlessGameUnlocked(preferences, true);
    preferences.setValue("TRNPlayerNameKey", std::string("Ada"));
    EXPECT_EQ(currentPlayer(preferences), "Ada");
    EXPECT_TRUE(isEndlessGameUnlocked(preferences));
}

} // namespace veyrand::progress
