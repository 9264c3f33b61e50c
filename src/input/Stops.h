#pragma once

#include "board/ObjectTable.h"
#include "input/GestureTarget.h"
#include "input/Overlay.h"

#include <string>
#include <vector>

namespace veyrand::input {

// One thing that can be activated now, and where it lies: by its centre, in game heights.
struct Stop {
    // Tab goes from one to the next.
    enum class Group { Message, Line, Removal, Panel };

    Group group = Group::Panel;
    std::string key;
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;

    friend bool operator==(const Stop&, const Stop&) = default;
};

// The key of a page or note as a whole.
inline constexpr std::string_view kMessageKey = "fullScreen";

// Everything that can be activated now, in reading order: whoever shows a cursor, walks by keys or
// reads the board aloud asks here. A page leaves only itself, a question its two answers, and a
// lifted chip the chips onto which it can be dropped for a move.
[[nodiscard]] std::vector<Stop> stopsOf(const board::ObjectTable& table, const GestureTarget& game,
    Overlay overlay, const std::string& lifted);

// The stop that lies nearest in a direction (one of the two is 1 or -1): one that lies more that
// way than aside if there is any, else the nearest of those that lie that way at all. Null when
// nothing does.
struct Direction {
    int x = 0;
    int y = 0;
};
enum class Reach { Straight, Anywhere };
[[nodiscard]] const Stop* nearest(
    const std::vector<Stop>& stops, const Stop& from, Direction direction, Reach reach);

} // namespace veyrand::input
