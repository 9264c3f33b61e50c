#include "headless/Tour.h"

#include "play/Trail.h"
#include "progress/RuleSets.h"
#include "progress/Settings.h"

#include <functional>
#include <set>

namespace veyrand::test {

using progress::Place;

// What a tour meets: a player who has come half way, solved the last days' puzzles and kept some.
class Tours : public Tour {
protected:
    Tours() { wait(3.0); }

    controller::Sheets& sheets() { return controller().sheets(); }

    void solveEverything()
    {
        play::Results results;
        std::int64_t number = 0;
        for (Place place {}; place != kStanding; place = progress::nextPlace(place), ++number) {
            const auto* const entry = controller().practice().entryAt(place);
            if (number % 11 != 9) { // solved before results were kept
                add(results, play::nameOf(place), { entry->root, entry->goal },
                    play::openMoves(progress::highestRuleAt(place.level, place.stage)), number);
            }
        }
        for (int back = 0; back < 40; ++back) {
            const auto date = progress::daysAfter(controller().book().today(), -back);
            const auto* const puzzle = controller().practice().daily().on(date);
            if (puzzle != nullptr && back % 12 != 7) {
                add(results, progress::textOf(date), *puzzle, play::kAllMoves, back, date);
            }
        }
        controller().book().replace(results);
    }
    void keepPuzzles(int count)
    {
        for (int number = 0; number < count; ++number) {
            const auto date = progress::daysAfter(controller().book().today(), -2 * number);
            const auto* const puzzle = controller().practice().daily().on(date);
            controller().shelf().add(play::codeOf(puzzle->root, puzzle->goal).value());
        }
    }
    // "start-3" stands for "start-4" too.
    static std::set<std::string> ofEachKind(const std::vector<present::SheetPlace>& places)
    {
        std::set<std::string> kinds;
        std::set<std::string> keys;
        for (const present::SheetPlace& place : places) {
            const auto end = place.key.find_first_of("0123456789");
            if (kinds.insert(place.key.substr(0, end)).second) {
                keys.insert(place.key);
            }
        }
        return keys;
    }
    // Opened, looked over by keys and pointer, and each kind of thing pressed that there is.
    void visit(const std::string& name, const std::function<void()>& open,
        const std::vector<std::string>& by, const std::vector<std::string>& looked)
    {
        open();
        wait(1.0);
        stop(name);
        keys(by);
        for (const std::string& key : looked) {
            pointAt(key, 1.5);
        }
        for (const std::string& key : ofEachKind(sheets().places())) {
            sheets().close();
            controller().flow().returnToMenu();
            open();
            wait(1.0);
            lookAway();
            sheets().choose(key);
            wait(1.0);
            stop(name + ": " + key);
            while (game().alerts().isOpen()) {
                game().alerts().close();
            }
        }
        sheets().close();
        controller().flow().returnToMenu();
        wait(1.0);
        lookAway();
    }

private:
    // Every fourth with a move too many, every fifth with a hint.
    void add(play::Results& results, const std::string& name, const play::CodedPuzzle& puzzle,
        play::MoveSet open, std::int64_t number, const progress::CalendarDate& date = {})
    {
        using engine::PackedLine;
        const auto ways = m_search.find(
            PackedLine::pack(puzzle.root).value(), PackedLine::pack(puzzle.goal).value(), 1, open);
        ASSERT_TRUE(ways.has_value()) << name;
        play::Result result { .puzzle = puzzle, .moves = {}, .solvedOn = date };
        const auto lines = ways->way(0);
        for (std::size_t i = 1; i < lines.size(); ++i) {
            const auto now = play::movesWith(static_cast<unsigned>(i)) & open;
            result.moves.push_back(
                play::moveBetween(lines[i - 1], lines[i], now).value_or(play::Move {}));
        }
        result.par = ways->moves() - (number % 4 == 3 ? 1 : 0);
        result.hints = number % 5 == 0 ? 1 : 0;
        result.seconds = result.moves.size() * 23;
        results.add(name, result);
    }

    play::WaySearch m_search;
};

TEST_F(Tours, TheTitlePageAndItsQuestions)
{
    stop("the title page");
    keys({ "Tab", "Right", "Tab" });
    pointAt("button-classicbuttonon", 0.5);
    pointAt("button-endlessbuttonon", 0.5);
    controller().flow().newClassicGame();
    wait(2.0);
    stop("another Classic game?");
    keys({ "Tab", "Tab", "Esc" });
    controller().flow().newEndlessGame();
    wait(2.0);
    stop("another Endless game?");
    controller().dialogues().dismiss();
    wait(2.0);
    stop("dismissed");
    controller().flow().startEndlessGame();
    wait(4.0);
    stop("Endless");
    compareWith("title");
}

TEST_F(Tours, EveryPage)
{
    openEveryPage();
    compareWith("pages");
}

TEST_F(Tours, TheMap)
{
    const std::vector<std::string> by { "Right", "Down", "Down", "Left", "Up", "End", "Home",
        "PgDown", "PgUp", "Tab", "Tab", "Shift+Tab", "Ctrl+C" };
    const std::vector<std::string> looked { "puzzle-1-1", "puzzle-5-6", "puzzle-7-3", "puzzle-1-4",
        "replay", "play", "menu" };
    visit("at first", [&] { sheets().openMap(); }, {}, {});
    solveEverything();
    change([](progress::Settings& settings) { settings.timePuzzles = true; });
    visit(
        "all solved", [&] { sheets().openMap(); }, by, looked);
    compareWith("map");
}

TEST_F(Tours, TheReplay)
{
    solveEverything();
    const std::vector<std::string> by { "Right", "Right", "Right", "Left", "End", "Home", "PgDown",
        "Right", "PgDown", "PgUp", "Space", "Tab", "Tab" };
    visit("5-4", [&] { sheets().openReplay("5-4"); }, by, { "run", "last", "shortest" });
    visit("3-9", [&] { sheets().openReplay("3-9"); }, by, {});
    visit("1-2", [&] { sheets().openReplay("1-2"); }, { "Right", "Space", "End" }, {});
    openWaysRound();
    keys({ "Home", "Right", "Right", "Right", "Home" });
    sheets().choose("run");
    wait(0.5);
    keys({ "Right" }); // by hand, which ends the run
    wait(3.0);
    stop("left where it was");
    compareWith("replay");
}

TEST_F(Tours, TheDays)
{
    const std::vector<std::string> by { "Left", "Up", "Right", "Down", "PgUp", "PgUp", "Home",
        "End", "PgDown", "PgDown", "PgDown", "Tab", "Tab", "Ctrl+C" };
    visit("at first", [&] { sheets().openDaily(); }, { "Left", "PgUp" }, {});
    solveEverything();
    visit("many solved", [&] { sheets().openDaily(); }, by,
        { "play", "today", "month-before", "month-after" });
    compareWith("days");
}

TEST_F(Tours, TheEditor)
{
    const auto open = [&] { sheets().openEditor(); };
    visit("empty", open, { "R", "G", "Down", "B", "Y", "Backspace", "Left", "Up", "Del" }, {});
    controller().shelf().setDraft({ "YBRGG", "RBBR" });
    visit("reachable", open,
        { "Right", "Home", "End", "Down", "Tab", "Tab", "Shift+Tab", "Ctrl+C", "Ctrl+V" },
        { "start-1", "goal-2", "chip-G", "play", "make" });
    controller().shelf().setDraft({ "YBRGG", "RBBR" });
    open();
    wait(1.0);
    lookAway();
    keys({ "Left", "Left", "Left", "Del", "Left", "Y", "R", "Left", "Left", "Y", "Left", "G",
        "Left", "Left", "Backspace", "Down", "Del", "Backspace" });
    for (const char* const key : { "par-less", "bits-less", "par-more", "bits-more" }) {
        for (int press = 0; press < 32; ++press) {
            sheets().choose(key);
        }
        stop(std::string(key) + " to the end");
    }
    sheets().close();
    for (const play::CodedPuzzle& draft : { play::CodedPuzzle { "YRRRRRRRRRRR", "BBBBBBBBBBBB" },
             play::CodedPuzzle { "YRGBRGBRGBRG", "YRGBRGBRGBRG" },
             play::CodedPuzzle { "YRG", "" } }) {
        controller().shelf().setDraft(draft);
        open();
        wait(1.0);
        stop(draft.root + " to " + draft.goal);
        keys({ "End", "R" });
        sheets().close();
    }
    compareWith("editor");
}

TEST_F(Tours, TheirOwnPuzzles)
{
    const auto open = [&] { sheets().openMine(); };
    visit("none", open, { "Down", "Return", "Del" }, {});
    keepPuzzles(3);
    solveEverything();
    visit("three", open,
        { "Down", "Down", "Up", "End", "Home", "Ctrl+C", "F2", "A", "Shift+B", "Space", "Backspace",
            "7", "Right", "Return", "F2", "C", "Return", "Down", "Del" },
        { "play", "edit", "rename" });
    keepPuzzles(8);
    open();
    wait(1.0);
    stop("as many as a page holds");
    sheets().close();
    keepPuzzles(30);
    visit("many", open, { "PgDown", "Down", "PgUp", "PgDown", "PgUp", "PgUp", "PgUp", "PgUp" },
        { "after" });
    open();
    keys({ "F2", "Shift+A", "Space", "B", "Esc", "F2", "C", "Return" });
    compareWith("mine");
}

TEST_F(Tours, Statistics)
{
    visit("at first", [&] { sheets().openStatistics(); }, { "Tab", "Tab" }, {});
    solveEverything();
    visit("all solved", [&] { sheets().openStatistics(); }, {}, { "puzzles", "menu" });
    change([](progress::Settings& settings) { settings.timePuzzles = true; });
    visit("timed", [&] { sheets().openStatistics(); }, {}, {});
    compareWith("statistics");
}

TEST_F(Tours, Practice)
{
    ASSERT_TRUE(controller().practice().play({ 5, 4 }));
    wait(3.0);
    stop("practised");
    keys({ "N" }, 1.0);
    pointAt("button-how-far", 1.5);
    keys({ "Tab", "Tab", "Tab", "Right", "Space" }, 1.0);
    for (const char* const chip : { "chip-0-0", "chip-1-1", "chip-2-2" }) {
        if (game().centreOf(chip)) {
            click(chip);
            wait(4.0);
            keys({ "N", "G", "L", "D", "P", "R" }, 1.0);
        }
    }
    keys({ "H", "Shift+H", "Ctrl+Z", "N", "Ctrl+Shift+Z" }, 3.0);
    ASSERT_EQ(controller().practice().openDaily(controller().book().today()), "");
    wait(3.0);
    stop("the day's puzzle");
    controller().flow().returnToMenu();
    wait(3.0);
    stop("back");
    compareWith("practice");
}

TEST_F(Tours, ABoardInPlay)
{
    play("YRRRGB", "YGRRB");
    stop("a puzzle");
    pointAt("button-movesbuttonoff", 0.5);
    press("button-movesbuttonoff");
    wait(0.3);
    stop("a button held");
    game().release({ .x = 1.2, .y = 0.5 });
    pointAt("counter-par", 2.0);
    pointAt("chip-1-0", 2.0);
    press("chip-1-0");
    wait(0.2);
    stop("a stone held");
    move("chip-2-0");
    wait(0.4);
    stop("in the air");
    release("chip-3-0");
    for (const double seconds : { 0.1, 0.4, 1.0, 3.0 }) {
        wait(seconds);
        stop("dropped");
    }
    pointAt("delete-1", 2.0);
    keys({ "Tab", "Right", "Right", "Space", "Left", "Esc", "Ctrl+Z", "Ctrl+Shift+Z", "H", "H" },
        1.5);
    click("chip-1-0"); // of a line that is not the last
    wait(0.1);
    stop("refused");
    game().rightClick({ .x = 0.8, .y = 0.5 });
    wait(1.0);
    stop("the other button");
    play("YRGRGRGR", "YB");
    click("chip-0-0");
    wait(0.1);
    stop("too long");
    wait(3.0);
    stop("later");
    compareWith("board");
}

TEST_F(Tours, ASolvedPuzzleAndTheLastOfAll)
{
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 5, .stage = 2 });
    lookAway();
    click("chip-1-0");
    for (const double seconds : { 0.3, 0.5, 0.8, 0.8, 1.4, 1.0, 2.0, 3.0 }) {
        wait(seconds);
        stop("solved");
    }
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 11, .stage = 10 });
    lookAway();
    click("chip-1-0");
    for (const double seconds : { 4.0, 8.0, 8.0 }) {
        wait(seconds);
        stop("the last one solved");
    }
    controller().closePage();
    wait(3.0);
    stop("the page closed");
    compareWith("solved");
}

TEST_F(Tours, OtherWindowsAndStones)
{
    play("YRRRGB", "YGRRB");
    lookAway();
    change([](progress::Settings& settings) { settings.woodToTheEdges = true; });
    wait(0.5);
    stop("wood to the edges");
    for (const auto& size : { platform::Size { .width = 1800, .height = 900 },
             platform::Size { .width = 900, .height = 1000 } }) {
        game().resize(size);
        wait(1.0);
        stop("another size");
    }
    for (const auto chips : { progress::Settings::Chips::Contrast,
             progress::Settings::Chips::Letters, progress::Settings::Chips::Patterns }) {
        change([&](progress::Settings& settings) { settings.chips = chips; });
        wait(0.5);
        stop("other stones");
    }
    change([](progress::Settings& settings) { settings.woodToTheEdges = false; });
    change([](progress::Settings& settings) {
        settings.tipSize = 2;
        settings.sayWhy = true;
    });
    pointAt("counter-par", 2.0);
    pointAt("button-movesbuttonoff", 2.0);
    click("chip-1-0");
    wait(0.3);
    stop("refused, with the reason");
    wait(3.0);
    drag("chip-1-0", "chip-4-0");
    wait(0.3);
    stop("dropped on a stone where no move goes");
    wait(3.0);
    lookAway();
    change([](progress::Settings& settings) { settings.answers = false; });
    wait(1.0);
    stop("without Answers");
    compareWith("windows");
}

} // namespace veyrand::test
