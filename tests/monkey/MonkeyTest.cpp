#include "monkey/Monkey.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>

namespace veyrand::test {

namespace {

constexpr int kEventsOfOne = 500;
constexpr int kUsualEvents = 20'000;

long numberIn(const char* variable, long usual)
{
    const char* const wanted = std::getenv(variable);
    return wanted != nullptr ? std::atol(wanted) : usual;
}

} // namespace

// Each monkey has a game of its own. What one finds is made small and written down.
TEST(Monkeys, FindNothing)
{
    const long events = numberIn("VEYRAND_MONKEY_EVENTS", kUsualEvents);
    const long first = numberIn("VEYRAND_MONKEY_SEED", 1);
    long done = 0;
    for (long number = first; done < events; ++number) {
        const int these = static_cast<int>(std::min<long>(kEventsOfOne, events - done));
        Monkey monkey(static_cast<std::uint32_t>(number));
        auto finding = monkey.play(these);
        if (finding) {
            const Finding small = shrunk(monkey.cage(), *std::move(finding));
            const std::string scenario = scenarioOf(monkey.cage(), small.events, small.fault);
            std::ofstream("monkey-" + std::to_string(number) + ".js") << scenario;
            FAIL() << "monkey " << number << ": " << small.fault << "\n" << scenario;
        }
        done += these;
    }
    std::cout << done << " events from seed " << first << " on, nothing found\n";
}

TEST(Monkeys, TheSameNumberDoesTheSame)
{
    Monkey one(3);
    Monkey other(3);
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
