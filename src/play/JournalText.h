#pragma once

#include "play/Action.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::play {

// What a journal holds: a head that names format and player, then an action a line with the line of
// chips it left last, each line with a check that goes on from the one before. docs/actions.md
// describes it.

inline constexpr std::string_view kJournalMagic = "veyrand-actions ";

// The file of a player's game in one mode: "New-classic.txt". All but letters and digits of the
// name are written as %XX, so that any name makes a file's.
[[nodiscard]] std::string journalName(std::string_view player, progress::Mode mode);
[[nodiscard]] std::string percentEncoded(std::string_view name);

// One action and what the last line read after it; empty where no line was left.
struct JournalEntry {
    Action action;
    std::string lastLine;
    friend bool operator==(const JournalEntry&, const JournalEntry&) = default;
};

// Writes lines, each with its check: the head first.
class JournalWriter {
public:
    // Goes on after a line with this check.
    explicit JournalWriter(std::string check = {})
        : m_check(std::move(check))
    {
    }

    [[nodiscard]] std::string head(std::string_view player);
    [[nodiscard]] std::string line(const JournalEntry& entry);

    // Any text as a line, with its check.
    [[nodiscard]] std::string checked(std::string text);

private:
    std::string m_check;
};

class Replay;
// The lines of a journal that comes to the same as the replay, the head first; the writer goes on
// behind them.
[[nodiscard]] std::vector<std::string> journalOf(
    const Replay& replay, std::string_view player, JournalWriter& writer);

struct JournalText {
    enum class State {
        Whole, // but for a last line that was never ended, which is nobody's loss
        Damaged, // from the damaged line on
        Foreign, // another player's, or none of ours
        Newer, // of a format that comes later
    };
    State state = State::Whole;
    std::size_t damagedLine = 0; // counted from 1; 0 for none
    std::vector<JournalEntry> entries; // before the damage
    std::vector<std::string> checks; // of the head and of each entry, for whoever goes on writing
};

[[nodiscard]] JournalText readJournal(std::string_view text, std::string_view player);
// The same whoever's it is.
[[nodiscard]] JournalText readJournal(std::string_view text);

} // namespace veyrand::play
