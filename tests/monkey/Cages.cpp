#include "monkey/Cages.h"

#include "support/Replayed.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>

namespace veyrand::test {

namespace {

constexpr long kEventsOfOne = 500;

long numberIn(const char* variable, long usual)
{
    const char* const wanted = std::getenv(variable);
    return wanted != nullptr ? std::atol(wanted) : usual;
}

} // namespace

void letMonkeysPlay(long usualEvents, const MakeBody& makeBody)
{
    const long events = numberIn("VEYRAND_MONKEY_EVENTS", usualEvents);
    const long first = numberIn("VEYRAND_MONKEY_SEED", 1);
    long done = 0;
    unsigned long rests = 0;
    unsigned long solved = 0;
    for (long number = first; done < events; ++number) {
        const long these = std::min(kEventsOfOne, events - done);
        Monkey monkey(diceOf(static_cast<std::uint32_t>(number)), makeBody);
        if (auto finding = monkey.play(static_cast<int>(these))) {
            const Finding small = shrunk(monkey.cage(), *std::move(finding), makeBody);
            const std::string scenario = scenarioOf(monkey.cage(), small.events, small.fault);
            std::ofstream("monkey-" + std::to_string(number) + ".js") << scenario;
            FAIL() << small.fault << '\n'
                   << howToReplay("monkey", static_cast<std::uint32_t>(number)) << '\n'
                   << scenario;
        }
        done += these;
        rests += monkey.game().rests();
        solved += monkey.game().solved();
    }
    // Enough happened for the checks to mean something, unless it was one monkey alone.
    if (done > kEventsOfOne) {
        EXPECT_GE(rests, static_cast<unsigned long>(done) / 200);
        EXPECT_GE(solved, static_cast<unsigned long>(done) / 5000);
    }
    std::cout << done << " events from seed " << first << " on, nothing found; the board rested "
              << rests << " times, " << solved << " puzzles were solved\n";
}

} // namespace veyrand::test
