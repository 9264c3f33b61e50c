#pragma once

#include "headless/HeadlessGame.h"
#include "platform/fakes/MemoryJournal.h"

#include <memory>
#include <string>
#include <vector>

namespace veyrand::scenario {

// One game as a script plays it: its hands, and what it looks like. What else there is to see is
// the headless game's, whoever shows it.
class ScenarioStage {
public:
    // What a launch is made of; the stores outlive the game.
    struct Launch {
        std::uint32_t seed = 1;
        platform::Preferences::Contents preferences {}; // over the registered defaults
        platform::Preferences* store = nullptr;
        platform::Journal* journal = nullptr; // null: nothing is kept
    };

    ScenarioStage() = default;
    ScenarioStage(const ScenarioStage&) = delete;
    ScenarioStage& operator=(const ScenarioStage&) = delete;
    virtual ~ScenarioStage() = default;

    [[nodiscard]] virtual headless::HeadlessGame& game() = 0;
    virtual void launch() = 0;

    // Places are in game heights. Modifiers are "Shift", "Ctrl", "Alt" and "Meta".
    virtual void move(platform::Point place) = 0;
    virtual void press(platform::Point place, const std::vector<std::string>& modifiers) = 0;
    virtual void release(platform::Point place) = 0;
    // One finger; a long press takes the time it takes.
    virtual void touch(platform::Point place) = 0;
    virtual void touchDrag(platform::Point from, platform::Point to) = 0;
    virtual void longPress(platform::Point place) = 0;
    virtual void rightClick(platform::Point place) = 0;
    virtual void key(const std::string& keys) = 0;
    virtual void resize(int width, int height) = 0; // points
    // False when there is no such item, or it may not be chosen now.
    virtual bool chooseMenuItem(const std::string& text) = 0;
    // What went wrong, in words; empty when nothing did.
    [[nodiscard]] virtual std::string screenshot(const std::string& name) = 0;
};

} // namespace veyrand::scenario
