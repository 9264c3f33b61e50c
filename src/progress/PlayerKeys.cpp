#include "progress/PlayerKeys.h"

#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

namespace veyrand::progress {

std::string playerRecordKey(std::string_view name)
{
    return "Player-" + std::string(name);
}

platform::Preferences::Contents registeredDefaults()
{
    const Settings usual;
    return {
        .values = {
            { std::string(kPlayerNameKey), std::string(kDefaultPlayerName) },
            { std::string(kPlayMusicKey), usual.music },
            { std::string(kPlayEffectsKey), usual.effects },
            { std::string(kEndlessGameUnlockedKey), false },
        },
        .records
        = { { playerRecordKey(kDefaultPlayerName), storedRecord({ .level = 1, .stage = 1 }) } },
    };
}

} // namespace veyrand::progress
