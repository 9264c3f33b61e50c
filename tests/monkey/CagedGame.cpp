#include "monkey/CagedGame.h"

#include "board/BoardGeometry.h"
#include "play/JournalText.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"
#include "support/BoardRows.h"
#include "support/FolderResources.h"

#include <algorithm>
#include <map>

namespace veyrand::test {

namespace {

using progress::Mode;

// No animation, celebration or walk back takes longer.
constexpr double kLongestBlock = 30.0; // seconds
constexpr double kRest = 8.0;
// What takes long to look at is looked at once in so many events.
constexpr unsigned long kNow = 20;

platform::Preferences::Contents contentsOf(const Cage& cage)
{
    return { .values = { { std::string(progress::kEndlessGameUnlockedKey), true } },
        .records = { { std::string(progress::kSettingsKey), { { "Tempo", cage.tempo } } } } };
}

} // namespace

CagedGame::CagedGame(const Cage& cage)
    : m_seed(cage.seed)
{
    headless::prepared(m_preferences, contentsOf(cage));
    progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
        { .level = cage.level,
            .stage = cage.stage,
            .score = cage.score,
            .firstHintClick = cage.knowsHints,
            .endlessScore = cage.endlessScore,
            .endlessPar = cage.endlessPar });
    launch();
}

void CagedGame::launch()
{
    m_game.reset();
    m_isHeld = false;
    m_game
        = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options { .seed = m_seed,
            .store = &m_preferences,
            .resources = &gameResources(),
            .journal = &m_journal });
    m_game->launch();
}

std::string CagedGame::perform(const Event& event)
{
    ++m_events;
    try {
        if (event.kind == Event::Kind::Kill || event.kind == Event::Kind::Quit) {
            return restart();
        }
        act(event);
        static_cast<void>(m_game->sounds().takePlayed());
        if (m_game->quit().terminated()) {
            return restart();
        }
        std::string fault = faultNow();
        if (fault.empty() && event.kind == Event::Kind::Wait && event.seconds >= kRest
            && isAtRest()) {
            fault = faultAtRest();
        }
        return fault;
    } catch (const std::exception& error) {
        return std::string("an exception: ") + error.what();
    }
}

void CagedGame::act(const Event& event)
{
    using Kind = Event::Kind;
    const auto place = placeOf(event.key, event.place);
    if (!place) {
        return;
    }
    switch (event.kind) {
    case Kind::Move:
        return m_game->move(*place);
    case Kind::Press:
        m_isHeld = true;
        return m_game->press(*place);
    case Kind::Release:
        m_isHeld = false;
        return m_game->release(*place);
    case Kind::Click:
        m_isHeld = false;
        return m_game->click(*place);
    case Kind::Drag:
        if (const auto there = placeOf(event.text, event.there)) {
            m_isHeld = false;
            m_game->press(*place);
            m_game->release(*there);
        }
        return;
    case Kind::Touch:
        m_isHeld = false;
        return m_game->touch(*place);
    case Kind::Key:
        return m_game->key(event.text);
    case Kind::Menu:
        m_game->menu().trigger(event.text);
        return;
    case Kind::Answer:
        if (m_game->alerts().isOpen()) {
            const bool isFirst = m_game->alerts().alert().defaultButton == event.text;
            m_game->alerts().answer(
                { .button = isFirst ? platform::AlertAnswer::Button::Default
                                    : platform::AlertAnswer::Button::Alternate });
        }
        return;
    case Kind::Resize:
        return m_game->resize({ .width = event.there.x, .height = event.there.y });
    case Kind::Wait:
        return m_game->wait(event.seconds);
    case Kind::Quit:
    case Kind::Kill:
        return;
    }
}

std::optional<platform::Point> CagedGame::placeOf(const std::string& key, platform::Point place)
{
    return key.empty() ? std::optional(place) : m_game->centreOf(key);
}

// As after a kill: what was in play must be found again.
std::string CagedGame::restart()
{
    if (const std::string fault = faultOfJournals(); !fault.empty()) {
        return fault;
    }
    const play::Session* const session = m_game->controller().flow().session();
    const bool isKept = progress::readSettings(m_preferences).keepUnfinishedPuzzles;
    const bool isPractice = m_game->controller().practice().isOn(); // which nothing keeps
    const auto before = session != nullptr && isKept && !isPractice
        ? std::optional(session->settled())
        : std::nullopt;
    launch();
    if (!before) {
        return {};
    }
    const Mode mode = before->puzzle()->mode;
    if (!before->isOver()) {
        const play::Replay* const kept = m_game->controller().kept().keptOf(mode);
        return kept != nullptr && kept->hash() == before->hash() ? std::string()
                                                                 : "the puzzle is not found again";
    }
    return m_game->controller().kept().standingOf(mode).score == before->purse()
        ? std::string()
        : "the points of the puzzle that was over are not there";
}

std::string CagedGame::faultNow()
{
    const auto& controller = m_game->controller();
    const bool isOpen = !m_game->controller().messages().page().empty();
    const auto& view = m_game->game().view();
    if (isOpen != (view.messageWindow() || view.tutorialWindow())) {
        return "a page is open and not told of, or told of and not open";
    }
    auto& block = m_game->game().view().block();
    if (block.blockClick() && block.delayUntil() - m_game->runLoop().now() > kLongestBlock) {
        return "input is blocked for ever";
    }
    if (const auto& proof = controller.proof()) {
        if (proof->lines().size() > play::kMostLines) {
            return "there are too many lines";
        }
        for (const engine::Theorem& line : proof->lines()) {
            if (line.theorem().size() > play::kMostChips) {
                return "a line is too long";
            }
        }
    }
    std::string fault = faultOfPurse();
    if (fault.empty() && m_events % kNow == 0) {
        fault = faultOfLayers();
    }
    if (fault.empty() && m_events % kNow == kNow / 2) {
        fault = faultOfJournals();
    }
    return fault;
}

// What the panel counts is what the list of actions comes to.
std::string CagedGame::faultOfPurse()
{
    const play::Session* const session = m_game->controller().flow().session();
    if (session == nullptr || session->phase() == play::Phase::HintFlying) {
        return {}; // the line that is settled counts when it has landed
    }
    if (m_game->controller().practice().isOn()) {
        return {}; // played for no points
    }
    const progress::CurrentGame& game = m_game->currentGame();
    const std::int64_t score = game.endlessGame() ? game.endlessScore() : game.score();
    return score == session->settled().purse() ? std::string() : "the points do not add up";
}

std::string CagedGame::faultOfLayers()
{
    std::map<std::string, int> layers;
    for (const auto& layer : m_game->game().layers().backgroundLayer().sublayers()) {
        if (const auto* const mirror = dynamic_cast<const present::GameObjectLayer*>(layer.get())) {
            ++layers[mirror->gameObjectKey()];
        }
    }
    const auto keys = m_game->gameData().gameObjects().keys();
    if (layers.size() != keys.size()) {
        return "there are more layers than things, or fewer";
    }
    for (const std::string& key : keys) {
        if (layers[key] != 1) {
            return key + " has not one layer";
        }
    }
    return {};
}

std::string CagedGame::faultOfJournals() const
{
    for (const auto& [name, text] : m_journal.texts()) {
        if (name.find("previous") != std::string::npos || name.ends_with("-results.txt")) {
            continue; // not journals, though they lie beside them
        }
        if (name.find(".txt.") != std::string::npos) {
            return "a journal was set aside: " + name;
        }
        const play::JournalText journal
            = play::readJournal(text, std::string(progress::kDefaultPlayerName));
        if (journal.state != play::JournalText::State::Whole) {
            return "a journal cannot be read: " + name;
        }
    }
    return {};
}

bool CagedGame::isAtRest()
{
    return !m_isHeld && m_game->controller().proof() && !m_game->game().view().block().blockClick()
        && m_game->controller().flow().phase() == play::Phase::Playing;
}

std::string CagedGame::faultAtRest()
{
    const board::ObjectTable& table = m_game->gameData().gameObjects();
    const auto& lines = m_game->controller().proof()->lines();
    std::size_t chips = 0;
    for (unsigned row = 0; row < lines.size(); ++row) {
        if (rowText(table, row) != lines[row].theorem()) {
            return "row " + std::to_string(row) + " shows " + rowText(table, row) + " for "
                + lines[row].theorem();
        }
        if (table.contains(board::deleteButtonKey(row)) != (row > 0)) {
            return "row " + std::to_string(row) + " has a delete button too many or too few";
        }
        chips += lines[row].theorem().size();
    }
    if (keysFrom(table, "delete").size() + 1 != std::max<std::size_t>(lines.size(), 1)) {
        return "there are stray delete buttons";
    }
    return keysFrom(table, "chip").size() == chips ? std::string() : "there are stray chips";
}

} // namespace veyrand::test
