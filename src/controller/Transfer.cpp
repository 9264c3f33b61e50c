#include "controller/Transfer.h"

#include "controller/GameController.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

#include <utility>

namespace veyrand::controller {

using play::Bundle;
using progress::Mode;

namespace {

constexpr std::array kBothModes { Mode::Classic, Mode::Endless };

Bundle::Lines linesOf(std::string_view text)
{
    Bundle::Lines lines;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return lines; // a last line that was never ended is nobody's loss
}

} // namespace

Transfer::Transfer(GameController& controller)
    : m_controller(controller)
    , m_game(controller.context())
{
}

Bundle Transfer::here() const
{
    const platform::Preferences& preferences = m_game.preferences;
    progress::StoredSettings settings = progress::storedSettings(preferences);
    Bundle bundle { .player = m_controller.flow().playerName(),
        .record = progress::readPlayerRecord(preferences, m_controller.flow().playerName()),
        .endlessOpen = progress::isEndlessGameUnlocked(preferences),
        .music = settings.music,
        .effects = settings.effects,
        .settings = std::move(settings.group),
        .results = m_controller.book().results(),
        .puzzles = m_controller.shelf().puzzles() };
    for (const Mode mode : kBothModes) {
        if (m_game.journal == nullptr) {
            break;
        }
        const std::string text
            = m_game.journal->read(play::journalName(bundle.player, mode)).contents.value_or("");
        if (play::readJournal(text, bundle.player).state == play::JournalText::State::Whole) {
            bundle.journalOf(mode) = linesOf(text);
        }
    }
    return bundle;
}

bool Transfer::canExport() const
{
    return m_game.exchange != nullptr;
}

bool Transfer::canImport() const
{
    const input::Overlay overlay = m_game.view.overlay();
    return m_game.exchange != nullptr && !m_game.view.block().blockClick()
        && (overlay == input::Overlay::None || overlay == input::Overlay::Note)
        && !m_controller.sheets().isOpen();
}

std::string Transfer::exported() const
{
    return textOf(here());
}

void Transfer::exportGame()
{
    const std::string text = exported();
    if (text.size() > kMostBundleBytes) {
        return tell(m_game.texts.text("transfer.tooMuch"));
    }
    m_game.exchange->save(
        { .title = m_game.texts.text("transfer.exportTitle"),
            .name = "veyrand-" + progress::textOf(m_controller.book().today()) + ".json",
            .kind = m_game.texts.text("transfer.files") },
        text, [this](const platform::FileExchange::Answer& answer) {
            if (answer.kind == platform::FileExchange::Answer::Kind::Failed) {
                tell(m_game.texts.text(
                    "transfer.notWritten", { { "file", answer.name }, { "why", answer.fault } }));
            }
        });
}

void Transfer::importGame()
{
    using Came = platform::FileExchange::Answer::Kind;
    m_game.exchange->open({ .title = m_game.texts.text("transfer.importTitle"),
                              .name = "veyrand.json",
                              .kind = m_game.texts.text("transfer.files") },
        kMostBundleBytes, [this](const platform::FileExchange::Answer& answer) {
            if (answer.kind == Came::Failed) {
                tell(m_game.texts.text(
                    "transfer.notRead", { { "file", answer.name }, { "why", answer.fault } }));
            } else if (answer.kind == Came::Done) {
                const auto code = play::readCode(play::codeInLink(answer.text));
                if (std::holds_alternative<play::CodedPuzzle>(code)) {
                    return m_controller.practice().openOrTell(answer.text);
                }
                const auto bundle = read(answer.text, answer.name);
                if (const auto* const fault = std::get_if<std::string>(&bundle)) {
                    tell(*fault);
                } else {
                    ask(std::get<Bundle>(bundle), answer.name);
                }
            }
        });
}

std::string Transfer::bringIn(std::string_view text, const std::string& file, How how)
{
    auto bundle = read(text, file);
    if (const auto* const fault = std::get_if<std::string>(&bundle)) {
        return *fault;
    }
    takeIn(std::get<Bundle>(std::move(bundle)), how);
    return {};
}

std::variant<Bundle, std::string> Transfer::read(
    std::string_view text, const std::string& file) const
{
    auto read = readBundle(text);
    if (const auto* const fault = std::get_if<BundleFault>(&read)) {
        return wordsOf(*fault, file);
    }
    Bundle bundle = std::get<Bundle>(std::move(read));
    for (const Mode mode : kBothModes) {
        const std::string where = impossibleIn(bundle, mode, m_game.currentGame.catalogueOf(mode));
        if (!where.empty()) {
            return wordsOf({ BundleFault::Kind::Damaged, where }, file);
        }
    }
    return bundle;
}

std::string Transfer::wordsOf(const BundleFault& fault, const std::string& file) const
{
    const language::Texts& texts = m_game.texts;
    switch (fault.kind) {
    case BundleFault::Kind::TooLarge:
        return texts.text("transfer.tooLarge", { { "file", file } });
    case BundleFault::Kind::Foreign:
        return texts.text("transfer.foreign", { { "file", file } });
    case BundleFault::Kind::Newer:
        return texts.text("transfer.newer", { { "file", file } });
    case BundleFault::Kind::Damaged:
        break;
    }
    return texts.text("transfer.damaged", { { "file", file }, { "where", fault.where } });
}

std::string Transfer::wordsOf(const Bundle& bundle) const
{
    const language::Texts& texts = m_game.texts;
    const auto unfinished = [&texts, &bundle](Mode mode) {
        return bundle.journalOf(mode).empty() ? std::string() : texts.text("transfer.unfinished");
    };
    const auto& record = bundle.record;
    return texts.text("transfer.classic",
               { { "points", std::int64_t { record.score } },
                   { "place", play::nameOf(progress::Place { record.level, record.stage }) },
                   { "unfinished", unfinished(Mode::Classic) } })
        + '\n'
        + texts.text("transfer.endless",
            { { "points", std::int64_t { record.endlessScore } },
                { "unfinished", unfinished(Mode::Endless) } })
        + '\n'
        + texts.text("transfer.results",
            { { "results", static_cast<std::int64_t>(bundle.results.all().size()) } })
        + '\n'
        + texts.text("transfer.puzzles",
            { { "puzzles", static_cast<std::int64_t>(bundle.puzzles.all().size()) } });
}

void Transfer::ask(const Bundle& bundle, const std::string& file)
{
    const language::Texts& texts = m_game.texts;
    std::string more = texts.text("transfer.holds") + '\n' + wordsOf(bundle) + "\n\n"
        + texts.text("transfer.here") + '\n' + wordsOf(here()) + "\n\n"
        + texts.text("transfer.whatJoin") + '\n' + texts.text("transfer.whatReplace");
    if (m_controller.proof()) {
        more += "\n\n" + texts.text("transfer.leaves");
    }
    m_game.alerts.show({ .message = texts.text("transfer.ask", { { "file", file } }),
                           .informativeText = std::move(more),
                           .defaultButton = texts.text("transfer.join"),
                           .alternateButton = texts.text("transfer.cancel"),
                           .otherButton = texts.text("transfer.replace") },
        [this, bundle](const platform::AlertAnswer& answer) {
            using Button = platform::AlertAnswer::Button;
            if (answer.button != Button::Alternate) {
                takeIn(bundle, answer.button == Button::Other ? How::Replace : How::Join);
                tell(m_game.texts.text("transfer.done"));
            }
        });
}

void Transfer::tell(const std::string& message)
{
    m_game.alerts.show({ .message = message,
                           .informativeText = {},
                           .defaultButton = m_game.texts.text("practice.ok") },
        [](const platform::AlertAnswer& /*answer*/) {});
}

void Transfer::takeIn(Bundle bundle, How how)
{
    // From the title page on, whoever was playing goes on with what the journals say.
    m_controller.sheets().close();
    if (!m_controller.gameMenuItemEnabled() || m_controller.isPuzzleOnBoard()) {
        m_controller.flow().returnToMenu();
        m_controller.sheets().close();
    }
    const Bundle before = here();
    if (how == How::Join) {
        bundle = play::joined(before, bundle);
    }
    for (const Mode mode : kBothModes) {
        bundle.journalOf(mode) = play::journalFor(bundle.journalOf(mode), before.player);
    }
    bundle.player = before.player;
    keepAsPrevious(before, bundle);
    // A journal must never stand beside another game's record.
    for (const Mode mode : kBothModes) {
        m_controller.kept().forget(mode);
    }
    progress::updatePlayerRecord(
        m_game.preferences, bundle.player, progress::changeTo(bundle.record));
    progress::setEndlessGameUnlocked(m_game.preferences, bundle.endlessOpen);
    if (how == How::Replace) {
        putSettings(bundle);
    }
    for (const Mode mode : kBothModes) {
        putJournal(bundle, mode);
    }
    m_controller.book().replace(bundle.results);
    m_controller.shelf().replace(bundle.puzzles);
    m_controller.kept().recoverAnew();
}

// What had been begun here can be brought back.
void Transfer::keepAsPrevious(const Bundle& before, const Bundle& after)
{
    for (const Mode mode : kBothModes) {
        const play::Standing standing = play::standingOf(before, mode);
        const bool isBegun = standing.score != 0 || !before.journalOf(mode).empty()
            || (mode == Mode::Classic && progress::catalogueIndex(standing.place) > 1);
        const bool stays = standing == play::standingOf(after, mode)
            && before.journalOf(mode) == after.journalOf(mode);
        if (isBegun && !stays) {
            m_controller.previous().keep(mode);
        }
    }
}

void Transfer::putSettings(const Bundle& bundle)
{
    progress::storeSettings(m_game.preferences, { bundle.music, bundle.effects, bundle.settings });
    m_controller.musicMenuClick();
    if (m_settingsChanged) {
        m_settingsChanged();
    }
}

void Transfer::putJournal(const Bundle& bundle, Mode mode)
{
    const Bundle::Lines& lines = bundle.journalOf(mode);
    if (m_game.journal == nullptr || lines.empty()) {
        return;
    }
    const std::string fault = m_game.journal->begin(play::journalName(bundle.player, mode), lines);
    if (!fault.empty()) {
        m_controller.kept().report(m_game.texts.text("saving.puzzleNotKept", { { "why", fault } }));
    }
}

} // namespace veyrand::controller
