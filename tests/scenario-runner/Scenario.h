#pragma once

#include "ScenarioStage.h"
#include "ScenarioValues.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace veyrand::scenario {

// What scripts know as game: whatever a player can do to a game, and whatever can be seen of it,
// whichever front end shows it and whatever runs the scripts. docs/scenarios.md describes every
// operation; keep it true. Mistakes of the script (a target that is not there) are thrown as
// std::runtime_error.
class Scenario {
public:
    using MakeStage = std::function<std::unique_ptr<ScenarioStage>(const ScenarioStage::Launch&)>;
    explicit Scenario(MakeStage makeStage)
        : m_makeStage(std::move(makeStage))
    {
    }

    // The names that scripts call, and a call: of the operation by its place in the names.
    [[nodiscard]] static std::vector<std::string_view> operations();
    Json call(std::size_t operation, const Json& arguments);

private:
    struct Operation {
        std::string_view name;
        Json (Scenario::*run)(const Arguments& arguments);
    };
    static const std::vector<Operation>& table();

    Json start(const Arguments& arguments);
    Json play(const Arguments& arguments);
    Json show(const Arguments& arguments);
    Json practice(const Arguments& arguments);
    Json open(const Arguments& arguments);
    Json daily(const Arguments& arguments);
    Json edit(const Arguments& arguments);
    Json today(const Arguments& arguments);
    Json quit(const Arguments& arguments);
    Json kill(const Arguments& arguments);
    Json restart(const Arguments& arguments);
    Json wait(const Arguments& arguments);

    Json move(const Arguments& arguments);
    Json press(const Arguments& arguments);
    Json release(const Arguments& arguments);
    Json click(const Arguments& arguments);
    Json drag(const Arguments& arguments);
    Json touch(const Arguments& arguments);
    Json touchDrag(const Arguments& arguments);
    Json longPress(const Arguments& arguments);
    Json rightClick(const Arguments& arguments);
    Json key(const Arguments& arguments);
    Json resize(const Arguments& arguments);
    Json menu(const Arguments& arguments);
    Json screenshot(const Arguments& arguments);
    Json screenshotSheets(const Arguments& arguments);
    Json screenshotSheetsAtTheirEnds(const Arguments& arguments);

    Json keys(const Arguments& arguments);
    Json object(const Arguments& arguments);
    Json textOf(const Arguments& arguments);
    Json layer(const Arguments& arguments);

    Json focus(const Arguments& arguments);
    Json announcements(const Arguments& arguments);
    Json accessible(const Arguments& arguments);
    Json act(const Arguments& arguments);
    Json cursor(const Arguments& arguments);
    Json tip(const Arguments& arguments);
    Json whisper(const Arguments& arguments);
    Json extras(const Arguments& arguments);

    Json lines(const Arguments& arguments);
    Json goal(const Arguments& arguments);
    Json par(const Arguments& arguments);
    Json level(const Arguments& arguments);
    Json stage(const Arguments& arguments);
    Json score(const Arguments& arguments);
    Json endless(const Arguments& arguments);
    Json endlessScore(const Arguments& arguments);
    Json endlessPar(const Arguments& arguments);
    Json highestRule(const Arguments& arguments);
    Json hintMode(const Arguments& arguments);
    Json dialogueState(const Arguments& arguments);
    Json page(const Arguments& arguments);
    Json blocked(const Arguments& arguments);
    Json actions(const Arguments& arguments);
    Json hash(const Arguments& arguments);
    Json alert(const Arguments& arguments);
    Json answer(const Arguments& arguments);
    Json exportGame(const Arguments& arguments);
    Json importGame(const Arguments& arguments);
    Json chooseFile(const Arguments& arguments);
    Json savedFile(const Arguments& arguments);
    Json sounds(const Arguments& arguments);
    Json statistics(const Arguments& arguments);
    Json clipboard(const Arguments& arguments);
    Json sheet(const Arguments& arguments);
    Json replay(const Arguments& arguments);
    Json guide(const Arguments& arguments);
    Json music(const Arguments& arguments);
    Json preference(const Arguments& arguments);
    Json record(const Arguments& arguments);
    Json terminated(const Arguments& arguments);
    Json overlay(const Arguments& arguments);

    ScenarioStage& onStage(); // started with the defaults when no script has
    headless::HeadlessGame& game() { return onStage().game(); }
    platform::Point place(const Json& target);
    void takePicture(const std::string& name);
    [[nodiscard]] std::string recordKey();
    void startWith(const Json& options);
    void relaunch();
    void end();

    MakeStage m_makeStage;
    // What outlasts the game.
    std::unique_ptr<platform::MemoryPreferences> m_preferences;
    std::unique_ptr<platform::MemoryJournal> m_journal;
    ScenarioStage::Launch m_launch;
    std::unique_ptr<ScenarioStage> m_stage;
    bool m_hasEnded = false;
    bool m_hasQuit = false;
};

} // namespace veyrand::scenario
