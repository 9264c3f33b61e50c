#include "Scenario.h"

#include "headless/SheetPictures.h"
#include "progress/PlayerKeys.h"

#include <cmath>
#include <stdexcept>

namespace veyrand::scenario {

using progress::CurrentGame;

ScenarioStage& Scenario::onStage()
{
    if (m_hasEnded) {
        throw std::runtime_error("the game has ended; game.restart() starts it on what it saved");
    }
    if (!m_stage) {
        startWith({});
    }
    return *m_stage;
}

void Scenario::startWith(const Json& options)
{
    m_launch = { .seed = static_cast<std::uint32_t>(number(field(options, "seed", 1))),
        .preferences = toContents(field(options, "preferences", Json::object())) };
    const Json record = field(options, "record", {});
    if (record.is_object()) {
        const auto& values = m_launch.preferences.values;
        const auto defaults = progress::registeredDefaults().values;
        const auto& named = values.contains(progress::kPlayerNameKey) ? values : defaults;
        m_launch.preferences.records.insert_or_assign(
            progress::playerRecordKey(platform::stringForKey(named, progress::kPlayerNameKey)),
            toRecord(record));
    }
    end();
    m_preferences = std::make_unique<platform::MemoryPreferences>();
    m_journal = isTrue(field(options, "journal", false))
        ? std::make_unique<platform::MemoryJournal>()
        : nullptr;
    m_launch.store = m_preferences.get();
    m_launch.journal = m_journal.get();
    relaunch();
    m_launch.preferences = {}; // they stand in the store, as far as nobody has changed them
}

void Scenario::relaunch()
{
    end();
    m_hasEnded = false;
    m_hasQuit = false;
    m_stage = m_makeStage(m_launch);
    m_stage->game().listen();
    m_stage->launch();
}

void Scenario::end()
{
    m_stage.reset();
    m_hasEnded = true;
}

Json Scenario::start(const Arguments& arguments)
{
    startWith(arguments.at(0));
    return {};
}

Json Scenario::quit(const Arguments& /*arguments*/)
{
    game().controller().context().quit.terminate();
    const std::string trouble = game().controller().kept().lastWords();
    end();
    m_hasQuit = true;
    if (!trouble.empty()) {
        throw std::runtime_error(trouble);
    }
    return {};
}

Json Scenario::kill(const Arguments& /*arguments*/)
{
    static_cast<void>(onStage());
    end();
    return {};
}

Json Scenario::restart(const Arguments& /*arguments*/)
{
    if (m_preferences) {
        relaunch();
    } else {
        startWith({});
    }
    return {};
}

Json Scenario::play(const Arguments& arguments)
{
    const Json& puzzle = arguments.at(0);
    game().play({ .root = text(field(puzzle, "root", "YR")),
        .goal = text(field(puzzle, "goal", "YRG")),
        .par = static_cast<int>(number(field(puzzle, "par", 2))),
        .level = static_cast<int>(number(field(puzzle, "level", 1))),
        .stage = static_cast<int>(number(field(puzzle, "stage", 1))),
        .mode = isTrue(field(puzzle, "endless", false)) ? CurrentGame::Mode::Endless
                                                        : CurrentGame::Mode::Classic });
    return {};
}

namespace {

progress::CalendarDate dateOf(const std::string& text)
{
    const auto date = progress::dateIn(text);
    if (!date) {
        throw std::runtime_error(text + " is no date such as 2026-11-21");
    }
    return *date;
}

void complain(const std::string& fault)
{
    if (!fault.empty()) {
        throw std::runtime_error(fault);
    }
}

int wholeNumber(const Json& value)
{
    constexpr double kMost = 1000.0;
    const double number = value.is_number() ? scenario::number(value) : -1.0;
    if (!(number >= 0.0 && number <= kMost) || std::floor(number) != number) {
        throw std::runtime_error(value.dump() + " is no level or stage");
    }
    return static_cast<int>(number);
}

} // namespace

Json Scenario::practice(const Arguments& arguments)
{
    const progress::Place place { wholeNumber(arguments.at(0)), wholeNumber(arguments.at(1)) };
    if (!game().controller().practice().play(place)) {
        complain(play::nameOf(place) + " has not been reached");
    }
    return {};
}

Json Scenario::open(const Arguments& arguments)
{
    complain(game().controller().practice().open(arguments.text(0)));
    return {};
}

Json Scenario::daily(const Arguments& arguments)
{
    complain(game().controller().practice().openDaily(dateOf(arguments.text(0))));
    return {};
}

Json Scenario::edit(const Arguments& arguments)
{
    const std::string start = arguments.text(0);
    const std::string goal = arguments.text(1);
    for (const std::string& line : { start, goal }) {
        if (line.size() > play::kMostChips
            || line.find_first_not_of(engine::PackedLine::kLetters) != std::string::npos) {
            throw std::invalid_argument(line + " is no line of the board");
        }
    }
    if (!start.empty() && start.rfind('Y') != 0) {
        throw std::invalid_argument(start + " is no start line: one yellow leads");
    }
    game().controller().shelf().setDraft({ start, goal });
    game().controller().sheets().openEditor();
    return {};
}

Json Scenario::today(const Arguments& arguments)
{
    game().calendar().setToday(progress::dayNumber(dateOf(arguments.text(0))));
    return {};
}

Json Scenario::show(const Arguments& arguments)
{
    const std::string page = arguments.text(0);
    if (page == "loadOverlayWindow") {
        game().controller().loadOverlayWindow();
    } else if (!game().controller().pages().show(page)) {
        throw std::runtime_error("there is no page \"" + page + "\"");
    }
    return {};
}

Json Scenario::wait(const Arguments& arguments)
{
    game().wait(arguments.number(0));
    return {};
}

platform::Point Scenario::place(const Json& target)
{
    if (target.is_array()) {
        const Arguments place(target);
        return { .x = place.number(0), .y = place.number(1) };
    }
    auto centre = game().centreOf(text(target));
    for (const auto& extra : game().game().layers().extras().shown()) {
        // What a sheet offers lies before the board.
        if (extra.kind == present::ExtraKind::Place && extra.key == text(target)) {
            centre = platform::Point { .x = extra.rect.x, .y = extra.rect.y };
        }
    }
    if (!centre) {
        throw std::runtime_error("nothing on the board has the key \"" + text(target) + '"');
    }
    return *centre;
}

Json Scenario::move(const Arguments& arguments)
{
    onStage().move(place(arguments.at(0)));
    return {};
}

Json Scenario::press(const Arguments& arguments)
{
    onStage().press(place(arguments.at(0)), toModifiers(arguments.at(1)));
    return {};
}

Json Scenario::release(const Arguments& arguments)
{
    onStage().release(place(arguments.at(0)));
    return {};
}

Json Scenario::click(const Arguments& arguments)
{
    const platform::Point at = place(arguments.at(0));
    onStage().press(at, toModifiers(arguments.at(1)));
    onStage().release(at);
    return {};
}

Json Scenario::drag(const Arguments& arguments)
{
    const platform::Point start = place(arguments.at(0));
    const platform::Point end = place(arguments.at(1));
    onStage().press(start, {});
    onStage().release(end);
    return {};
}

Json Scenario::touch(const Arguments& arguments)
{
    onStage().touch(place(arguments.at(0)));
    return {};
}

Json Scenario::touchDrag(const Arguments& arguments)
{
    const platform::Point start = place(arguments.at(0));
    onStage().touchDrag(start, place(arguments.at(1)));
    return {};
}

Json Scenario::longPress(const Arguments& arguments)
{
    onStage().longPress(place(arguments.at(0)));
    return {};
}

Json Scenario::rightClick(const Arguments& arguments)
{
    onStage().rightClick(place(arguments.at(0)));
    return {};
}

Json Scenario::key(const Arguments& arguments)
{
    onStage().key(arguments.text(0));
    return {};
}

Json Scenario::resize(const Arguments& arguments)
{
    onStage().resize(static_cast<int>(arguments.number(0)), static_cast<int>(arguments.number(1)));
    return {};
}

Json Scenario::menu(const Arguments& arguments)
{
    const std::string item = arguments.text(0);
    if (!onStage().chooseMenuItem(item)) {
        throw std::runtime_error("the menu has no item \"" + item + "\" that can be chosen now");
    }
    return {};
}

Json Scenario::screenshot(const Arguments& arguments)
{
    takePicture(arguments.text(0));
    return {};
}

Json Scenario::screenshotSheets(const Arguments& arguments)
{
    const std::string rest = arguments.text(0) + ".png";
    headless::showSheets(game(), [&](const std::string& name) { takePicture(name + rest); });
    return {};
}

Json Scenario::screenshotSheetsAtTheirEnds(const Arguments& /*arguments*/)
{
    headless::showSheetsAtTheirEnds(
        game(), [this](const std::string& name) { takePicture(name + ".png"); });
    return {};
}

void Scenario::takePicture(const std::string& name)
{
    complain(onStage().screenshot(name));
}

Json Scenario::answer(const Arguments& arguments)
{
    using Button = platform::AlertAnswer::Button;
    const std::string text = arguments.text(0);
    auto& alerts = game().alerts();
    if (alerts.isOpen() && !text.empty()) {
        const platform::Alert& alert = alerts.alert();
        for (const auto& [words, button] : { std::pair { alert.defaultButton, Button::Default },
                 std::pair { alert.otherButton, Button::Other },
                 std::pair { alert.alternateButton, Button::Alternate } }) {
            if (words == text) {
                alerts.answer({ .button = button });
                return {};
            }
        }
    }
    throw std::runtime_error("nothing asks for \"" + text + '"');
}

Json Scenario::exportGame(const Arguments& /*arguments*/)
{
    return game().controller().transfer().exported();
}

Json Scenario::importGame(const Arguments& arguments)
{
    using How = controller::Transfer::How;
    const std::string how = arguments.text(1);
    if (how != "replace" && how != "join") {
        throw std::runtime_error("a game is imported to \"replace\" or to \"join\"");
    }
    complain(game().controller().transfer().bringIn(
        arguments.text(0), "the text", how == "join" ? How::Join : How::Replace));
    return {};
}

Json Scenario::chooseFile(const Arguments& arguments)
{
    if (arguments.at(0).is_string()) {
        game().exchange().choose(
            platform::MemoryExchange::File { arguments.text(0), arguments.text(1) });
    } else {
        game().exchange().choose(std::nullopt);
    }
    return {};
}

Json Scenario::savedFile(const Arguments& /*arguments*/)
{
    const auto& saved = game().exchange().saved();
    return saved ? Json { { "name", saved->name }, { "text", saved->text } } : Json();
}

} // namespace veyrand::scenario
