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

// A call of the game, or a comment.
std::string lineOf(const Event& event)
{
    using Kind = Event::Kind;
    const std::string target = placed(event.key, event.place);
    const std::string there = placed(event.text, event.there);
    const auto call = [](const std::string& name, const std::string& arguments) {
        return "game." + name + '(' + arguments + ");";
    };
    const auto numbers = [](std::initializer_list<double> values) {
        std::ostringstream text;
        for (const double value : values) {
            text << (text.tellp() == 0 ? "" : ", ") << value;
        }
        return text.str();
    };
    switch (event.kind) {
    case Kind::Move:
        return call("move", target);
    case Kind::Press:
        return call("press", target);
    case Kind::Release:
        return call("release", target);
    case Kind::LoseRelease:
        return "// the release is lost";
    case Kind::Leave:
        return "// the pointer leaves";
    case Kind::Click:
        return call("click", target);
    case Kind::Drag:
        return call("drag", target + ", " + there);
    case Kind::RightClick:
        return call("rightClick", target);
    case Kind::Touch:
        return call("touch", target);
    case Kind::TouchDrag:
        return call("touchDrag", target + ", " + there);
    case Kind::LongPress:
        return call("longPress", target);
    case Kind::Key:
        return call("key", quoted(event.text));
    case Kind::Menu:
        return call("menu", quoted(event.text));
    case Kind::Setting:
        return "// the setting " + quoted(event.text) + " becomes " + std::to_string(event.number);
    case Kind::Copy:
        return call("clipboard", quoted(event.text));
    case Kind::Open:
        return call("open", quoted(event.text));
    case Kind::Today:
        return call("today", quoted(event.text));
    case Kind::Answer:
        return call("answer", quoted(event.text));
    case Kind::Resize:
        return call("resize", numbers({ event.there.x, event.there.y }));
    case Kind::Disk:
        return event.text.empty() ? "// the disk works again" : "// the disk: " + event.text;
    case Kind::Wait:
        return call("wait", numbers({ event.seconds }));
    case Kind::Quit:
        return "game.quit();\ngame.restart();";
    case Kind::Kill:
        return "game.kill();\ngame.restart();";
    }
    return {};
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
        text << lineOf(event) << '\n';
    }
    return text.str();
}

} // namespace veyrand::test
