#include "progress/PlayerRecord.h"

#include "progress/PlayerKeys.h"

#include <algorithm>

namespace veyrand::progress {

namespace {

using platform::PreferenceRecord;

PreferenceRecord recordOf(const platform::Preferences& preferences, std::string_view player)
{
    return preferences.record(playerRecordKey(player)).value_or(PreferenceRecord {});
}

int smallNumber(const PreferenceRecord& record, std::string_view key)
{
    const std::int64_t number = platform::integerForKey(record, key);
    return static_cast<int>(
        std::clamp<std::int64_t>(number, -std::int64_t { kFarthestPlace }, kFarthestPlace));
}

std::int64_t points(const PreferenceRecord& record, std::string_view key)
{
    return std::clamp(platform::integerForKey(record, key), -kGreatestScore, kGreatestScore);
}

template <class Value>
void set(PreferenceRecord& record, std::string_view key, const std::optional<Value>& value)
{
    if (value) {
        record.insert_or_assign(std::string(key), std::int64_t { *value });
    }
}

void set(PreferenceRecord& record, std::string_view key, const std::optional<bool>& value)
{
    if (value) {
        record.insert_or_assign(std::string(key), *value);
    }
}

void makeChange(PreferenceRecord& record, const PlayerRecordChange& change)
{
    set(record, kLevelKey, change.level);
    set(record, kStageKey, change.stage);
    set(record, kScoreKey, change.score);
    set(record, kFirstHintClickKey, change.firstHintClick);
    set(record, kEndlessScoreKey, change.endlessScore);
    set(record, kEndlessParKey, change.endlessPar);
}

} // namespace

PlayerRecord readPlayerRecord(const platform::Preferences& preferences, std::string_view player)
{
    const PreferenceRecord record = recordOf(preferences, player);
    return {
        .level = smallNumber(record, kLevelKey),
        .stage = smallNumber(record, kStageKey),
        .score = points(record, kScoreKey),
        .firstHintClick = platform::boolForKey(record, kFirstHintClickKey),
        .endlessScore = points(record, kEndlessScoreKey),
        .endlessPar = smallNumber(record, kEndlessParKey),
    };
}

void updatePlayerRecord(
    platform::Preferences& preferences, std::string_view player, const PlayerRecordChange& change)
{
    PreferenceRecord record = recordOf(preferences, player);
    makeChange(record, change);
    preferences.setRecord(playerRecordKey(player), std::move(record));
}

PlayerRecordChange changeTo(const PlayerRecord& record)
{
    return { .level = record.level,
        .stage = record.stage,
        .score = record.score,
        .firstHintClick = record.firstHintClick,
        .endlessScore = record.endlessScore,
        .endlessPar = record.endlessPar };
}

PreferenceRecord storedRecord(const PlayerRecord& record)
{
    PreferenceRecord result;
    makeChange(result, changeTo(record));
    return result;
}

std::string currentPlayer(const platform::Preferences& preferences)
{
    return preferences.stringForKey(kPlayerNameKey);
}

bool isEndlessGameUnlocked(const platform::Preferences& preferences)
{
    return preferences.boolForKey(kEndlessGameUnlockedKey);
}

void setEndlessGameUnlocked(platform::Preferences& preferences, bool unlocked)
{
    preferences.setValue(kEndlessGameUnlockedKey, unlocked);
}

} // namespace veyrand::progress
