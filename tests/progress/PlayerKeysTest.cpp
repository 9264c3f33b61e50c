#include "progress/PlayerKeys.h"

#include "platform/MemoryPreferences.h"

#include <gtest/gtest.h>

namespace veyrand::progress {

TEST(PlayerKeys, ARecordIsKeptUnderThePlayersName)
{
    EXPECT_EQ(playerRecordKey("New"), "Player-New");
    EXPECT_EQ(playerRecordKey(""), "Player-");
}

TEST(PlayerKeys, WhoeverHasStoredNothingStartsWithSoundAtOneOne)
{
    platform::MemoryPreferences preferences;
    preferences.registerDefaults(registeredDefaults());

    EXPECT_EQ(preferences.stringForKey(kPlayerNameKey), kDefaultPlayerName);
    EXPECT_TRUE(preferences.boolForKey(kPlayMusicKey));
    EXPECT_TRUE(preferences.boolForKey(kPlayEffectsKey));
    EXPECT_FALSE(preferences.boolForKey(kEndlessGameUnlockedKey));

    const auto record = preferences.record(playerRecordKey(kDefaultPlayerName));
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(platform::integerForKey(*record, kLevelKey), 1);
    EXPECT_EQ(platform::integerForKey(*record, kStageKey), 1);
    EXPECT_EQ(platform::integerForKey(*record, kScoreKey), 0);
    EXPECT_EQ(platform::integerForKey(*record, kEndlessScoreKey), 0);
    EXPECT_EQ(platform::integerForKey(*record, kEndlessParKey), 0);
    EXPECT_FALSE(platform::boolForKey(*record, kFirstHintClickKey));
}

} // namespace veyrand::progress
