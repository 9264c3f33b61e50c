#include "monkey/Cages.h"

#include <gtest/gtest.h>

namespace veyrand::test {

TEST(Monkeys, FindNothing)
{
    constexpr long kEvents = 200'000;
    letMonkeysPlay(kEvents, bodyWithoutWindow);
}

TEST(Monkeys, TheSameNumberDoesTheSame)
{
    Monkey one(diceOf(3));
    Monkey other(diceOf(3));
    EXPECT_FALSE(one.play(200).has_value());
    EXPECT_FALSE(other.play(200).has_value());
    EXPECT_EQ(one.cage().score, other.cage().score);
}

TEST(Monkeys, WhatTheyDidIsAScenario)
{
    const Cage cage { .seed = 7, .level = 2, .stage = 3, .score = 40, .knowsHints = true };
    const std::string text = scenarioOf(cage,
        { { .kind = Event::Kind::Click, .key = "chip-0-0" },
            { .kind = Event::Kind::Drag, .key = "chip-1-0", .there = { .x = 0.5, .y = 0.25 } },
            { .kind = Event::Kind::Wait, .seconds = 2.5 }, { .kind = Event::Kind::Kill } },
        "there are stray chips");
    EXPECT_EQ(text.substr(0, text.find('\n')), "// Found by a monkey: there are stray chips.");
    EXPECT_NE(text.find("game.click(\"chip-0-0\");\ngame.drag(\"chip-1-0\", [0.5, 0.25]);\n"
                        "game.wait(2.5);\ngame.kill();\ngame.restart();\n"),
        std::string::npos)
        << text;
}

} // namespace veyrand::test
