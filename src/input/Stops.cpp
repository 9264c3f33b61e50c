#include "input/Stops.h"

#include "board/Buttons.h"
#include "board/ElementKey.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace veyrand::input {

namespace {

using Group = Stop::Group;

// Elements nearer than this to one line lie on it.
constexpr double kSame = 0.01;

class Finder {
public:
    Finder(const board::ObjectTable& table, std::vector<Stop>& stops)
        : m_table(table)
        , m_stops(stops)
    {
    }

    void add(Group group, const std::string& key)
    {
        if (const auto record = m_table.objectForKey(key)) {
            m_stops.push_back(
                { group, key, record->x(), record->y(), record->width(), record->height() });
        }
    }

    // A message is as large as what lies on its veil.
    void addMessage()
    {
        double left = 1.6;
        double right = 0.0;
        double bottom = 1.0;
        double top = 0.0;
        for (const std::string& key : m_table.keys()) {
            if (key.size() <= kMessageKey.size() || !key.starts_with(kMessageKey)) {
                continue;
            }
            const auto record = m_table.objectForKey(key);
            left = std::min(left, record->x() - record->width() / 2.0);
            right = std::max(right, record->x() + record->width() / 2.0);
            bottom = std::min(bottom, record->y() - std::max(record->height(), kLine) / 2.0);
            top = std::max(top, record->y() + std::max(record->height(), kLine) / 2.0);
        }
        if (left < right) {
            m_stops.push_back({ Group::Message, std::string(kMessageKey), (left + right) / 2.0,
                (bottom + top) / 2.0, right - left, top - bottom });
        } else {
            add(Group::Message, std::string(kMessageKey));
        }
    }

    void addButtons(bool answers)
    {
        for (const board::Button& button : board::kButtons) {
            if ((button.screen == board::ButtonScreen::Question) == answers) {
                add(answers ? Group::Message : Group::Panel, std::string(button.litKey));
            }
        }
    }

private:
    static constexpr double kLine = 0.06; // of a message's text, whose record has no size

    const board::ObjectTable& m_table;
    std::vector<Stop>& m_stops;
};

void addChips(Finder& finder, const GestureTarget& game, const std::string& lifted)
{
    std::set<unsigned> columns;
    unsigned row = 0;
    const bool isLifted = !lifted.empty();
    for (const play::Gesture& gesture : game.actions()) {
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            row = click->row;
            if (!isLifted) {
                columns.insert(click->column);
            }
        } else if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
            row = drag->fromRow;
            if (!isLifted) {
                columns.insert(drag->from);
            } else if (board::generateKeyChipKey(drag->from, drag->fromRow) == lifted) {
                columns.insert(drag->to);
            }
        }
    }
    for (const unsigned column : columns) {
        finder.add(Group::Line, board::generateKeyChipKey(column, row));
    }
}

} // namespace

std::vector<Stop> stopsOf(const board::ObjectTable& table, const GestureTarget& game,
    Overlay overlay, const std::string& lifted)
{
    std::vector<Stop> stops;
    Finder finder(table, stops);
    if (overlay == Overlay::Question) {
        finder.addButtons(true);
        return stops;
    }
    if (overlay != Overlay::None) {
        finder.addMessage();
    }
    if (overlay == Overlay::Page) {
        return stops;
    }
    addChips(finder, game, lifted);
    if (!lifted.empty()) {
        return stops;
    }
    for (unsigned row = 1; row < game.lineCount(); ++row) {
        finder.add(Group::Removal, board::deleteButtonKey(row));
    }
    finder.addButtons(false);
    return stops;
}

const Stop* nearest(
    const std::vector<Stop>& stops, const Stop& from, Direction direction, Reach reach)
{
    const Stop* best = nullptr;
    double least = 0.0;
    for (const bool aside : { false, true }) {
        if (aside && reach == Reach::Straight) {
            break;
        }
        for (const Stop& stop : stops) {
            const double x = stop.x - from.x;
            const double y = stop.y - from.y;
            const double ahead = x * direction.x + y * direction.y;
            const double off = std::abs(direction.x != 0 ? y : x);
            if (stop.key == from.key || ahead < kSame || (!aside && off > ahead)) {
                continue;
            }
            const double cost = ahead + 2.0 * off;
            if (best == nullptr || cost < least) {
                best = &stop;
                least = cost;
            }
        }
        if (best != nullptr) {
            break;
        }
    }
    return best;
}

} // namespace veyrand::input
