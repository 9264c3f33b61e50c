#include "monkey/Monkey.h"

#include "board/BoardGeometry.h"
#include "controller/SettingsTable.h"
#include "engine/HintHelper.h"
#include "play/Decide.h"

#include <algorithm>
#include <array>
#include <random>
#include <utility>

namespace veyrand::test {

using Kind = Event::Kind;

namespace {

// What a fresh game makes of the events: the fault, and how many of them it took.
std::optional<Finding> replayed(
    const Cage& cage, const std::vector<Event>& events, const MakeBody& makeBody)
{
    CagedGame game(cage, makeBody, CagedGame::Looking::Always);
    for (std::size_t done = 0; done < events.size(); ++done) {
        if (std::string fault = game.perform(events[done]); !fault.empty()) {
            return Finding { std::move(fault),
                { events.begin(), events.begin() + static_cast<std::ptrdiff_t>(done) + 1 } };
        }
    }
    if (std::string fault = game.findWayOut(); !fault.empty()) {
        return Finding { std::move(fault), events };
    }
    return std::nullopt;
}

} // namespace

Dice diceOf(std::uint32_t number)
{
    return [random = std::mt19937(number)]() mutable { return random(); };
}

Cage cageFrom(const Dice& dice)
{
    const auto below = [&dice](unsigned bound) { return static_cast<int>(dice() % bound); };
    static constexpr std::array<const char*, 4> kTempos { "normal", "normal", "fast", "off" };
    Cage cage;
    cage.seed = dice();
    cage.level = 1 + below(below(2) == 0 ? 3 : 11);
    cage.stage = 1 + below(10);
    cage.score = below(3) == 0 ? 0 : below(2000);
    cage.endlessScore = below(3) == 0 ? 0 : below(2000);
    cage.endlessPar = below(4) == 0 ? 0 : 3 + below(10);
    cage.knowsHints = below(3) != 0;
    cage.tempo = kTempos.at(static_cast<std::size_t>(below(kTempos.size())));
    return cage;
}

Monkey::Monkey(Dice dice, const MakeBody& makeBody)
    : m_dice(std::move(dice))
    , m_cage(cageFrom(m_dice))
    , m_game(m_cage, makeBody)
{
}

std::optional<Finding> Monkey::play(int events)
{
    std::vector<Event> done;
    for (int count = 0; count < events; ++count) {
        done.push_back(next());
        if (std::string fault = m_game.perform(done.back()); !fault.empty()) {
            return Finding { std::move(fault), std::move(done) };
        }
    }
    if (std::string fault = m_game.findWayOut(); !fault.empty()) {
        return Finding { std::move(fault), std::move(done) };
    }
    return std::nullopt;
}

Event Monkey::next()
{
    if (m_game.game().alerts().isOpen()) {
        const platform::Alert& alert = m_game.game().alerts().alert();
        return { .kind = Kind::Answer,
            .text = below(2) == 0 || alert.alternateButton.empty() ? alert.defaultButton
                                                                   : alert.alternateButton };
    }
    if (auto event = roomAgain()) {
        return *std::move(event);
    }
    const unsigned choice = below(1000);
    if (choice < 30) {
        return seldom(choice);
    }
    if (choice < 130) {
        return key();
    }
    if (choice < 350) {
        return waiting();
    }
    return choice < 600 ? move() : anyGesture();
}

// A disk is not full for long, and half of the monkeys lose patience just when it is well again.
std::optional<Event> Monkey::roomAgain()
{
    if (std::exchange(m_quits, false)) {
        return Event { .kind = Kind::Quit };
    }
    if (!m_isDiskFull || below(40) != 0) {
        return std::nullopt;
    }
    m_isDiskFull = false;
    m_quits = below(2) == 0;
    return Event { .kind = Kind::Disk };
}

// What would leave no time for anything else if it came often. The number is below 30.
Event Monkey::seldom(unsigned choice)
{
    static constexpr std::array<const char*, 6> kTexts { "1C9B4", "veyrand:1C9B4", "no code", "",
        "2222-2222-2222", "\xff\xfe" };
    static constexpr std::array<const char*, 4> kDays { "2026-11-21", "2026-11-22", "2026-11-20",
        "2030-02-28" };
    if (choice < 3) {
        return { .kind = choice == 0 ? Kind::Quit : Kind::Kill };
    }
    if (choice < 12) {
        const auto items = m_game.game().menu().items();
        return { .kind = Kind::Menu, .text = items[below(items.size())] };
    }
    if (choice < 17) {
        return { .kind = Kind::Resize,
            .there = { .x = 200.0 + below(1200), .y = 200.0 + below(800) } };
    }
    if (choice < 20) {
        return setting();
    }
    if (choice < 24) {
        return { .kind = choice < 22 ? Kind::LoseRelease : Kind::Leave };
    }
    if (choice < 26) {
        return { .kind = Kind::Copy, .text = kTexts.at(below(kTexts.size())) };
    }
    if (choice < 28) {
        return { .kind = Kind::Open, .text = kTexts.at(below(kTexts.size())) };
    }
    if (choice == 28) {
        m_isDiskFull = true;
        return { .kind = Kind::Disk, .text = "there is no room left" };
    }
    return { .kind = Kind::Today, .text = kDays.at(below(kDays.size())) };
}

Event Monkey::setting()
{
    const auto items = controller::settingItems();
    const controller::SettingItem& item = items[below(items.size())];
    const auto choices = static_cast<unsigned>(std::count_if(item.choices.begin(),
        item.choices.end(), [](const char* text) { return text != nullptr; }));
    const unsigned most = item.kind == controller::SettingItem::Kind::Switch ? 2
        : item.kind == controller::SettingItem::Kind::Volume                 ? 101
                                                                             : choices;
    return { .kind = Kind::Setting, .text = item.text, .number = static_cast<int>(below(most)) };
}

Event Monkey::key()
{
    static constexpr std::array<const char*, 32> kKeys { "Ctrl+Z", "Ctrl+Z", "Ctrl+Shift+Z",
        "Ctrl+Y", "Esc", "F11", "F1", "F2", "Ctrl+N", "Ctrl+E", "Ctrl+P", "Ctrl+V", "Ctrl+C", "Tab",
        "Shift+Tab", "Left", "Right", "Up", "Down", "Home", "End", "PgUp", "Return", "Space",
        "Ctrl+Right", "Delete", "Backspace", "H", "M", "7", "0", "?" };
    return { .kind = Kind::Key, .text = kKeys.at(below(kKeys.size())) };
}

// Most often for no longer than an animation takes, now and then until everything rests, and once
// in a while for a day: the lid was closed in the middle of something.
Event Monkey::waiting()
{
    constexpr double kDay = 86'400.0;
    const unsigned choice = below(400);
    const double seconds = choice == 0 ? kDay
        : choice < 60                  ? 10.0
        : choice < 160                 ? 2.5
                                       : below(100) / 100.0;
    return { .kind = Kind::Wait, .seconds = seconds };
}

// One of the gestures that are moves now, made at the last line's chips; and sometimes one that
// leads to the goal, for chance alone seldom solves a puzzle.
Event Monkey::move()
{
    const auto gestures = m_game.game().controller().actions();
    if (gestures.empty()) {
        return anyGesture();
    }
    const unsigned choice = below(4 * gestures.size());
    std::optional<play::Gesture> gesture = gestures[choice % gestures.size()];
    if (choice < gestures.size()) {
        const auto best = bestMove();
        gesture = best ? best : gesture;
    }
    if (const auto* const drag = std::get_if<play::Drag>(&*gesture)) {
        return { .kind = Kind::Drag,
            .key = board::generateKeyChipKey(drag->from, drag->fromRow),
            .text = board::generateKeyChipKey(drag->to, drag->toRow) };
    }
    const auto* const click = std::get_if<play::Click>(&*gesture);
    return click == nullptr ? anyGesture()
                            : Event { .kind = Kind::Click,
                                  .key = board::generateKeyChipKey(click->column, click->row) };
}

// Nothing where the goal is out of reach, or takes long to search for.
std::optional<play::Gesture> Monkey::bestMove()
{
    constexpr int kMostSearched = 5; // lines to the goal
    const auto proof = m_game.game().controller().proof();
    if (!proof || m_game.game().currentGame().par() > kMostSearched) {
        return std::nullopt;
    }
    const auto next = engine::HintHelper(proof).nextTheorem();
    return next ? play::gestureFor({ .lines = proof->lines(),
                                       .goal = proof->goal(),
                                       .open = m_game.game().currentGame().highestRule() },
               next->theorem())
                : std::nullopt;
}

Event Monkey::anyGesture()
{
    static constexpr std::array kKinds { Kind::Click, Kind::Click, Kind::Click, Kind::Click,
        Kind::Click, Kind::Move, Kind::Press, Kind::Release, Kind::Release, Kind::Drag, Kind::Drag,
        Kind::Drag, Kind::Touch, Kind::TouchDrag, Kind::LongPress, Kind::RightClick };
    return pressSomewhere(kKinds.at(below(kKinds.size())));
}

Event Monkey::pressSomewhere(Kind kind)
{
    Event event { .kind = kind };
    if (below(8) == 0) {
        event.place = anyPlace();
    } else {
        event.key = anyKey();
    }
    if (kind == Kind::Drag || kind == Kind::TouchDrag) {
        event.text = below(4) == 0 ? "" : anyKey();
        event.there = anyPlace();
    }
    return event;
}

// More often what can be pressed than what cannot.
std::string Monkey::anyKey()
{
    const auto keys = m_game.keys();
    if (keys.empty()) {
        return {};
    }
    std::string key = keys[below(keys.size())];
    for (int tries = 0; tries < 2 && key.rfind("button", 0) != 0; ++tries) {
        key = keys[below(keys.size())];
    }
    return key;
}

platform::Point Monkey::anyPlace()
{
    return { .x = below(1600) / 1000.0, .y = below(1000) / 1000.0 };
}

Finding shrunk(const Cage& cage, Finding finding, const MakeBody& makeBody)
{
    for (std::size_t piece = std::max<std::size_t>(finding.events.size() / 2, 1); piece > 0;
         piece /= 2) {
        for (std::size_t at = 0; at < finding.events.size();) {
            const auto from = finding.events.begin() + static_cast<std::ptrdiff_t>(at);
            const auto to = finding.events.begin()
                + static_cast<std::ptrdiff_t>(std::min(at + piece, finding.events.size()));
            std::vector<Event> fewer(finding.events.begin(), from);
            fewer.insert(fewer.end(), to, finding.events.end());
            if (auto still = replayed(cage, fewer, makeBody)) {
                finding = *std::move(still);
            } else {
                at += piece;
            }
        }
    }
    return finding;
}

} // namespace veyrand::test
