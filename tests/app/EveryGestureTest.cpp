#include "progress/PlayerKeys.h"
#include "progress/Settings.h"
#include "support/Places.h"
#include "support/PlayedGame.h"

#include <gtest/gtest.h>
#include <sstream>

// Every kind of gesture there is, each in a game of its own: something is seen at once, and the
// game itself never hears of it.

namespace veyrand::app {

namespace {

enum class Without { NothingIsSeen, SomethingIsSeen };

// One gesture, what leads up to it, and whether the game itself would show anything.
struct Gesture {
    const char* name;
    const char* root;
    std::function<void(VirtualGame&)> before;
    std::function<void(VirtualGame&)> make;
    Without answers = Without::NothingIsSeen;
};

platform::Point at(VirtualGame& game, const char* key)
{
    return game.centreOf(key).value();
}

void settle(VirtualGame& game)
{
    game.wait(3.0);
}

auto clicks(const char* key)
{
    return [key](VirtualGame& game) { game.click(at(game, key)); };
}

auto movesTo(const char* key)
{
    return [key](VirtualGame& game) { game.move(at(game, key)); };
}

// Comes to rest on the thing before, so that only the press is new.
auto pointedAt(const char* key)
{
    return [key](VirtualGame& game) {
        game.move(at(game, key));
        game.wait(2.0);
    };
}

auto drags(const char* from, const char* to)
{
    return [from, to](VirtualGame& game) {
        game.press(at(game, from));
        game.release(at(game, to));
    };
}

void makesALine(VirtualGame& game)
{
    clicks("chip-1-0")(game);
    settle(game);
}

constexpr platform::Point kEmptyPlace { .x = 1.2, .y = 0.4 };

// Twelve lines, none of them the goal.
void fillsTheBoard(VirtualGame& game)
{
    for (const auto& [from, to] :
        { std::pair("chip-1-0", "chip-3-0"), { "chip-2-1", "chip-4-1" }, { "chip-3-2", "chip-5-2" },
            { "chip-1-3", "chip-2-3" }, { "chip-3-4", "chip-3-4" }, { "chip-0-5", "chip-0-5" },
            { "chip-4-6", "chip-4-6" }, { "chip-0-7", "chip-2-7" }, { "chip-2-8", "chip-4-8" },
            { "chip-4-9", "chip-6-9" }, { "chip-6-10", "chip-8-10" } }) {
        drags(from, to)(game);
        settle(game);
    }
    ASSERT_EQ(game.controller().lineCount(), 12U);
}

const std::vector<Gesture>& gestures()
{
    static const std::vector<Gesture> kGestures {
        { "a click that is no move", "YRGR", pointedAt("chip-1-0"), clicks("chip-1-0") },
        { "a click on a line that is not the last", "YR",
            [](VirtualGame& game) {
                makesALine(game);
                pointedAt("chip-0-0")(game);
            },
            clicks("chip-0-0") },
        { "a line that would be too long", "YRGRGRGR", pointedAt("chip-0-0"), clicks("chip-0-0") },
        { "a click on a full board", "YRRRRRRRRRRR",
            [](VirtualGame& game) {
                fillsTheBoard(game);
                pointedAt("chip-0-11")(game);
            },
            clicks("chip-0-11") },
        { "a drag on a full board", "YRRRRRRRRRRR",
            [](VirtualGame& game) {
                fillsTheBoard(game);
                pointedAt("chip-0-11")(game);
            },
            drags("chip-0-11", "chip-1-11") },
        { "a drag in a line that is not the last", "YRRR",
            [](VirtualGame& game) {
                clicks("chip-3-0")(game);
                settle(game);
                pointedAt("chip-1-0")(game);
            },
            drags("chip-1-0", "chip-3-0") },
        { "a press into a block", "YRGR",
            [](VirtualGame& game) {
                clicks("chip-1-0")(game); // refused, and blocks for three quarters of a second
                game.move(at(game, "chip-3-0"));
                game.wait(0.45);
            },
            clicks("chip-3-0") },
        { "the pointer over a stone to click", "YR", [](VirtualGame&) {}, movesTo("chip-0-0") },
        { "the pointer over a stone to drag", "YRRR", [](VirtualGame&) {}, movesTo("chip-1-0") },
        { "a stone that is held", "YRRR", pointedAt("chip-1-0"),
            [](VirtualGame& game) { game.press(at(game, "chip-1-0")); } },
        { "a stone that is lifted", "YRRR", pointedAt("chip-1-0"),
            [](VirtualGame& game) {
                game.press(at(game, "chip-1-0"));
                game.move(kEmptyPlace);
            },
            Without::SomethingIsSeen },
        { "the pointer over a delete button", "YR", makesALine, movesTo("delete-1") },
        { "a drop on a stone that makes no move", "YRRR", pointedAt("chip-1-0"),
            drags("chip-1-0", "chip-2-0"), Without::SomethingIsSeen },
        { "a drop on another line", "YRRR",
            [](VirtualGame& game) {
                clicks("chip-3-0")(game);
                settle(game);
                pointedAt("chip-1-1")(game);
            },
            drags("chip-1-1", "chip-3-0"), Without::SomethingIsSeen },
        { "a move", "YRRR", pointedAt("chip-3-0"), clicks("chip-3-0"), Without::SomethingIsSeen },
    };
    return kGestures;
}

std::unique_ptr<VirtualGame> gameFor(const Gesture& gesture, platform::PreferenceRecord settings)
{
    VirtualGame::Options options;
    options.dataFolder = QString::fromStdString(test::dataFolder());
    options.screen = { .width = 720, .height = 450 };
    options.window = { 720, 450 };
    options.preferences.records[std::string(progress::kSettingsKey)] = std::move(settings);
    auto game = std::make_unique<VirtualGame>(options);
    game->launch();
    game->play({ .root = gesture.root, .goal = "YB", .par = 2, .level = 6, .stage = 2 });
    game->move({ .x = 0.05, .y = 0.05 });
    settle(*game);
    return game;
}

// Whether a twentieth of a second after the gesture anything looks another.
bool isSeen(const Gesture& gesture, bool answers)
{
    const auto game = gameFor(gesture, { { "Answers", answers } });
    gesture.before(*game);
    const QImage before = game->picture();
    gesture.make(*game);
    game->wait(0.05);
    return game->picture() != before;
}

// All that the game itself knows.
std::string dumpOf(VirtualGame& game)
{
    std::ostringstream dump;
    for (const std::string& key : game.gameData().gameObjects().keys()) {
        const auto record = game.gameData().gameObjects().objectForKey(key);
        dump << key << ' ' << record->imageName() << ' ' << record->x() << ' ' << record->y() << ' '
             << record->width() << ' ' << record->height() << ' ' << record->opacity() << ' '
             << record->visible() << ' ' << (record->text() ? record->text()->text : "") << '\n';
    }
    for (const std::string& sound : game.sounds().takePlayed()) {
        dump << sound << '\n';
    }
    const auto& block = game.game().view().block();
    dump << block.blockClick() << ' ' << block.delayUntil() << ' '
         << game.controller().messages().page() << ' ' << game.runLoop().now() << '\n';
    const auto saved
        = game.preferences().record(progress::playerRecordKey(progress::kDefaultPlayerName));
    for (const auto& [key, value] : saved.value_or(platform::PreferenceRecord {})) {
        dump << key << ' ';
        std::visit([&dump](const auto& plain) { dump << plain << '\n'; }, value);
    }
    return dump.str();
}

std::string played(const Gesture& gesture, bool answers)
{
    const auto game = gameFor(
        gesture, { { "Answers", answers }, { "SayWhy", answers }, { "WoodToTheEdges", answers } });
    std::string dump = dumpOf(*game);
    gesture.before(*game);
    dump += dumpOf(*game);
    gesture.make(*game);
    for (const double seconds : { 0.05, 0.3, 0.7, 3.0 }) {
        dump += dumpOf(*game);
        game->wait(seconds);
    }
    return dump + dumpOf(*game);
}

// A puzzle solved, the last of all or another, until long after.
std::string solved(int level, int stage, bool answers)
{
    const Gesture gesture { .name = "", .root = "YR", .before = {}, .make = {} };
    const auto game = gameFor(gesture, { { "Answers", answers } });
    game->play({ .root = "YR", .goal = "YRG", .par = 2, .level = level, .stage = stage });
    game->wait(1.0);
    clicks("chip-1-0")(*game);
    std::string dump;
    constexpr int kHalfSeconds = 40;
    for (int i = 0; i < kHalfSeconds; ++i) {
        game->wait(0.5);
        dump += dumpOf(*game);
    }
    game->key(QStringLiteral("Space"));
    game->wait(2.0);
    return dump + dumpOf(*game);
}

} // namespace

TEST(EveryGesture, IsAnsweredForTheEyeWithinATwentiethOfASecond)
{
    for (const Gesture& gesture : gestures()) {
        EXPECT_TRUE(isSeen(gesture, true)) << gesture.name;
    }
}

TEST(EveryGesture, ThatTheGameItselfDoesNotShowIsAnsweredByTheAnswersAlone)
{
    for (const Gesture& gesture : gestures()) {
        EXPECT_EQ(isSeen(gesture, false), gesture.answers == Without::SomethingIsSeen)
            << gesture.name;
    }
}

TEST(EveryGesture, LeavesTableSoundsTimesAndRecordAsTheyAreWithoutAnswers)
{
    for (const Gesture& gesture : gestures()) {
        EXPECT_EQ(played(gesture, true), played(gesture, false)) << gesture.name;
    }
}

TEST(EveryGesture, AndEverySolvedPuzzleIsTheSameWithoutAnswers)
{
    for (const auto& [level, stage] : { std::pair(1, 2), { 2, 10 }, { 4, 4 }, { 11, 10 } }) {
        EXPECT_EQ(solved(level, stage, true), solved(level, stage, false)) << level << '-' << stage;
    }
}

} // namespace veyrand::app
