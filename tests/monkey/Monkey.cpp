#include "monkey/Monkey.h"

#include "board/BoardGeometry.h"

#include <algorithm>
#include <array>

namespace veyrand::test {

using Kind = Event::Kind;

namespace {

Cage cageFor(std::uint32_t number)
{
    std::mt19937 random(number);
    const auto below = [&random](unsigned bound) { return static_cast<int>(random() % bound); };
    static constexpr std::array<const char*, 4> kTempos { "normal", "normal", "fast", "off" };
    Cage cage;
    cage.seed = number;
    cage.level = 1 + below(11);
    cage.stage = 1 + below(10);
    cage.score = below(3) == 0 ? 0 : below(2000);
    cage.endlessScore = below(3) == 0 ? 0 : below(2000);
    cage.endlessPar = below(4) == 0 ? 0 : 3 + below(10);
    cage.knowsHints = below(3) != 0;
    cage.tempo = kTempos.at(static_cast<std::size_t>(below(kTempos.size())));
    return cage;
}

// What a fresh game makes of the events: the fault, and how many of them it took.
std::optional<Finding> replayed(const Cage& cage, const std::vector<Event>& events)
{
    CagedGame game(cage);
    for (std::size_t done = 0; done < events.size(); ++done) {
        if (std::string fault = game.perform(events[done]); !fault.empty()) {
            return Finding { std::move(fault),
                { events.begin(), events.begin() + static_cast<std::ptrdiff_t>(done) + 1 } };
        }
    }
    return std::nullopt;
}

} // namespace

Monkey::Monkey(std::uint32_t number)
    : m_random(number)
    , m_cage(cageFor(number))
    , m_game(m_cage)
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
    return std::nullopt;
}

Event Monkey::next()
{
    static constexpr std::array<const char*, 16> kKeys { "Ctrl+Z", "Ctrl+Z", "Ctrl+Shift+Z",
        "Ctrl+Y", "Esc", "F11", "F1", "F2", "Ctrl+N", "Ctrl+E", "Tab", "Left", "Right", "Return",
        "Space", "Delete" };
    if (m_game.game().alerts().isOpen()) {
        const platform::Alert& alert = m_game.game().alerts().alert();
        return { .kind = Kind::Answer,
            .text = below(2) == 0 || alert.alternateButton.empty() ? alert.defaultButton
                                                                   : alert.alternateButton };
    }
    const unsigned choice = below(1000);
    if (choice < 3) {
        return { .kind = choice == 0 ? Kind::Quit : Kind::Kill };
    }
    if (choice < 10) {
        const auto items = m_game.game().menu().items();
        return { .kind = Kind::Menu, .text = items[below(items.size())] };
    }
    if (choice < 14) {
        return { .kind = Kind::Resize,
            .there = { .x = 200.0 + below(2000), .y = 200.0 + below(1200) } };
    }
    if (choice < 120) {
        return { .kind = Kind::Key, .text = kKeys.at(below(kKeys.size())) };
    }
    if (choice < 350) {
        return waiting();
    }
    return choice < 600 ? move() : anyGesture();
}

// Most often for no longer than an animation takes, and now and then until everything rests.
Event Monkey::waiting()
{
    const unsigned choice = below(10);
    const double seconds = choice == 0 ? 10.0 : choice < 4 ? 2.5 : below(100) / 100.0;
    return { .kind = Kind::Wait, .seconds = seconds };
}

// One of the gestures that are moves now, made at the last line's chips.
Event Monkey::move()
{
    const auto gestures = m_game.game().controller().actions();
    if (gestures.empty()) {
        return anyGesture();
    }
    const play::Gesture& gesture = gestures[below(gestures.size())];
    if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
        return { .kind = Kind::Drag,
            .key = board::generateKeyChipKey(drag->from, drag->fromRow),
            .text = board::generateKeyChipKey(drag->to, drag->toRow) };
    }
    const auto* const click = std::get_if<play::Click>(&gesture);
    return click == nullptr ? anyGesture()
                            : Event { .kind = Kind::Click,
                                  .key = board::generateKeyChipKey(click->column, click->row) };
}

Event Monkey::anyGesture()
{
    static constexpr std::array kKinds { Kind::Click, Kind::Click, Kind::Click, Kind::Move,
        Kind::Press, Kind::Release, Kind::Release, Kind::Drag, Kind::Drag, Kind::Touch };
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
    if (kind == Kind::Drag) {
        event.text = below(4) == 0 ? "" : anyKey();
        event.there = anyPlace();
    }
    return event;
}

// More often what can be pressed than what cannot.
std::string Monkey::anyKey()
{
    const auto keys = m_game.game().gameData().gameObjects().keys();
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

Finding shrunk(const Cage& cage, Finding finding)
{
    for (std::size_t piece = std::max<std::size_t>(finding.events.size() / 2, 1); piece > 0;
         piece /= 2) {
        for (std::size_t at = 0; at < finding.events.size();) {
            const auto from = finding.events.begin() + static_cast<std::ptrdiff_t>(at);
            const auto to = finding.events.begin()
                + static_cast<std::ptrdiff_t>(std::min(at + piece, finding.events.size()));
            std::vector<Event> fewer(finding.events.begin(), from);
            fewer.insert(fewer.end(), to, finding.events.end());
            if (auto still = replayed(cage, fewer)) {
                finding = *std::move(still);
            } else {
                at += piece;
            }
        }
    }
    return finding;
}

} // namespace veyrand::test
