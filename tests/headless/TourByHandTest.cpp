#include "headless/KeyPlayer.h"
#include "headless/Tour.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"

#include <array>

namespace veyrand::test {

// What hands do on the board: point, touch, click and drag, the wrong way too.
class ToursByHand : public Tour {
protected:
    // Asked after every move; where they lead nowhere the board says why.
    void goAstray(const progress::Place& place, const std::vector<std::string>& clicks)
    {
        ASSERT_TRUE(controller().practice().play(place));
        wait(3.0);
        clickThrough(clicks);
    }
    void clickThrough(const std::vector<std::string>& clicks)
    {
        keys({ "N" }, 1.0);
        for (const std::string& chip : clicks) {
            if (game().centreOf(chip)) {
                click(chip);
                wait(4.0);
                stop(chip);
            }
        }
        controller().flow().returnToMenu();
        controller().sheets().close();
        wait(2.0);
    }
    // A drag or a click of a puzzle of somebody's own, after which no way leads on.
    void loseAColour(
        const char* root, const char* goal, const std::pair<const char*, const char*>& gesture)
    {
        ASSERT_EQ(controller().practice().open(play::codeOf(root, goal).value()), "");
        wait(3.0);
        controller().closePage();
        wait(2.0);
        lookAway();
        keys({ "N" }, 1.0);
        moveBy(gesture.first, gesture.second);
        clickThrough({}); // says no more
    }
    void moveBy(const char* from, const char* to)
    {
        if (game().centreOf(from) && game().centreOf(to)) {
            drag(from, to);
        }
        wait(4.0);
        stop(std::string(from) + " to " + to);
    }
};

class ToursOfABeginner : public Tour {
protected:
    ToursOfABeginner()
        : Tour(Options {})
    {
    }
};

TEST_F(ToursByHand, TipsOfEverythingOnTheBoard)
{
    wait(3.0);
    pointAtEverything("the title page");
    controller().flow().newClassicGame();
    wait(2.0);
    pointAtEverything("the question");
    controller().dialogues().dismiss();
    controller().flow().newEndlessGame();
    wait(2.0);
    controller().dialogues().dismiss();
    controller().flow().startEndlessGame();
    wait(4.0);
    pointAtEverything("an Endless puzzle");
    play("YRRRGB", "YB");
    click("chip-0-0");
    wait(3.0);
    pointAtEverything("a Classic puzzle");
    compareWith("tips");
}

TEST_F(ToursByHand, DeadEnds)
{
    lookAway();
    goAstray({ 1, 4 }, { "chip-1-0", "chip-1-1", "chip-0-2" });
    goAstray({ 2, 7 }, { "chip-0-0", "chip-1-1", "chip-0-2", "chip-1-3" });
    goAstray({ 3, 5 }, { "chip-1-0", "chip-2-1", "chip-0-2", "chip-0-3" });
    goAstray({ 4, 8 }, { "chip-2-0", "chip-1-1", "chip-3-2", "chip-0-3" });
    goAstray({ 5, 3 }, { "chip-0-0", "chip-0-1", "chip-0-2", "chip-0-3", "chip-0-4" });
    loseAColour("YRRR", "YRRRG", { "chip-1-0", "chip-3-0" });
    loseAColour("YGG", "YGGGG", { "chip-1-0", "chip-2-0" });
    loseAColour("BYBR", "BBRBR", { "chip-0-0", "chip-2-0" });
    compareWith("astray");
}

TEST_F(ToursByHand, Fingers)
{
    play("YRRRGB", "YGRRB");
    lookAway();
    const auto near = [&](const char* key) {
        const auto centre = game().centreOf(key).value_or(platform::Point {});
        return platform::Point { .x = centre.x + 0.012, .y = centre.y - 0.008 };
    };
    game().touch(near("chip-0-0"));
    wait(3.0);
    stop("a chip touched");
    game().touchDrag(near("chip-1-1"), near("chip-3-1"));
    wait(4.0);
    stop("a chip dragged");
    game().longPress(near("chip-1-0"));
    wait(1.0);
    stop("a long press");
    game().touch(near("chip-2-0"));
    wait(4.0);
    stop("put down");
    game().touch(near("delete-1"));
    wait(3.0);
    stop("a removal touched");
    game().touch(near("button-menubuttonon"));
    wait(4.0);
    stop("the menu");
    controller().flow().newClassicGame();
    wait(2.0);
    game().touch({ .x = 0.05, .y = 0.05 });
    wait(2.0);
    stop("beside the question");
    for (const std::string& key : table().keys()) {
        if (key.starts_with("button-")) {
            game().touch(near(key.c_str()));
            wait(2.0);
            stop("touched: " + key);
        }
    }
    compareWith("fingers");
}

TEST_F(ToursByHand, AFullBoardAndBack)
{
    play("YRRRRRRRRRRR", "YB");
    lookAway();
    constexpr std::array kGestures { std::pair("chip-1-0", "chip-3-0"),
        std::pair("chip-2-1", "chip-4-1"), std::pair("chip-3-2", "chip-5-2"),
        std::pair("chip-1-3", "chip-2-3"), std::pair("chip-3-4", "chip-3-4"),
        std::pair("chip-0-5", "chip-0-5"), std::pair("chip-4-6", "chip-4-6"),
        std::pair("chip-0-7", "chip-2-7"), std::pair("chip-2-8", "chip-4-8"),
        std::pair("chip-4-9", "chip-6-9"), std::pair("chip-6-10", "chip-8-10") };
    for (const auto& [from, to] : kGestures) {
        moveBy(from, to);
    }
    click("chip-1-11");
    wait(0.1);
    stop("full");
    click("delete-8");
    wait(0.2);
    stop("four lines taken back");
    wait(3.0);
    stop("and gone");
    keys({ "Ctrl+Z", "Ctrl+Z", "Ctrl+Shift+Z", "Ctrl+Z", "H", "H", "H", "Ctrl+Z" }, 3.0);
    compareWith("full");
}

TEST_F(ToursByHand, WithoutHurryAndWithoutMotion)
{
    change([](progress::Settings& settings) {
        settings.tempo = progress::Settings::Tempo::Off;
        settings.reducedMotion = progress::Settings::ReducedMotion::On;
        settings.liftByClick = true;
        settings.rememberPress = true;
        settings.forgivingClicks = true;
    });
    play("YRRRGB", "YGRRB");
    lookAway();
    for (const char* const chip : { "chip-1-0", "chip-3-0", "chip-0-1", "chip-1-1", "chip-2-1" }) {
        click(chip);
        wait(0.05);
        stop(chip);
        wait(1.0);
        stop("after it");
    }
    play("YR", "YRG");
    click("chip-1-0");
    for (const double seconds : { 0.5, 2.0, 4.0 }) {
        wait(seconds);
        stop("solved");
    }
    compareWith("still");
}

TEST_F(ToursOfABeginner, WhatThereIsBeforeAnythingIsSolved)
{
    wait(3.0);
    lookAway();
    auto& sheets = controller().sheets();
    for (const auto& open : { &controller::Sheets::openMap, &controller::Sheets::openDaily,
             &controller::Sheets::openStatistics, &controller::Sheets::openMine,
             &controller::Sheets::openEditor }) {
        (sheets.*open)();
        wait(1.0);
        stop(sheets.name());
        keys({ "Down", "Right", "Y", "Esc" });
        sheets.close();
    }
    progress::updatePlayerRecord(game().preferences(), progress::kDefaultPlayerName,
        { .level = 1, .stage = 3, .score = 40 });
    controller().flow().returnToMenu();
    wait(2.0);
    pointAtEverything("the title page of the third puzzle");
    compareWith("before");
}

TEST_F(ToursOfABeginner, TheFirstPuzzlesByKeys)
{
    wait(3.0);
    pointAtEverything("the title page");
    KeyPlayer player(game());
    ASSERT_TRUE(player.press("button-classicbuttonon"));
    for (int puzzle = 0; puzzle < 7; ++puzzle) {
        wait(3.0);
        stop("a puzzle begins");
        ASSERT_TRUE(player.solvePuzzle()) << puzzle;
        stop("solved");
    }
    compareWith("beginner");
}

} // namespace veyrand::test
