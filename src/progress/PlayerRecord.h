#pragma once

#include "platform/Preferences.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veyrand::progress {

// Whole numbers of a record lie within these, whatever the file says, so that counting on from them
// never overflows. A place outside the game stays outside it.
inline constexpr int kFarthestPlace = 1'000'000;
inline constexpr std::int64_t kGreatestScore = 9'007'199'254'740'992; // exact in every store

// What one player has reached. What a record lacks, and what is of another kind, is 0 or NO.
struct PlayerRecord {
    int level = 0; // with the stage, the place in the Classic game: 1-1 to 11-10
    int stage = 0;
    std::int64_t score = 0;
    bool firstHintClick = false;
    std::int64_t endlessScore = 0;
    int endlessPar = 0; // in lines; 0 when none was chosen
    friend bool operator==(const PlayerRecord&, const PlayerRecord&) = default;
};

// What is to be written anew; the rest of the record stays as it stands in the store, whatever it
// is.
struct PlayerRecordChange {
    std::optional<int> level {};
    std::optional<int> stage {};
    std::optional<std::int64_t> score {};
    std::optional<bool> firstHintClick {};
    std::optional<std::int64_t> endlessScore {};
    std::optional<int> endlessPar {};
};

// Everything that the record says.
[[nodiscard]] PlayerRecordChange changeTo(const PlayerRecord& record);

[[nodiscard]] PlayerRecord readPlayerRecord(
    const platform::Preferences& preferences, std::string_view player);
void updatePlayerRecord(
    platform::Preferences& preferences, std::string_view player, const PlayerRecordChange& change);

// All of the record as a store keeps it.
[[nodiscard]] platform::PreferenceRecord storedRecord(const PlayerRecord& record);

// Whose record it is that the game reads and writes.
[[nodiscard]] std::string currentPlayer(const platform::Preferences& preferences);

// Once open, the Endless game is open for every player.
[[nodiscard]] bool isEndlessGameUnlocked(const platform::Preferences& preferences);
void setEndlessGameUnlocked(platform::Preferences& preferences, bool unlocked);

} // namespace veyrand::progress
