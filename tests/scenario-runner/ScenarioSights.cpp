#include "Scenario.h"
#include "controller/AccessibleTree.h"
#include "controller/ReplaySheet.h"
#include "play/Decide.h"
#include "progress/PlayerKeys.h"
#include "progress/Settings.h"

#include <array>
#include <cstdio>
#include <stdexcept>

// What a script can see of the game.

namespace veyrand::scenario {

namespace {

std::string chipAt(unsigned row, unsigned column)
{
    return board::generateKeyChipKey(column, row);
}

Json describe(const controller::AccessibleNode& node)
{
    Json children = Json::array();
    for (const controller::AccessibleNode& child : node.children) {
        children.push_back(describe(child));
    }
    Json actions = Json::array();
    for (const controller::AccessibleAction& action : node.actions) {
        actions.push_back(action.text);
    }
    return { { "role", controller::nameOf(node.role) }, { "name", node.name },
        { "value", node.value }, { "actions", actions }, { "children", children } };
}

} // namespace

Json Scenario::statistics(const Arguments& /*arguments*/)
{
    const play::Statistics statistics = game().controller().book().statistics();
    Json levels = Json::array();
    for (const auto& level : statistics.levels) {
        levels.push_back({ { "solved", level.solved }, { "atPar", level.atPar } });
    }
    Json figures { { "solved", statistics.solved }, { "atPar", statistics.atPar },
        { "over", statistics.over }, { "hints", statistics.hints }, { "daily", statistics.daily },
        { "others", statistics.others }, { "streak", statistics.streak.current },
        { "bestStreak", statistics.streak.best }, { "levels", std::move(levels) } };
    if (progress::readSettings(game().preferences()).timePuzzles) {
        figures["seconds"] = statistics.seconds;
    }
    return figures;
}

Json Scenario::sheet(const Arguments& /*arguments*/)
{
    const auto& sheets = game().controller().sheets();
    return sheets.isOpen() ? Json({ { "name", sheets.name() }, { "focus", sheets.focus() } })
                           : Json();
}

Json Scenario::replay(const Arguments& /*arguments*/)
{
    const auto* const sheet
        = dynamic_cast<const controller::ReplaySheet*>(game().controller().sheets().shown());
    if (sheet == nullptr) {
        return {};
    }
    const auto state = sheet->state();
    return { { "shows", state.isYours ? "yours" : "shortest" }, { "way", state.way },
        { "ways", state.ways }, { "step", state.step }, { "running", state.isRunning },
        { "caption", state.caption }, { "note", state.note }, { "leftAt", state.leftAt },
        { "lines", state.lines } };
}

Json Scenario::guide(const Arguments& /*arguments*/)
{
    const auto& advice = game().controller().guide().advice();
    if (!advice) {
        return {};
    }
    if (advice->moves) {
        return { { "moves", *advice->moves } };
    }
    return { { "deadEnd", play::nameOf(advice->why) },
        { "colour", advice->colour != 0 ? std::string(1, advice->colour) : std::string() },
        { "back", advice->goodRow } };
}

Json Scenario::clipboard(const Arguments& arguments)
{
    if (!arguments.at(0).is_null()) {
        game().clipboard().setText(arguments.text(0));
    }
    return game().clipboard().text();
}

Json Scenario::keys(const Arguments& /*arguments*/)
{
    return game().gameData().gameObjects().keys();
}

Json Scenario::object(const Arguments& arguments)
{
    const auto record = game().gameData().gameObjects().objectForKey(arguments.text(0));
    if (!record) {
        return {};
    }
    return { { "image", record->imageName() }, { "x", record->x() }, { "y", record->y() },
        { "width", record->width() }, { "height", record->height() },
        { "opacity", record->opacity() }, { "visible", record->visible() } };
}

Json Scenario::textOf(const Arguments& arguments)
{
    const auto record = game().gameData().gameObjects().objectForKey(arguments.text(0));
    return record && record->text() ? record->text()->text : std::string();
}

Json Scenario::layer(const Arguments& arguments)
{
    const auto* const layer = game().game().layers().layerForKey(arguments.text(0));
    if (layer == nullptr) {
        return {};
    }
    const double height = game().gameData().gameHeight();
    const auto inGameHeights
        = [height](float points) { return static_cast<double>(points) / height; };
    return { { "x", inGameHeights(layer->shownPosition().x) },
        { "y", inGameHeights(layer->shownPosition().y) },
        { "width", inGameHeights(layer->shownBounds().width) },
        { "height", inGameHeights(layer->shownBounds().height) },
        { "opacity", static_cast<double>(layer->shownOpacity()) },
        { "z", static_cast<double>(layer->zPosition()) }, { "hidden", layer->isHidden() },
        { "glow", static_cast<double>(layer->glow()) } };
}

Json Scenario::focus(const Arguments& /*arguments*/)
{
    const auto stop = game().controller().focus().shown();
    return stop ? Json(stop->key) : Json();
}

Json Scenario::announcements(const Arguments& /*arguments*/)
{
    return game().takeAnnouncements();
}

Json Scenario::accessible(const Arguments& /*arguments*/)
{
    return describe(controller::accessibleTree(game().controller()));
}

Json Scenario::act(const Arguments& arguments)
{
    const std::string name = arguments.text(0);
    const std::string action = arguments.text(1);
    const auto tree = controller::accessibleTree(game().controller());
    const auto* const found = controller::find(tree, name, action);
    if (found == nullptr) {
        throw std::runtime_error("nothing is named \"" + name + "\" that can \"" + action + '"');
    }
    return controller::actOn(game().controller(), found->id, action);
}

Json Scenario::cursor(const Arguments& /*arguments*/)
{
    return input::nameOf(game().controller().answers().cursor());
}

Json Scenario::tip(const Arguments& /*arguments*/)
{
    return game().controller().answers().tip();
}

Json Scenario::whisper(const Arguments& /*arguments*/)
{
    return game().controller().answers().whisper();
}

Json Scenario::extras(const Arguments& /*arguments*/)
{
    Json list = Json::array();
    for (const auto& extra : game().game().layers().extras().shown()) {
        list.push_back({ { "kind", present::nameOf(extra.kind) }, { "key", extra.key },
            { "x", extra.rect.x }, { "y", extra.rect.y }, { "width", extra.rect.width },
            { "height", extra.rect.height }, { "opacity", extra.opacity },
            { "text", extra.text } });
    }
    return list;
}

Json Scenario::lines(const Arguments& /*arguments*/)
{
    Json lines = Json::array();
    if (const auto& proof = game().controller().proof()) {
        for (const engine::Theorem& line : proof->lines()) {
            lines.push_back(line.theorem());
        }
    }
    return lines;
}

Json Scenario::goal(const Arguments& /*arguments*/)
{
    const auto& proof = game().controller().proof();
    return proof ? proof->goal().theorem() : std::string();
}

Json Scenario::par(const Arguments& /*arguments*/)
{
    return game().currentGame().par();
}

Json Scenario::level(const Arguments& /*arguments*/)
{
    return game().currentGame().level();
}

Json Scenario::stage(const Arguments& /*arguments*/)
{
    return game().currentGame().stage();
}

Json Scenario::score(const Arguments& /*arguments*/)
{
    return game().currentGame().score();
}

Json Scenario::endless(const Arguments& /*arguments*/)
{
    return game().currentGame().endlessGame();
}

Json Scenario::endlessScore(const Arguments& /*arguments*/)
{
    return game().currentGame().endlessScore();
}

Json Scenario::endlessPar(const Arguments& /*arguments*/)
{
    return game().currentGame().endlessPar();
}

Json Scenario::highestRule(const Arguments& /*arguments*/)
{
    return game().currentGame().highestRule();
}

Json Scenario::hintMode(const Arguments& /*arguments*/)
{
    return game().controller().hints().hintMode();
}

Json Scenario::dialogueState(const Arguments& /*arguments*/)
{
    return game().controller().dialogueState();
}

Json Scenario::page(const Arguments& /*arguments*/)
{
    return game().controller().messages().page();
}

Json Scenario::blocked(const Arguments& /*arguments*/)
{
    return game().game().view().block().blockClick();
}

Json Scenario::actions(const Arguments& /*arguments*/)
{
    auto& controller = game().controller();
    Json list = Json::array();
    const auto& view = game().game().view();
    if (game().game().view().block().blockClick() || view.messageWindow()
        || controller.dialogueState() != 0 || controller.sheets().isOpen()
        || game().alerts().isOpen()) {
        return list;
    }
    for (const play::Gesture& gesture : play::actions(game().controller().moves().position())) {
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            list.push_back({ { "click", chipAt(click->row, click->column) } });
        } else if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
            list.push_back({ { "drag",
                Json::array(
                    { chipAt(drag->fromRow, drag->from), chipAt(drag->toRow, drag->to) }) } });
        }
    }
    return list;
}

Json Scenario::hash(const Arguments& /*arguments*/)
{
    const play::Session* const session = game().controller().flow().session();
    const std::uint64_t hash = session != nullptr ? session->hash() : play::Replay().hash();
    constexpr std::size_t kDigits = 16;
    std::array<char, kDigits + 1> digits {};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
    return digits.data();
}

Json Scenario::alert(const Arguments& /*arguments*/)
{
    if (!game().alerts().isOpen()) {
        return {};
    }
    const platform::Alert& shown = game().alerts().alert();
    Json buttons = Json::array({ shown.defaultButton });
    if (!shown.otherButton.empty()) {
        buttons.push_back(shown.otherButton);
    }
    if (!shown.alternateButton.empty()) {
        buttons.push_back(shown.alternateButton);
    }
    return { { "message", shown.message }, { "text", shown.informativeText },
        { "buttons", buttons } };
}

Json Scenario::sounds(const Arguments& /*arguments*/)
{
    return game().sounds().takePlayed();
}

Json Scenario::music(const Arguments& /*arguments*/)
{
    const auto& loop = game().sounds().loop();
    if (!loop) {
        return {};
    }
    return { { "name", loop->name }, { "volume", loop->volume }, { "looping", true } };
}

Json Scenario::preference(const Arguments& arguments)
{
    if (const auto value = game().preferences().value(arguments.text(0))) {
        return toScript(*value);
    }
    const auto record = game().preferences().record(arguments.text(0));
    return record ? toScript(*record) : Json();
}

std::string Scenario::recordKey()
{
    return progress::playerRecordKey(game().preferences().stringForKey(progress::kPlayerNameKey));
}

Json Scenario::record(const Arguments& /*arguments*/)
{
    const auto record = game().preferences().record(recordKey());
    return record ? toScript(*record) : Json();
}

Json Scenario::overlay(const Arguments& /*arguments*/)
{
    const auto& opened = game().overlay().opened();
    if (!opened) {
        return {};
    }
    const auto& frame = opened->frame;
    return { { "image", opened->imageName }, { "x", static_cast<double>(frame.x) },
        { "y", static_cast<double>(frame.y) }, { "width", static_cast<double>(frame.width) },
        { "height", static_cast<double>(frame.height) } };
}

Json Scenario::terminated(const Arguments& /*arguments*/)
{
    return m_hasQuit || game().quit().terminated();
}

const std::vector<Scenario::Operation>& Scenario::table()
{
    static const std::vector<Operation> kOperations { { "start", &Scenario::start },
        { "play", &Scenario::play }, { "show", &Scenario::show },
        { "practice", &Scenario::practice }, { "open", &Scenario::open },
        { "daily", &Scenario::daily }, { "edit", &Scenario::edit }, { "today", &Scenario::today },
        { "statistics", &Scenario::statistics }, { "clipboard", &Scenario::clipboard },
        { "sheet", &Scenario::sheet }, { "replay", &Scenario::replay },
        { "guide", &Scenario::guide }, { "quit", &Scenario::quit }, { "kill", &Scenario::kill },
        { "restart", &Scenario::restart }, { "wait", &Scenario::wait }, { "move", &Scenario::move },
        { "press", &Scenario::press }, { "release", &Scenario::release },
        { "click", &Scenario::click }, { "drag", &Scenario::drag }, { "touch", &Scenario::touch },
        { "touchDrag", &Scenario::touchDrag }, { "longPress", &Scenario::longPress },
        { "rightClick", &Scenario::rightClick }, { "focus", &Scenario::focus },
        { "announcements", &Scenario::announcements }, { "accessible", &Scenario::accessible },
        { "act", &Scenario::act }, { "key", &Scenario::key }, { "resize", &Scenario::resize },
        { "menu", &Scenario::menu }, { "screenshot", &Scenario::screenshot },
        { "screenshotSheets", &Scenario::screenshotSheets },
        { "screenshotSheetsAtTheirEnds", &Scenario::screenshotSheetsAtTheirEnds },
        { "keys", &Scenario::keys }, { "object", &Scenario::object }, { "text", &Scenario::textOf },
        { "layer", &Scenario::layer }, { "cursor", &Scenario::cursor }, { "tip", &Scenario::tip },
        { "whisper", &Scenario::whisper }, { "extras", &Scenario::extras },
        { "lines", &Scenario::lines }, { "goal", &Scenario::goal }, { "par", &Scenario::par },
        { "level", &Scenario::level }, { "stage", &Scenario::stage }, { "score", &Scenario::score },
        { "endless", &Scenario::endless }, { "endlessScore", &Scenario::endlessScore },
        { "endlessPar", &Scenario::endlessPar }, { "highestRule", &Scenario::highestRule },
        { "hintMode", &Scenario::hintMode }, { "dialogueState", &Scenario::dialogueState },
        { "page", &Scenario::page }, { "blocked", &Scenario::blocked },
        { "actions", &Scenario::actions }, { "hash", &Scenario::hash },
        { "alert", &Scenario::alert }, { "answer", &Scenario::answer },
        { "exportGame", &Scenario::exportGame }, { "importGame", &Scenario::importGame },
        { "chooseFile", &Scenario::chooseFile }, { "savedFile", &Scenario::savedFile },
        { "sounds", &Scenario::sounds }, { "music", &Scenario::music },
        { "preference", &Scenario::preference }, { "record", &Scenario::record },
        { "terminated", &Scenario::terminated }, { "overlay", &Scenario::overlay } };
    return kOperations;
}

std::vector<std::string_view> Scenario::operations()
{
    std::vector<std::string_view> names;
    for (const Operation& operation : table()) {
        names.push_back(operation.name);
    }
    return names;
}

Json Scenario::call(std::size_t operation, const Json& arguments)
{
    return (this->*table().at(operation).run)(Arguments(arguments));
}

} // namespace veyrand::scenario
