#pragma once

#include "play/JournalText.h"
#include "play/Replay.h"
#include "progress/Catalogue.h"
#include "progress/Place.h"

namespace veyrand::play {

// What the player's record says of one mode: with it a journal must agree.
struct Standing {
    progress::Mode mode = progress::Mode::Classic;
    progress::Place place {}; // of the Classic game
    std::int64_t score = 0; // of the mode
    int endlessPar = 0; // 0 when none was chosen
    friend bool operator==(const Standing&, const Standing&) = default;
};

// What a journal comes to for a record.
struct Recovery {
    enum class Found {
        Nothing,
        InPlay, // `replay` goes on, and the record is to say `standing`, as it mostly does
        Solved, // the record is to say `standing`, the next puzzle is to come
        Left, // the same, for an Endless puzzle that was given up
        AlreadySaved, // and the record says so
        Misfit, // the record or the catalogue has changed, or no game could have gone like this
    };
    Found found = Found::Nothing;
    Replay replay {}; // what could be replayed
    Standing standing {}; // what the record is to say
    std::size_t replayed = 0; // entries, from the first
    std::string fault {}; // of the first entry that could not be, in words; empty for none
};

// At launch, before anything is shown. Replays the entries as far as they can have happened and
// hold what they say they led to, and asks whether that is the puzzle that the record stands at.
[[nodiscard]] Recovery recover(const Standing& record, const progress::Catalogue& catalogue,
    const std::vector<JournalEntry>& entries);

} // namespace veyrand::play
