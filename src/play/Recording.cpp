#include "play/Recording.h"

#include "play/ActionText.h"
#include "play/Replay.h"

namespace veyrand::play {

namespace {

std::string faultOf(const JournalText& journal)
{
    using State = JournalText::State;
    switch (journal.state) {
    case State::Newer:
        return "a later version of the game has written it";
    case State::Damaged:
        return "line " + std::to_string(journal.damagedLine) + " is damaged";
    case State::Foreign:
        return "it is no journal of the game";
    case State::Whole:
        break;
    }
    if (journal.entries.empty()) {
        return "no journal";
    }
    Replay replay;
    std::size_t line = 1;
    for (const JournalEntry& entry : journal.entries) {
        ++line;
        std::string fault = replay.apply(entry.action);
        if (fault.empty() && !entry.lastLine.empty() && entry.lastLine != replay.lastLine()) {
            fault = "it led to " + replay.lastLine();
        }
        if (!fault.empty()) {
            return "line " + std::to_string(line) + ", \"" + print(entry.action) + "\": " + fault;
        }
    }
    return {};
}

} // namespace

Recording readRecording(std::string_view text)
{
    if (!text.empty() && text.substr(0, kJournalMagic.size()) != kJournalMagic) {
        return { {}, "it is no journal of the game" };
    }
    JournalText journal = readJournal(text);
    std::string fault = faultOf(journal);
    if (!fault.empty()) {
        return { {}, std::move(fault) };
    }
    return { std::move(journal.entries), {} };
}

} // namespace veyrand::play
