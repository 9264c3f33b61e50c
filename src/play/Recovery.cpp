#include "play/Recovery.h"

#include "progress/CurrentGame.h"

#include <algorithm>

namespace veyrand::play {

namespace {

using progress::Catalogue;
using progress::CatalogueEntry;
using progress::Mode;

bool isInCatalogue(const Puzzle& puzzle, const Catalogue& catalogue)
{
    const CatalogueEntry entry { puzzle.root, puzzle.goal, puzzle.par };
    if (puzzle.mode == Mode::Endless) {
        return std::find(catalogue.begin(), catalogue.end(), entry) != catalogue.end();
    }
    const std::int64_t index = progress::catalogueIndex(puzzle.place);
    return index >= 1 && static_cast<std::size_t>(index) < catalogue.size()
        && catalogue[static_cast<std::size_t>(index)] == entry;
}

// Whether the puzzle was begun where the record stands.
bool isBegunAt(const Standing& record, const Puzzle& puzzle)
{
    if (record.mode != puzzle.mode || record.score != puzzle.saved) {
        return false;
    }
    return puzzle.mode == Mode::Endless || record.place == puzzle.place;
}

// What the record says once the puzzle is over.
Standing standingAfter(const Replay& replay, Standing record)
{
    record.score = replay.purse();
    if (record.mode == Mode::Classic) {
        record.place = progress::nextPlace(replay.puzzle()->place);
    } else if (replay.leftFor()) {
        record.endlessPar = *replay.leftFor();
    }
    return record;
}

// The par is saved as soon as a puzzle is left for it, before the points are.
bool hasItsPar(const Standing& record, const Replay& replay)
{
    return record.mode == Mode::Classic
        || progress::endlessParFor(record.endlessPar) == replay.puzzle()->par
        || record.endlessPar == replay.leftFor();
}

Recovery::Found foundFor(
    const Standing& record, const Catalogue& catalogue, const Recovery& recovery)
{
    using Found = Recovery::Found;
    const Replay& replay = recovery.replay;
    if (!replay.puzzle()) {
        return Found::Nothing;
    }
    if (!isInCatalogue(*replay.puzzle(), catalogue)) {
        return Found::Misfit;
    }
    if (isBegunAt(record, *replay.puzzle()) && hasItsPar(record, replay)) {
        return replay.isSolved() ? Found::Solved : replay.leftFor() ? Found::Left : Found::InPlay;
    }
    return replay.isOver() && record == recovery.standing ? Found::AlreadySaved : Found::Misfit;
}

} // namespace

Recovery recover(
    const Standing& record, const Catalogue& catalogue, const std::vector<JournalEntry>& entries)
{
    Recovery recovery;
    for (const JournalEntry& entry : entries) {
        const bool isSecondPuzzle
            = recovery.replayed > 0 && std::holds_alternative<Puzzle>(entry.action);
        Replay next = recovery.replay;
        recovery.fault = isSecondPuzzle ? "a journal holds one puzzle" : next.apply(entry.action);
        if (recovery.fault.empty() && !entry.lastLine.empty()
            && entry.lastLine != next.lastLine()) {
            recovery.fault = "it led to another line: " + next.lastLine();
        }
        if (!recovery.fault.empty()) {
            break;
        }
        recovery.replay = std::move(next);
        ++recovery.replayed;
    }
    if (recovery.replay.puzzle()) {
        recovery.standing
            = recovery.replay.isOver() ? standingAfter(recovery.replay, record) : record;
    }
    recovery.found = foundFor(record, catalogue, recovery);
    return recovery;
}

} // namespace veyrand::play
