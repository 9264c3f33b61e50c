#include "monkey/CagedGame.h"

#include "controller/SettingsTable.h"
#include "monkey/Invariants.h"
#include "progress/CalendarDate.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"

#include <utility>

namespace veyrand::test {

namespace {

using progress::Mode;
using Kind = Event::Kind;

constexpr double kRest = 8.0; // seconds, after which nothing moves unless it is told to
// What takes long to look at is looked at once in so many events.
constexpr unsigned long kNow = 20;
constexpr int kMostWaysOut = 40;

platform::Preferences::Contents contentsOf(const Cage& cage)
{
    return { .values = { { std::string(progress::kEndlessGameUnlockedKey), true } },
        .records = { { std::string(progress::kSettingsKey), { { "Tempo", cage.tempo } } } } };
}

} // namespace

CagedGame::CagedGame(const Cage& cage, const MakeBody& makeBody, Looking looking)
    : m_looking(looking)
    , m_body(makeBody(cage.seed, m_disk))
{
    headless::prepared(m_disk.preferences(), contentsOf(cage));
    progress::updatePlayerRecord(m_disk.preferences(), progress::kDefaultPlayerName,
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
    m_isHeld = false;
    m_hasDiskFailed = m_isDiskFull;
    m_body->launch();
}

bool CagedGame::looksClosely(unsigned long shift) const
{
    return m_looking == Looking::Always || m_events % kNow == shift;
}

std::string CagedGame::perform(const Event& event)
{
    ++m_events;
    try {
        if (event.kind == Kind::Kill || event.kind == Kind::Quit) {
            return restart(event.kind == Kind::Quit ? End::Quit : End::Kill);
        }
        act(event);
        for (const std::string& effect : game().sounds().takePlayed()) {
            m_solved += effect == "CymbalRoll" ? 1 : 0;
        }
        if (game().quit().terminated()) {
            return restart(End::Quit);
        }
        std::string fault = std::exchange(m_faultOfPage, {});
        if (fault.empty()) {
            fault = faultAtAnyMoment(game());
        }
        if (fault.empty() && looksClosely(0)) {
            fault = faultOfLayers(game());
        }
        if (fault.empty() && looksClosely(kNow / 2)) {
            fault = faultOfJournals(m_disk.journal(), m_setAside);
        }
        if (fault.empty()) {
            fault = m_body->faultOfPicture();
        }
        if (fault.empty() && event.kind == Kind::Wait && event.seconds >= kRest && !m_isHeld
            && isAtRest(game())) {
            ++m_rests;
            fault = faultAtRest(game());
        }
        return fault;
    } catch (const std::exception& error) {
        return std::string("an exception: ") + error.what();
    }
}

std::string CagedGame::findWayOut()
{
    try {
        if (m_isHeld) {
            act({ .kind = Kind::LoseRelease });
        }
        for (int tries = 0; tries < kMostWaysOut; ++tries) {
            game().wait(kRest);
            if (game().alerts().isOpen()) {
                game().alerts().close();
            }
            const bool isFree = game().controller().messages().page().empty()
                && !game().controller().sheets().isOpen()
                && game().controller().dialogueState() == 0;
            if (isFree) {
                return faultAtAnyMoment(game());
            }
            m_body->key("Esc");
        }
        return "there is no way out of " + game().controller().messages().page()
            + game().controller().sheets().name();
    } catch (const std::exception& error) {
        return std::string("an exception on the way out: ") + error.what();
    }
}

void CagedGame::act(const Event& event)
{
    switch (event.kind) {
    case Kind::LoseRelease:
        m_isHeld = false;
        return game().cancelGesture();
    case Kind::Leave:
        return game().leave();
    case Kind::Key:
        return m_body->key(event.text);
    case Kind::Menu:
        return m_body->menu(event.text);
    case Kind::Setting:
        return set(event.text, event.number);
    case Kind::Copy:
        return game().clipboard().setText(event.text);
    case Kind::Open:
        return game().controller().practice().openOrTell(event.text);
    case Kind::Today:
        if (const auto date = progress::dateIn(event.text)) {
            game().calendar().setToday(progress::dayNumber(*date));
        }
        return;
    case Kind::Answer:
        if (game().alerts().isOpen()) {
            const bool isFirst = game().alerts().alert().defaultButton == event.text;
            game().alerts().answer(
                { .button = isFirst ? platform::AlertAnswer::Button::Default
                                    : platform::AlertAnswer::Button::Alternate });
        }
        return;
    case Kind::Resize:
        return m_body->resize({ .width = event.there.x, .height = event.there.y });
    case Kind::Disk:
        m_disk.journal().failWith(event.text);
        m_isDiskFull = !event.text.empty();
        m_hasDiskFailed = m_hasDiskFailed || m_isDiskFull;
        return;
    case Kind::Wait:
        return game().wait(event.seconds);
    default:
        if (const auto place = placeOf(event.key, event.place)) {
            actAt(event, *place);
        }
    }
}

void CagedGame::actAt(const Event& event, platform::Point place)
{
    const auto there = placeOf(event.text, event.there);
    switch (event.kind) {
    case Kind::Move:
        return m_body->move(place);
    case Kind::Press:
        m_isHeld = true;
        return press(place);
    case Kind::Release:
        m_isHeld = false;
        return m_body->release(place);
    case Kind::Click:
        m_isHeld = false;
        press(place);
        return m_body->release(place);
    case Kind::Drag:
        if (there) {
            m_isHeld = false;
            press(place);
            m_body->release(*there);
        }
        return;
    case Kind::RightClick:
        return m_body->rightClick(place);
    case Kind::Touch:
        m_isHeld = false;
        return m_body->touch(place);
    case Kind::TouchDrag:
        if (there) {
            m_isHeld = false;
            m_body->touchDrag(place, *there);
        }
        return;
    case Kind::LongPress:
        m_isHeld = false;
        return m_body->longPress(place);
    default:
        return;
    }
}

// A press closes a page, or does nothing to it; and what comes next belongs there.
void CagedGame::press(platform::Point place)
{
    auto& controller = game().controller();
    const std::string page = controller.messages().page();
    const bool isBefore = controller.sheets().isOpen() || game().alerts().isOpen();
    const bool answers = !game().game().view().block().blockClick();
    const std::string next = answers ? pageAfter(page, game().currentGame()) : page;
    m_body->press(place);
    const std::string& now = controller.messages().page();
    const bool isAlone = answers && now.empty(); // what Help opens leads nowhere
    if (!page.empty() && !isBefore && now != next && !isAlone) {
        m_faultOfPage = "the press on " + page + " opened \"" + now + "\", not \"" + next + '"';
    }
}

void CagedGame::set(const std::string& item, int value)
{
    for (const controller::SettingItem& each : controller::settingItems()) {
        if (item == each.text) {
            progress::Settings settings = progress::readSettings(m_disk.preferences());
            each.set(settings, value);
            progress::writeSettings(m_disk.preferences(), settings);
            game().game().settingsChanged();
        }
    }
}

std::optional<platform::Point> CagedGame::placeOf(const std::string& key, platform::Point place)
{
    if (key.empty()) {
        return place;
    }
    for (const auto& extra : game().game().layers().extras().shown()) {
        if (extra.kind == present::ExtraKind::Place && extra.key == key) {
            return platform::Point { .x = extra.rect.x, .y = extra.rect.y };
        }
    }
    return game().centreOf(key);
}

std::vector<std::string> CagedGame::keys()
{
    std::vector<std::string> keys;
    for (const auto& extra : game().game().layers().extras().shown()) {
        if (extra.kind == present::ExtraKind::Place) {
            keys.push_back(extra.key);
        }
    }
    return keys.empty() ? game().gameData().gameObjects().keys() : keys;
}

// What was in play must be found again, unless the disk failed and nobody could write it since.
std::string CagedGame::restart(End end)
{
    if (end == End::Quit) {
        const std::string words = game().controller().kept().lastWords();
        if (!m_isDiskFull && !words.empty()) {
            return "the last words of a game on a disk that is well: " + words;
        }
    }
    for (const std::string& fault : { faultOfJournals(m_disk.journal(), m_setAside),
             faultOfPreferences(m_disk.preferences()) }) {
        if (!fault.empty()) {
            return fault;
        }
    }
    const play::Session* const session = game().controller().flow().session();
    const bool isKept = progress::readSettings(m_disk.preferences()).keepUnfinishedPuzzles;
    const bool isPractice = game().controller().practice().isOn(); // which nothing keeps
    const auto before = session != nullptr && isKept && !isPractice
        ? std::optional(session->settled())
        : std::nullopt;
    const bool mayBeLost = end == End::Quit ? m_isDiskFull : m_hasDiskFailed; // as the player knows
    m_setAside = mayBeLost ? SetAside::AfterALoss : m_setAside;
    launch();
    if (!before || mayBeLost) {
        return {};
    }
    const Mode mode = before->puzzle()->mode;
    if (!before->isOver()) {
        const play::Replay* const kept = game().controller().kept().keptOf(mode);
        return kept != nullptr && kept->hash() == before->hash() ? std::string()
                                                                 : "the puzzle is not found again";
    }
    return game().controller().kept().standingOf(mode).score == before->purse()
        ? std::string()
        : "the points of the puzzle that was over are not there";
}

} // namespace veyrand::test
