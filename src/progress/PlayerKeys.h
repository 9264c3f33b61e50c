#pragma once

#include "platform/Preferences.h"

#include <string>
#include <string_view>

namespace veyrand::progress {

// The names on the disk. PlayerRecord and Settings are how the game reads and writes them.

// Where the preferences keep what concerns the whole game ...
inline constexpr std::string_view kPlayerNameKey = "TRNPlayerNameKey";
inline constexpr std::string_view kPlayMusicKey = "TRNPlayMusicKey";
inline constexpr std::string_view kPlayEffectsKey = "TRNPlayEffectsKey";
inline constexpr std::string_view kEndlessGameUnlockedKey = "TRNEndlessGameUnlockedKey";

// ... and, inside one player's record, what concerns that player.
inline constexpr std::string_view kLevelKey = "TRNLevelKey";
inline constexpr std::string_view kStageKey = "TRNStageKey";
inline constexpr std::string_view kScoreKey = "TRNScoreKey";
inline constexpr std::string_view kFirstHintClickKey = "TRNFirstHintClickKey";
inline constexpr std::string_view kEndlessScoreKey = "TRNEndlessScoreKey";
inline constexpr std::string_view kEndlessParKey = "TRNEndlessParKey";

// The name of whoever has not given one.
inline constexpr std::string_view kDefaultPlayerName = "New";

// Where a player's record is kept: "Player-New" for the player "New".
[[nodiscard]] std::string playerRecordKey(std::string_view name);

// What holds until the player has stored something else.
[[nodiscard]] platform::Preferences::Contents registeredDefaults();

} // namespace veyrand::progress
