#include "board/Times.h"
#include "faults/Visit.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace veyrand::test {

namespace {

constexpr double kDay = 86'400.0; // seconds

// What the visit comes to after each step, and what it leaves.
struct Outcome {
    std::vector<std::uint64_t> hashes;
    std::vector<std::string> standings;
    std::vector<std::string> told;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

using Meanwhile = std::function<void(headless::HeadlessGame& game, int step)>;

Outcome outcomeOf(const Meanwhile& meanwhile)
{
    const ScratchFolder scratch;
    const std::string folder = scratch.at("home");
    Visit::prepare(folder);
    Outcome outcome;
    {
        Visit visit(folder);
        for (int step = 0; step < Visit::kSteps; ++step) {
            // In the middle of what the step shows.
            visit.game().runLoop().performAfterDelay(
                board::times::kLongPress, [&] { meanwhile(visit.game(), step); });
            visit.step(step);
            outcome.hashes.push_back(visit.hash());
            outcome.standings.push_back(visit.standing());
        }
        visit.end();
        outcome.told = visit.told();
    }
    Visit next(folder);
    outcome.hashes.push_back(next.hash());
    outcome.standings.push_back(next.standing());
    return outcome;
}

} // namespace

// Somebody sets the clock, the battery of a clock is empty, or a computer wakes up in another year.
TEST(Time, TheCalendarMayJumpInTheMiddleOfEverything)
{
    const Outcome usual = outcomeOf([](headless::HeadlessGame&, int) {});
    ASSERT_TRUE(usual.told.empty());
    for (const std::int64_t days : { std::int64_t { -20'778 }, std::int64_t { -1 },
             std::int64_t { 1 }, std::int64_t { 30'000 } }) {
        SCOPED_TRACE(std::to_string(days) + " days");
        const Outcome outcome = outcomeOf([days](headless::HeadlessGame& game, int step) {
            game.calendar().setToday(
                headless::HeadlessGame::kUsualDay + (step % 2 == 0 ? days : 0));
        });
        EXPECT_TRUE(outcome == usual);
    }
}

// The lid is closed in the middle of an animation, and opened the next day.
TEST(Time, ADayMayPassInTheMiddleOfEverything)
{
    const Outcome usual = outcomeOf([](headless::HeadlessGame&, int) {});
    for (int asleep = 0; asleep < Visit::kSteps; ++asleep) {
        SCOPED_TRACE(std::string("in the middle of: ") + Visit::nameOf(asleep));
        const ScratchFolder scratch;
        Visit::prepare(scratch.at("home"));
        Visit visit(scratch.at("home"));
        for (int step = 0; step < Visit::kSteps; ++step) {
            visit.step(step, step == asleep ? kDay : 0.0);
            EXPECT_EQ(visit.hash(), usual.hashes.at(static_cast<std::size_t>(step)));
            EXPECT_EQ(visit.standing(), usual.standings.at(static_cast<std::size_t>(step)));
        }
        EXPECT_TRUE(visit.told().empty());
    }
}

} // namespace veyrand::test
