#include "monkey/Event.h"

#include <sstream>

namespace veyrand::test {

namespace {

std::string quoted(const std::string& text)
{
    return '"' + text + '"';
}

std::string placed(const std::string& key, platform::Point place)
{
    if (!key.empty()) {
        return quoted(key);
    }
    std::ostringstream text;
    text << '[' << place.x << ", " << place.y << ']';
    return text.str();
}

std::string callOf(const Event& event)
{
    using Kind = Event::Kind;
    const std::string target = placed(event.key, event.place);
    std::ostringstream call;
    switch (event.kind) {
    case Kind::Move:
        call << "move(" << target << ')';
        break;
    case Kind::Press:
        call << "press(" << target << ')';
        break;
    case Kind::Release:
        call << "release(" << target << ')';
        break;
    case Kind::Click:
        call << "click(" << target << ')';
        break;
    case Kind::Drag:
        call << "drag(" << target << ", " << placed(event.text, event.there) << ')';
        break;
    case Kind::Touch:
        call << "touch(" << target << ')';
        break;
    case Kind::Key:
        call << "key(" << quoted(event.text) << ')';
        break;
    case Kind::Menu:
        call << "menu(" << quoted(event.text) << ')';
        break;
    case Kind::Answer:
        call << "answer(" << quoted(event.text) << ')';
        break;
    case Kind::Resize:
        call << "resize(" << event.there.x << ", " << event.there.y << ')';
        break;
    case Kind::Wait:
        call << "wait(" << event.seconds << ')';
        break;
    case Kind::Quit:
        call << "quit();\ngame.restart()";
        break;
    case Kind::Kill:
        call << "kill();\ngame.restart()";
        break;
    }
    return call.str();
}

} // namespace

std::string scenarioOf(const Cage& cage, const std::vector<Event>& events, const std::string& fault)
{
    std::ostringstream text;
    text << std::boolalpha << "// Found by a monkey: " << fault << ".\n\n"
         << "game.start({ journal: true, seed: " << cage.seed
         << ", preferences: { TRNEndlessGameUnlockedKey: true, Settings: { Tempo: "
         << quoted(cage.tempo) << " } },\n    record: { TRNLevelKey: " << cage.level
         << ", TRNStageKey: " << cage.stage << ", TRNScoreKey: " << cage.score
         << ", TRNEndlessScoreKey: " << cage.endlessScore
         << ",\n        TRNEndlessParKey: " << cage.endlessPar
         << ", TRNFirstHintClickKey: " << cage.knowsHints << " } });\n";
    for (const Event& event : events) {
        text << "game." << callOf(event) << ";\n";
    }
    return text.str();
}

} // namespace veyrand::test
