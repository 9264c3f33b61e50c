#include "progress/PlayerKeys.h"

namespace veyrand::progress {

using platform::PreferenceRecord;
using platform::Preferences;

namespace {

constexpr std::string_view kDefaultPlayer = "New";

} // namespace

std::string playerRecordKey(std::string_view playerName)
{
    return "Player-" + std::string(playerName);
}

Preferences::Contents registeredDefaults()
{
    Preferences::Contents defaults;
    defaults.values
        = PreferenceRecord { { std::string(kPlayerNameKey), std::string(kDefaultPlayer) },
              { std::string(kPlayMusicKey), true }, { std::string(kPlayEffectsKey), true },
              { std::string(kEndlessGameUnlockedKey), false } };
    defaults.records.emplace(playerRecordKey(kDefaultPlayer),
        PreferenceRecord { { std::string(kLevelKey), std::int64_t { 1 } },
            { std::string(kStageKey), std::int64_t { 1 } },
            { std::string(kScoreKey), std::int64_t { 0 } },
            { std::string(kFirstHintClickKey), false },
            { std::string(kEndlessScoreKey), std::int64_t { 0 } },
            { std::string(kEndlessParKey), std::int64_t { 0 } } });
    return defaults;
}

} // namespace veyrand::progress
