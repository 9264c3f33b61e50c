#pragma once

#include "platform/Preferences.h"
#include "play/MyPuzzles.h"
#include "play/Recovery.h"
#include "play/Results.h"
#include "progress/PlayerRecord.h"

#include <array>
#include <string>
#include <vector>

namespace veyrand::play {

// All that one player has, to be taken elsewhere: the record, the settings, the unfinished puzzles
// of both modes, what has been solved and the puzzles of his own.
struct Bundle {
    using Lines = std::vector<std::string>;

    std::string player;
    progress::PlayerRecord record {};
    bool endlessOpen = false;
    bool music = true;
    bool effects = true;
    platform::PreferenceRecord settings {}; // their group as it stands
    std::array<Lines, 2> journals {}; // of Classic and Endless, as they stand; empty for none
    Results results {};
    MyPuzzles puzzles {};

    [[nodiscard]] const Lines& journalOf(progress::Mode mode) const
    {
        return journals.at(mode == progress::Mode::Endless ? 1 : 0);
    }
    [[nodiscard]] Lines& journalOf(progress::Mode mode)
    {
        return journals.at(mode == progress::Mode::Endless ? 1 : 0);
    }
    friend bool operator==(const Bundle&, const Bundle&) = default;
};

[[nodiscard]] Standing standingOf(const Bundle& bundle, progress::Mode mode);

// Of each mode the game that is further, with its score and its unfinished puzzle; of each puzzle
// the better result; the own puzzles of both. Who plays, and with which settings, is as here. Where
// two games of a mode stand at the same place with the same score, the puzzle in which more has
// been done is further.
[[nodiscard]] Bundle joined(const Bundle& here, const Bundle& other);

// The journal's lines under another player's name; empty where they are none of a journal.
[[nodiscard]] Bundle::Lines journalFor(const Bundle::Lines& journal, std::string_view player);

// What the lines read as a text.
[[nodiscard]] std::string textOfLines(const Bundle::Lines& lines);

} // namespace veyrand::play
