#include "progress/PlayerKeys.h"

#include <cstdint>

namespace veyrand::progress {

std::string playerRecordKey(std::string_view name)
{
    return "Player-" + std::string(name);
}

platform::Preferences::Contents registeredDefaults()
{
    const platform::PreferenceRecord newPlayer {
        { std::string(kLevelKey), std::int64_t { 1 } },
        { std::string(kStageKey), std::int64_t { 1 } },
        { std::string(kScoreKey), std::int64_t { 0 } },
        { std::string(kFirstHintClickKey), false },
        { std::string(kEndlessScoreKey), std::int64_t { 0 } },
        { std::string(kEndlessParKey), std::int64_t { 0 } },
    };
    return {
        .values = {
            { std::string(kPlayerNameKey), std::string(kDefaultPlayerName) },
            { std::string(kPlayMusicKey), true },
            { std::string(kPlayEffectsKey), true },
            { std::string(kEndlessGameUnlockedKey), false },
        },
        .records = { { playerRecordKey(kDefaultPlayerName), newPlayer } },
    };
}

} // namespace veyrand::progress
