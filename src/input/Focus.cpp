#include "input/Focus.h"

#include "board/ElementKey.h"

#include <algorithm>
#include <cmath>

namespace veyrand::input {

namespace {

using Group = Stop::Group;

const Stop* withKey(const std::vector<Stop>& stops, const std::string& key)
{
    const auto found = std::find_if(
        stops.begin(), stops.end(), [&key](const Stop& stop) { return stop.key == key; });
    return found != stops.end() ? &*found : nullptr;
}

std::vector<Stop> ofGroup(const std::vector<Stop>& stops, Group group)
{
    std::vector<Stop> chosen;
    std::copy_if(stops.begin(), stops.end(), std::back_inserter(chosen),
        [group](const Stop& stop) { return stop.group == group; });
    return chosen;
}

Direction directionOf(KeyCommand::Verb verb)
{
    using Verb = KeyCommand::Verb;
    switch (verb) {
    case Verb::Left:
    case Verb::FarLeft:
        return { .x = -1 };
    case Verb::Right:
    case Verb::FarRight:
        return { .x = 1 };
    case Verb::Up:
    case Verb::FarUp:
        return { .y = 1 };
    default:
        return { .y = -1 };
    }
}

} // namespace

Focus::Focus(GameView& view, const board::ObjectTable& table, const GestureTarget& game)
    : m_view(view)
    , m_table(table)
    , m_game(game)
{
    m_view.setPointerListener([this] { hide(); });
}

Focus::~Focus()
{
    m_view.setPointerListener({});
}

std::vector<Stop> Focus::stops() const
{
    return stopsOf(m_table, m_game, m_view.overlay(), m_view.keyLifted());
}

std::optional<Stop> Focus::shown() const
{
    return m_inUse ? current(stops()) : std::nullopt;
}

std::optional<Stop> Focus::current(const std::vector<Stop>& stops) const
{
    if (stops.empty()) {
        return std::nullopt;
    }
    if (stops.front().group == Group::Message && !m_isBesideNote) {
        const Stop* const answer = withKey(stops, m_place.key);
        return answer != nullptr && answer->group == Group::Message ? *answer : stops.front();
    }
    if (const Stop* const same = withKey(stops, m_place.key)) {
        return *same;
    }
    // A button of the panel goes only with everything else; then the line comes first.
    const bool isElsewhere = m_place.group == Group::Panel || m_place.group == Group::Message;
    if (const Stop* const entry = entryOf(stops, isElsewhere ? Group::Line : m_place.group)) {
        return *entry;
    }
    // What cannot be played on yet will be, once what moves has come to rest.
    if (m_view.block().blockClick()) {
        return std::nullopt;
    }
    for (const Group group : { Group::Line, Group::Removal, Group::Panel }) {
        if (const Stop* const entry = entryOf(stops, group)) {
            return *entry;
        }
    }
    return stops.front();
}

const Stop* Focus::nearestOfLine(const std::vector<Stop>& stops) const
{
    const Stop* best = nullptr;
    unsigned least = 0;
    for (const Stop& stop : stops) {
        if (stop.group != Group::Line) {
            continue;
        }
        const unsigned column = board::columnForKey(stop.key);
        const unsigned away = column > m_column ? column - m_column : m_column - column;
        if (best == nullptr || away < least) {
            best = &stop;
            least = away;
        }
    }
    return best;
}

// The line is entered where it was left, the others where they were left if that is still there;
// else the removals from the last one, and the panel from its first button.
const Stop* Focus::entryOf(const std::vector<Stop>& stops, Group group) const
{
    if (group == Group::Line) {
        return nearestOfLine(stops);
    }
    const std::string& last = m_lastOf.at(static_cast<std::size_t>(group));
    const Stop* entry = nullptr;
    for (const Stop& stop : stops) {
        if (stop.group != group) {
            continue;
        }
        if (stop.key == last) {
            return &stop;
        }
        if (entry == nullptr || group == Group::Removal) {
            entry = &stop;
        }
    }
    return entry;
}

void Focus::show()
{
    if (m_view.overlay() != Overlay::Note) {
        m_isBesideNote = false;
    }
    m_inUse = true;
}

void Focus::hide()
{
    m_inUse = false;
}

void Focus::stand(const Stop& stop)
{
    m_isBesideNote = m_view.overlay() == Overlay::Note && stop.group != Group::Message;
    m_place = stop;
    m_lastOf.at(static_cast<std::size_t>(stop.group)) = stop.key;
    if (stop.group == Group::Line) {
        m_column = board::columnForKey(stop.key);
        m_view.carryTo(stop.key);
    }
}

bool Focus::goTo(const std::string& key)
{
    const auto all = stops();
    const Stop* const stop = withKey(all, key);
    if (stop != nullptr) {
        show();
        stand(*stop);
    }
    return stop != nullptr;
}

bool Focus::perform(const KeyCommand& command)
{
    switch (command.verb) {
    case Verb::Left:
    case Verb::Right:
    case Verb::Up:
    case Verb::Down:
    case Verb::FarLeft:
    case Verb::FarRight:
    case Verb::FarUp:
    case Verb::FarDown:
    case Verb::First:
    case Verb::Last:
    case Verb::NextGroup:
    case Verb::PreviousGroup:
        step(command.verb);
        return true;
    case Verb::Column:
        goToColumn(command.column);
        return true;
    case Verb::Click:
        click();
        return true;
    case Verb::Lift:
        lift();
        return true;
    case Verb::PutBack:
        return putBack();
    case Verb::TakeBack:
        takeBack();
        return true;
    case Verb::Hint:
        press(board::ButtonAction::Hint);
        return true;
    case Verb::Moves:
        press(board::ButtonAction::Moves);
        return true;
    default:
        return false;
    }
}

// The first of them only shows where the focus is.
void Focus::step(Verb verb)
{
    const bool wasShown = shown().has_value();
    show();
    const auto all = stops();
    const auto from = current(all);
    if (!from) {
        return;
    }
    const bool isAbsolute = verb == Verb::First || verb == Verb::Last;
    if (!wasShown && !isAbsolute) {
        stand(*from);
        return;
    }
    switch (verb) {
    case Verb::Left:
    case Verb::Right:
    case Verb::Up:
    case Verb::Down:
        if (const Stop* const next = nearest(all, *from, directionOf(verb), Reach::Anywhere)) {
            stand(*next);
        }
        return;
    case Verb::First:
    case Verb::Last:
        return goToEnd(all, from->group, verb);
    case Verb::NextGroup:
        return goToGroup(all, from->group, 1);
    case Verb::PreviousGroup:
        return goToGroup(all, from->group, -1);
    default:
        return goFar(all, *from, directionOf(verb));
    }
}

void Focus::goFar(const std::vector<Stop>& all, Stop from, Direction direction)
{
    while (const Stop* const next = nearest(all, from, direction, Reach::Straight)) {
        from = *next;
    }
    stand(from);
}

void Focus::goToEnd(const std::vector<Stop>& all, Group own, Verb verb)
{
    const auto group = ofGroup(all, own);
    stand(verb == Verb::First ? group.front() : group.back());
}

void Focus::goToGroup(const std::vector<Stop>& all, Group from, int step)
{
    constexpr int kGroups = 4;
    for (int i = 1; i <= kGroups; ++i) {
        const int group = (static_cast<int>(from) + i * step + i * kGroups) % kGroups;
        if (const Stop* const entry = entryOf(all, static_cast<Group>(group))) {
            return stand(*entry);
        }
    }
}

void Focus::goToColumn(unsigned column)
{
    show();
    for (const Stop& stop : stops()) {
        if (stop.group == Group::Line && board::columnForKey(stop.key) == column) {
            return stand(stop);
        }
    }
    if (const auto place = current(stops())) {
        stand(*place);
    }
}

void Focus::click()
{
    // A page is closed whether the focus has been seen or not.
    const bool isMessage = m_view.overlay() == Overlay::Page || m_view.overlay() == Overlay::Note;
    const bool wasShown = shown().has_value() || isMessage;
    show();
    const auto place = current(stops());
    if (!place) {
        return;
    }
    stand(*place);
    if (!wasShown) {
        return;
    }
    if (!m_view.keyLifted().empty()) {
        m_view.drop(place->key);
        return;
    }
    activate(place->key);
}

void Focus::lift()
{
    const auto place = shown();
    if (!place || place->group != Group::Line || !m_view.keyLifted().empty()) {
        click();
        return;
    }
    stand(*place);
    if (m_view.liftByKey(place->key)) {
        const auto targets = stops();
        if (const Stop* const target = nearestOfLine(targets)) {
            stand(*target);
        }
    }
}

bool Focus::putBack()
{
    const std::string lifted = m_view.keyLifted();
    if (lifted.empty()) {
        return false;
    }
    m_view.cancelGesture();
    m_place.key = lifted;
    m_column = board::columnForKey(lifted);
    return true;
}

void Focus::takeBack()
{
    const unsigned count = m_game.lineCount();
    const std::string key = board::deleteButtonKey(count - 1);
    const Overlay overlay = m_view.overlay();
    if (count > 1 && m_table.contains(key)
        && (overlay == Overlay::None || overlay == Overlay::Note)) {
        show();
        activate(key);
    }
}

void Focus::press(board::ButtonAction action)
{
    const std::string key(board::buttonFor(action).litKey);
    const auto all = stops();
    if (withKey(all, key) != nullptr) {
        show();
        activate(key);
    }
}

void Focus::activate(const std::string& key)
{
    m_isBesideNote = false;
    m_view.activate(key);
}

} // namespace veyrand::input
