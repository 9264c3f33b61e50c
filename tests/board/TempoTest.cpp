#include "board/Tempo.h"

#include "board/Times.h"
#include "platform/fakes/VirtualRunLoop.h"

#include <gtest/gtest.h>
#include <string>

namespace veyrand::board {

namespace {

using Speed = Tempo::Speed;

Tempo at(Speed speed)
{
    Tempo tempo;
    tempo.setSpeed(speed);
    return tempo;
}

} // namespace

TEST(Tempo, TheUsualOneLeavesEveryTimeAsItIs)
{
    const double awkward = 0.1 + 0.2;
    EXPECT_EQ(kUsualTempo.delay(awkward), awkward);
    EXPECT_EQ(kUsualTempo.duration(awkward), awkward);
    EXPECT_EQ(kUsualTempo.celebration(awkward), awkward);
}

TEST(Tempo, FastTakesHalfTheTimeAndSlowTwice)
{
    EXPECT_EQ(at(Speed::Fast).delay(1.5), 0.75);
    EXPECT_EQ(at(Speed::Fast).duration(1.5), 0.75);
    EXPECT_EQ(at(Speed::Slow).delay(1.5), 3.0);
    EXPECT_EQ(at(Speed::Slow).duration(1.5), 3.0);
}

TEST(Tempo, OffShowsNothingOnItsWayAndKeepsTheOrder)
{
    const Tempo off = at(Speed::Off);
    EXPECT_EQ(off.duration(times::kSlide), 0.0);
    EXPECT_LT(off.delay(times::kNextPuzzle), 0.0001);

    platform::VirtualRunLoop loop;
    PacedRunLoop paced(loop, off);
    std::string order;
    paced.performAfterDelay(times::kBoardEmpties, [&order] { order += "c"; });
    paced.performAfterDelay(times::kGoalFlies, [&order] { order += "b"; });
    paced.performAfterDelay(times::kLeftBoardEmpties, [&order] { order += "a"; });
    EXPECT_EQ(order, "");
    loop.advance(0.0001);
    EXPECT_EQ(order, "abc");
}

TEST(Tempo, ASolvedPuzzleIsShownForASecondEvenWhenNothingElseTakesTime)
{
    const Tempo off = at(Speed::Off);
    const auto when = [&off](double time) { return off.delay(off.celebration(time)); };
    EXPECT_DOUBLE_EQ(when(times::kNextPuzzle), 1.0);
    EXPECT_LT(when(times::kDeleteButtonsGo), when(times::kGoalFlies));
    EXPECT_LT(when(times::kGoalFlies), when(times::kBoardEmpties));
    EXPECT_LT(when(times::kBoardEmpties), when(times::kNextPuzzle));
    EXPECT_LT(when(times::kNextPuzzle), when(times::kCelebrationBlock));
    EXPECT_NEAR(when(times::kDeleteButtonsGo), 1.0, 0.0001);
}

TEST(Tempo, WhatWasAskedForKeepsItsTime)
{
    platform::VirtualRunLoop loop;
    Tempo tempo = at(Speed::Slow);
    PacedRunLoop paced(loop, tempo);
    bool done = false;
    paced.performAfterDelay(1.0, [&done] { done = true; });
    tempo.setSpeed(Speed::Fast);
    loop.advance(1.5);
    EXPECT_FALSE(done);
    loop.advance(0.5);
    EXPECT_TRUE(done);
    EXPECT_EQ(paced.now(), 2.0);
}

} // namespace veyrand::board
