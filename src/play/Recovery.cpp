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

// Goes through a journal. One puzzle follows another where the record could not be saved in
// between: so it may stand at any of them.
class Reading {
public:
    Reading(const Standing& record, const Catalogue& catalogue)
        : m_record(record)
        , m_standing(record)
        , m_catalogue(catalogue)
    {
    }

    // What is wrong with the entry, and then nothing has changed; empty when nothing is.
    [[nodiscard]] std::string add(const JournalEntry& entry)
    {
        const auto* const puzzle = std::get_if<Puzzle>(&entry.action);
        if (puzzle != nullptr && m_replay.puzzle() && !follows(*puzzle)) {
            return "it does not follow from what went before";
        }
        Replay next = m_replay;
        std::string fault = next.apply(entry.action);
        if (fault.empty() && !entry.lastLine.empty() && entry.lastLine != next.lastLine()) {
            fault = "it led to another line: " + next.lastLine();
        }
        if (fault.empty()) {
            if (puzzle != nullptr) {
                begin(*puzzle);
            }
            m_replay = std::move(next);
        }
        return fault;
    }

    [[nodiscard]] Recovery result() const
    {
        Recovery recovery;
        recovery.replay = m_replay;
        if (m_replay.puzzle()) {
            recovery.standing
                = m_replay.isOver() ? standingAfter(m_replay, m_standing) : m_standing;
        }
        recovery.found = found(recovery.standing);
        return recovery;
    }

private:
    [[nodiscard]] bool follows(const Puzzle& puzzle) const
    {
        return m_replay.isOver() && isInCatalogue(*m_replay.puzzle(), m_catalogue)
            && puzzle.mode == m_replay.puzzle()->mode && puzzle.saved == m_replay.purse()
            && (puzzle.mode == Mode::Endless
                || puzzle.place == progress::nextPlace(m_replay.puzzle()->place));
    }

    void begin(const Puzzle& puzzle)
    {
        if (m_isPastRecord) {
            m_standing = standingAfter(m_replay, m_standing);
        }
        m_isPastRecord = m_isPastRecord || isBegunAt(m_record, puzzle);
    }

    [[nodiscard]] Recovery::Found found(const Standing& after) const
    {
        using Found = Recovery::Found;
        if (!m_replay.puzzle()) {
            return Found::Nothing;
        }
        if (!isInCatalogue(*m_replay.puzzle(), m_catalogue)) {
            return Found::Misfit;
        }
        if (isBegunAt(m_standing, *m_replay.puzzle()) && hasItsPar(m_standing, m_replay)) {
            return m_replay.isSolved() ? Found::Solved
                : m_replay.leftFor()   ? Found::Left
                                       : Found::InPlay;
        }
        return m_replay.isOver() && m_record == after ? Found::AlreadySaved : Found::Misfit;
    }

    Standing m_record;
    Standing m_standing; // of the record once what went before the puzzle at hand is saved
    const Catalogue& m_catalogue;
    Replay m_replay;
    bool m_isPastRecord = false;
};

} // namespace

Recovery recover(
    const Standing& record, const Catalogue& catalogue, const std::vector<JournalEntry>& entries)
{
    Reading reading(record, catalogue);
    std::size_t replayed = 0;
    std::string fault;
    for (const JournalEntry& entry : entries) {
        fault = reading.add(entry);
        if (!fault.empty()) {
            break;
        }
        ++replayed;
    }
    Recovery recovery = reading.result();
    recovery.replayed = replayed;
    recovery.fault = std::move(fault);
    return recovery;
}

} // namespace veyrand::play
