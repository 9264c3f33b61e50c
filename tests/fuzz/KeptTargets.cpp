// What is kept of the player's games.

#include "desktop/qt/PreferencesText.h"
#include "fuzz/Bytes.h"
#include "fuzz/Targets.h"
#include "platform/MemoryPreferences.h"
#include "play/ActionText.h"
#include "play/JournalText.h"
#include "play/PreviousGame.h"
#include "play/Recording.h"
#include "play/Recovery.h"
#include "progress/Misunderstood.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

#include <algorithm>

namespace veyrand::fuzz {

namespace {

const progress::Catalogue& smallCatalogue()
{
    static const progress::Catalogue kEntries(
        progress::kClassicEntries, progress::CatalogueEntry { "YR", "YRG", 2 });
    return kEntries;
}

void checkReplay(const play::Replay& replay)
{
    promise(replay.lines().size() <= 13, "more lines than the board has room for");
    if (!replay.puzzle() || replay.isOver()) {
        return;
    }
    play::Replay again;
    for (const play::Action& action : replay.compact()) {
        const std::string fault = again.apply(action);
        promise(fault.empty(), "the shorter list cannot be replayed: " + fault);
    }
    promise(again.hash() == replay.hash(), "the shorter list comes to something else");
}

// The lines as a journal with right checks, which no bytes would ever hit upon.
std::string journalWith(std::string_view lines)
{
    play::JournalWriter writer;
    std::string text = writer.head("New") + '\n';
    while (!lines.empty()) {
        const std::size_t end = lines.find('\n');
        text += writer.checked(std::string(lines.substr(0, end))) + '\n';
        lines.remove_prefix(end == std::string_view::npos ? lines.size() : end + 1);
    }
    return text;
}

void checkJournal(const std::string& text)
{
    const play::JournalText found = play::readJournal(text, "New");
    promise(found.checks.size() == (found.checks.empty() ? 0 : found.entries.size() + 1),
        "not every line has its check");
    for (const auto mode : { progress::Mode::Classic, progress::Mode::Endless }) {
        const play::Standing standing { mode, { 5, 4 }, 470, 0 };
        const play::Recovery recovery = play::recover(standing, smallCatalogue(), found.entries);
        promise(recovery.replayed <= found.entries.size(), "more was replayed than there is");
        checkReplay(recovery.replay);
        for (const play::PreviousGame& game :
            play::previousGamesIn(text, "New", mode, smallCatalogue())) {
            static_cast<void>(play::linesOf(game, "New"));
            static_cast<void>(play::nameForPeople(game.standing));
        }
    }
    const play::Recording recording = play::readRecording(text);
    promise(recording.fault.empty() != recording.entries.empty(),
        "a recording is neither whole nor refused");
}

} // namespace

void fuzzJournal(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    if (bytes.byte() % 2 == 0) {
        checkJournal(std::string(bytes.rest()));
    } else {
        checkJournal(journalWith(bytes.rest()));
    }
}

void fuzzActions(const std::uint8_t* data, std::size_t size)
{
    play::Replay replay;
    Bytes bytes(data, size);
    for (int count = 0; bytes.areLeft() && count < 60; ++count) {
        const std::string_view line = bytes.textUpTo('\n');
        const auto action = play::parse(line);
        if (!action) {
            continue;
        }
        promise(play::print(*action) == line, "an action reads as another text");
        const std::uint64_t before = replay.hash();
        if (!replay.apply(*action).empty()) {
            promise(replay.hash() == before, "an action is refused and changes something");
        }
    }
    checkReplay(replay);
}

void fuzzPreferences(const std::uint8_t* data, std::size_t size)
{
    const desktop::qt::PreferencesText read = desktop::qt::readPreferencesText(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!read.document) {
        promise(!read.fault.isEmpty(), "a file is neither read nor refused");
        return;
    }
    platform::MemoryPreferences preferences;
    preferences.registerDefaults(progress::registeredDefaults());
    for (const auto& [name, value] : desktop::qt::plainValuesOf(*read.document)) {
        preferences.setValue(name, value);
    }
    for (const auto& [name, record] : desktop::qt::recordsOf(*read.document)) {
        preferences.setRecord(name, record);
        static_cast<void>(progress::misunderstood(name, { .values = record }));
    }
    static_cast<void>(progress::misunderstood({}, desktop::qt::storedIn(*read.document)));
    const std::string player = progress::currentPlayer(preferences);
    const progress::PlayerRecord record = progress::readPlayerRecord(preferences, player);
    promise(std::max(record.score, record.endlessScore) <= progress::kGreatestScore,
        "a score beyond all scores");
    const progress::Settings settings = progress::readSettings(preferences);
    promise(settings.musicVolume >= 0 && settings.musicVolume <= 100, "a volume beyond its bounds");
    progress::writeSettings(preferences, settings);
    promise(progress::readSettings(preferences) == settings, "settings change by being saved");
}

} // namespace veyrand::fuzz
