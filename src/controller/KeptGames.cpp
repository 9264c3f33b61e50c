#include "controller/KeptGames.h"

#include "controller/GameController.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

#include <utility>

namespace veyrand::controller {

using play::Recovery;
using play::Replay;

namespace {

// A journal that has grown to this is begun anew with a shorter list.
constexpr std::size_t kMostLines = 1000;

} // namespace

KeptGames::KeptGames(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
    , m_inTheWay { InTheWay(m_game.journal), InTheWay(m_game.journal) }
{
}

bool KeptGames::isWanted() const
{
    return m_game.journal != nullptr
        && progress::readSettings(m_game.preferences).keepUnfinishedPuzzles;
}

std::string KeptGames::nameOf(Mode mode) const
{
    return play::journalName(progress::currentPlayer(m_game.preferences), mode);
}

play::Standing KeptGames::standingOf(Mode mode) const
{
    const auto record = progress::readPlayerRecord(
        m_game.preferences, progress::currentPlayer(m_game.preferences));
    return { .mode = mode,
        .place = { record.level, record.stage },
        .score = mode == Mode::Endless ? record.endlessScore : record.score,
        .endlessPar = record.endlessPar };
}

void KeptGames::recoverAll()
{
    if (m_game.journal == nullptr) {
        return;
    }
    m_isOn = isWanted();
    m_inTheWay.fill(InTheWay(m_game.journal));
    for (const Mode mode : { Mode::Classic, Mode::Endless }) {
        if (m_isOn) {
            recover(mode);
        } else {
            m_game.journal->remove(nameOf(mode));
        }
    }
}

void KeptGames::recoverAnew()
{
    m_files = {};
    m_solvedAtLaunch = false;
    recoverAll();
}

void KeptGames::recover(Mode mode)
{
    const platform::Journal::Text text = m_game.journal->read(nameOf(mode));
    if (text.contents) {
        recoverFrom(mode, *text.contents);
    } else if (!text.fault.empty()) {
        setAside(mode, "damaged", text.fault);
    }
}

void KeptGames::recoverFrom(Mode mode, const std::string& contents)
{
    using State = play::JournalText::State;
    const play::JournalText text
        = play::readJournal(contents, progress::currentPlayer(m_game.preferences));
    if (text.state == State::Newer) {
        return setAside(mode, "newer", "a later version of the game has written it");
    }
    if (text.state == State::Foreign) {
        m_game.log.write("The journal " + nameOf(mode) + " is of another player");
        return setAsideSilently(mode);
    }
    Recovery recovery
        = play::recover(standingOf(mode), m_game.currentGame.catalogueOf(mode), text.entries);
    std::string damage;
    if (!recovery.fault.empty()) {
        damage = "line " + std::to_string(recovery.replayed + 2) + ": " + recovery.fault;
    } else if (text.state == State::Damaged) {
        damage = "line " + std::to_string(text.damagedLine) + " is damaged";
    }
    if (!damage.empty()) {
        setAside(mode, "damaged", damage);
    }
    found(mode, std::move(recovery), text,
        damage.empty() && !contents.empty() && contents.back() == '\n');
}

void KeptGames::found(Mode mode, Recovery recovery, const play::JournalText& text, bool isWhole)
{
    switch (recovery.found) {
    case Recovery::Found::InPlay: {
        if (recovery.standing != standingOf(mode)) {
            save(recovery.standing); // which it could not be when the puzzle began
        }
        File& file = fileOf(mode);
        file.kept = std::move(recovery.replay);
        if (isWhole) {
            file.writer = play::JournalWriter(text.checks.back());
            file.lines = text.checks.size();
            file.mayAppend = true;
        } else {
            write(mode, *file.kept);
        }
        return;
    }
    case Recovery::Found::Solved:
        m_solvedAtLaunch = m_solvedAtLaunch || mode == Mode::Classic;
        [[fallthrough]];
    case Recovery::Found::Left:
        save(recovery.standing);
        break;
    case Recovery::Found::Misfit:
        m_game.log.write("The journal " + nameOf(mode)
            + " is not of the puzzle at which the record stands, and is kept aside");
        return setAsideSilently(mode);
    case Recovery::Found::Nothing:
    case Recovery::Found::AlreadySaved:
        break;
    }
    remove(mode);
}

void KeptGames::save(const play::Standing& standing)
{
    progress::PlayerRecordChange change;
    if (standing.mode == Mode::Endless) {
        change.endlessScore = standing.score;
        change.endlessPar = standing.endlessPar;
    } else {
        change.level = standing.place.level;
        change.stage = standing.place.stage;
        change.score = standing.score;
    }
    progress::updatePlayerRecord(
        m_game.preferences, progress::currentPlayer(m_game.preferences), change);
}

void KeptGames::setAside(Mode mode, std::string_view reason, const std::string& why)
{
    const std::string name = nameOf(mode);
    const auto kept = m_inTheWay.at(indexOf(mode)).setAside(name, reason);
    report(kept
            ? m_game.texts.text(
                "saving.unreadable", { { "file", name }, { "why", why }, { "kept", *kept } })
            : m_game.texts.text("saving.unreadableInTheWay", { { "file", name }, { "why", why } }));
}

// The player has lost nothing.
void KeptGames::setAsideSilently(Mode mode)
{
    if (!m_inTheWay.at(indexOf(mode)).setAside(nameOf(mode), "aside")) {
        m_game.log.write("The journal " + nameOf(mode) + " cannot be set aside");
    }
}

void KeptGames::remove(Mode mode)
{
    if (m_inTheWay.at(indexOf(mode)).fault().empty()) {
        m_game.journal->remove(nameOf(mode));
    }
}

const Replay* KeptGames::inPlay() const
{
    const play::Session* const session = m_controller.flow().session();
    // What is practised is nobody's unfinished puzzle.
    const bool isKept = session != nullptr && !m_game.currentGame.practice();
    return isKept ? &session->settled() : nullptr;
}

void KeptGames::begin()
{
    const play::Puzzle& puzzle = *inPlay()->puzzle();
    const Mode mode = puzzle.mode;
    const File& file = fileOf(mode);
    if (m_isOn && isNeeded(mode)) {
        if (file.mayAppend && file.lastPurse == puzzle.saved) {
            return append(mode, puzzle);
        }
        if (!file.mayAppend) {
            return; // which the player has been told
        }
    }
    fileOf(mode) = File();
    if (m_isOn) {
        write(mode, *inPlay());
    }
}

void KeptGames::add(const play::Action& action)
{
    if (inPlay() == nullptr) {
        return;
    }
    const Replay& replay = *inPlay();
    const Mode mode = replay.puzzle()->mode;
    const File& file = fileOf(mode);
    if (!m_isOn) {
        return;
    }
    if (!file.mayAppend) { // what came before is missing
        return writeAnew(mode, replay, m_faults.at(indexOf(mode)));
    }
    if (file.lines >= kMostLines && !replay.isOver() && !isNeeded(mode)) {
        return write(mode, replay);
    }
    append(mode, action);
}

void KeptGames::append(Mode mode, const play::Action& action)
{
    const Replay& replay = *inPlay();
    File& file = fileOf(mode);
    ++file.lines;
    file.lastPurse = replay.isOver() ? std::optional(replay.purse()) : std::nullopt;
    const std::string fault
        = m_game.journal->append(nameOf(mode), file.writer.line({ action, replay.lastLine() }));
    if (!fault.empty()) {
        m_game.log.write("The journal " + nameOf(mode) + " is written anew: " + fault);
        writeAnew(mode, replay, fault);
    }
}

void KeptGames::writeAnew(Mode mode, const Replay& replay, std::string fault)
{
    if (isNeeded(mode)) {
        ended(mode, std::move(fault));
    } else {
        write(mode, replay);
    }
}

bool KeptGames::isNeeded(Mode mode) const
{
    return m_files.at(indexOf(mode)).lines > 0 && m_recordIsSaved && !m_recordIsSaved();
}

void KeptGames::write(Mode mode, const Replay& replay)
{
    File& file = fileOf(mode);
    const auto lines
        = play::journalOf(replay, progress::currentPlayer(m_game.preferences), file.writer);
    file.lines = lines.size();
    file.mayAppend = true;
    file.lastPurse = replay.isOver() ? std::optional(replay.purse()) : std::nullopt;
    std::string fault = m_inTheWay.at(indexOf(mode)).fault();
    ended(mode, fault.empty() ? m_game.journal->begin(nameOf(mode), lines) : std::move(fault));
}

// The first failure is told, and the first success after it.
void KeptGames::ended(Mode mode, std::string newFault)
{
    std::string& fault = m_faults.at(indexOf(mode));
    const std::string before = std::exchange(fault, std::move(newFault));
    fileOf(mode).mayAppend = fault.empty();
    if (before.empty() != fault.empty()) {
        report(fault.empty() ? m_game.texts.text("saving.puzzleKeptAgain", {})
                             : m_game.texts.text("saving.puzzleNotKept", { { "why", fault } }));
    }
}

void KeptGames::close()
{
    const Replay* const replay = inPlay();
    if (m_isOn && replay != nullptr && !replay->isOver()) {
        fileOf(replay->puzzle()->mode).kept = *replay;
    }
}

void KeptGames::forget(Mode mode)
{
    fileOf(mode) = File();
    m_faults.at(indexOf(mode)).clear();
    m_solvedAtLaunch = m_solvedAtLaunch && mode != Mode::Classic;
    if (m_game.journal != nullptr) {
        remove(mode);
    }
}

const Replay* KeptGames::keptOf(Mode mode) const
{
    const auto& kept = m_files.at(indexOf(mode)).kept;
    return kept ? &*kept : nullptr;
}

void KeptGames::replace(Mode mode, const std::optional<Replay>& puzzle)
{
    forget(mode);
    if (puzzle && m_isOn) {
        fileOf(mode).kept = puzzle;
        write(mode, *puzzle);
    }
}

std::optional<Replay> KeptGames::take(Mode mode)
{
    auto kept = std::exchange(fileOf(mode).kept, std::nullopt);
    const play::Standing record = standingOf(mode);
    // Whoever changes the record behind the title page has another puzzle before him.
    const bool fits = kept && record.score == kept->puzzle()->saved
        && (mode == Mode::Endless || record.place == kept->puzzle()->place);
    return fits ? std::move(kept) : std::nullopt;
}

bool KeptGames::takeSolvedAtLaunch()
{
    return std::exchange(m_solvedAtLaunch, false);
}

void KeptGames::settingsChanged()
{
    if (isWanted() == m_isOn) {
        return;
    }
    m_isOn = !m_isOn;
    const Replay* const replay = inPlay();
    if (!m_isOn) {
        forget(Mode::Classic);
        forget(Mode::Endless);
    } else if (replay != nullptr && !replay->isOver()) {
        write(replay->puzzle()->mode, *replay);
    }
}

void KeptGames::report(const std::string& message)
{
    m_game.log.write(message);
    if (m_report) {
        m_report(message);
    } else {
        m_unreported.push_back(message);
    }
}

void KeptGames::setReporter(std::function<void(const std::string&)> report)
{
    m_report = std::move(report);
    for (const std::string& message : std::exchange(m_unreported, {})) {
        m_report(message);
    }
}

std::string KeptGames::lastWords()
{
    if (!m_isOn) {
        return {};
    }
    const std::string late = m_game.journal->drain();
    for (const Mode mode : { Mode::Classic, Mode::Endless }) {
        const std::string& fault = m_faults.at(indexOf(mode));
        const Replay* const replay = toBeKept(mode);
        if (replay != nullptr && (!fault.empty() || !late.empty())) {
            writeAnew(mode, *replay, fault.empty() ? late : fault);
        }
    }
    std::string fault = late.empty() ? std::string() : m_game.journal->drain();
    for (const Mode mode : { Mode::Classic, Mode::Endless }) {
        if (toBeKept(mode) != nullptr && fault.empty()) {
            fault = m_faults.at(indexOf(mode));
        }
    }
    return fault.empty() ? std::string()
                         : m_game.texts.text("saving.puzzleWasNotKept", { { "why", fault } });
}

const Replay* KeptGames::toBeKept(Mode mode) const
{
    const Replay* const replay = inPlay();
    return replay != nullptr && replay->puzzle()->mode == mode ? replay : keptOf(mode);
}

} // namespace veyrand::controller
