#include "play/Bundle.h"

#include <tuple>

namespace veyrand::play {

namespace {

using progress::Mode;

// What decides which of two games of a mode is further; no two games that differ are equal.
auto rank(const Bundle& bundle, Mode mode)
{
    const Standing standing = standingOf(bundle, mode);
    const Bundle::Lines& journal = bundle.journalOf(mode);
    const bool isEndless = mode == Mode::Endless;
    return std::make_tuple(isEndless ? 0 : progress::catalogueIndex(standing.place), standing.score,
        isEndless ? standing.endlessPar : 0, journal.size(), textOfLines(journal));
}

void takeMode(Bundle& bundle, const Bundle& from, Mode mode)
{
    if (mode == Mode::Endless) {
        bundle.record.endlessScore = from.record.endlessScore;
        bundle.record.endlessPar = from.record.endlessPar;
    } else {
        bundle.record.level = from.record.level;
        bundle.record.stage = from.record.stage;
        bundle.record.score = from.record.score;
    }
    bundle.journalOf(mode) = journalFor(from.journalOf(mode), bundle.player);
}

} // namespace

Standing standingOf(const Bundle& bundle, Mode mode)
{
    const progress::PlayerRecord& record = bundle.record;
    return { .mode = mode,
        .place = { record.level, record.stage },
        .score = mode == Mode::Endless ? record.endlessScore : record.score,
        .endlessPar = record.endlessPar };
}

Bundle joined(const Bundle& here, const Bundle& other)
{
    Bundle bundle = here;
    for (const Mode mode : { Mode::Classic, Mode::Endless }) {
        if (rank(here, mode) < rank(other, mode)) {
            takeMode(bundle, other, mode);
        }
    }
    bundle.record.firstHintClick = here.record.firstHintClick || other.record.firstHintClick;
    bundle.endlessOpen = here.endlessOpen || other.endlessOpen;
    bundle.results.join(other.results);
    bundle.puzzles.join(other.puzzles);
    return bundle;
}

Bundle::Lines journalFor(const Bundle::Lines& journal, std::string_view player)
{
    const JournalText text = readJournal(textOfLines(journal));
    if (text.checks.empty()) {
        return {};
    }
    JournalWriter writer;
    Bundle::Lines lines { writer.head(player) };
    for (const JournalEntry& entry : text.entries) {
        lines.push_back(writer.line(entry));
    }
    return lines;
}

std::string textOfLines(const Bundle::Lines& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += '\n';
    }
    return text;
}

} // namespace veyrand::play
