#pragma once

#include "platform/Geometry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veyrand::test {

// One thing that a monkey does to the game. What it is done to is the key of an element, or, where
// there is none, a place.
struct Event {
    enum class Kind {
        Move,
        Press,
        Release,
        LoseRelease, // the release of a press will not come
        Leave, // the pointer leaves the view
        Click,
        Drag, // to `text`, a key, or to `there`
        RightClick,
        Touch,
        TouchDrag, // as Drag
        LongPress,
        Key, // `text`
        Menu, // `text`
        Setting, // the item `text` of the settings window, to `number`
        Copy, // `text`, to the clipboard
        Open, // the code `text`
        Today, // `text`, by the calendar
        Answer, // the box's button `text`
        Resize, // to `there`, in points
        Disk, // fails from now on, for the reason `text`; with none, no longer
        Wait, // so long
        Quit, // and the game is started again
        Kill, // likewise
    };
    Kind kind = Kind::Wait;
    std::string key {};
    platform::Point place {};
    std::string text {};
    platform::Point there {};
    double seconds = 0.0;
    int number = 0;
};

// How the game is set when the monkey gets at it.
struct Cage {
    std::uint32_t seed = 1;
    int level = 1;
    int stage = 1;
    std::int64_t score = 0;
    std::int64_t endlessScore = 0;
    int endlessPar = 0; // in lines; 0 for none chosen
    bool knowsHints = false;
    std::string tempo = "normal";
};

// The events as a scenario, which shows what came of them. What scenarios have no word for stands
// in it as a comment.
[[nodiscard]] std::string scenarioOf(
    const Cage& cage, const std::vector<Event>& events, const std::string& fault);

} // namespace veyrand::test
