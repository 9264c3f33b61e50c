#pragma once

#include "play/JournalText.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::play {

// A journal that is looked at rather than gone on with, whoever played it: whole, and of a game
// that could have been.
struct Recording {
    std::vector<JournalEntry>
        entries; // one at least, the first a puzzle; none where there is a fault
    std::string fault; // in words, with the line where there is one; empty for none
};

[[nodiscard]] Recording readRecording(std::string_view text);

} // namespace veyrand::play
