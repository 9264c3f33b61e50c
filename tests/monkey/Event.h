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
        Click,
        Drag, // to `text`, a key, or to `there`
        Touch,
        Key, // `text`
        Menu, // `text`
        Answer, // the box's button `text`
        Resize, // to `there`, in points
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

// The events as a scenario, which shows what came of them.
[[nodiscard]] std::string scenarioOf(
    const Cage& cage, const std::vector<Event>& events, const std::string& fault);

} // namespace veyrand::test
