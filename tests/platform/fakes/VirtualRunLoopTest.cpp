#include "platform/fakes/VirtualRunLoop.h"

#include "platform/RunLoopContract.h"

#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace veyrand::platform {

namespace {

class VirtualRunLoopHarness {
public:
    RunLoop& loop() { return m_loop; }
    void pass(double seconds) { m_loop.advance(seconds); }

private:
    VirtualRunLoop m_loop;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Virtual, RunLoopContract, VirtualRunLoopHarness);

TEST(VirtualRunLoop, TimeStandsStillUntilItIsMoved)
{
    VirtualRunLoop loop;
    bool ran = false;
    loop.performAfterDelay(0.0, [&] { ran = true; });
    EXPECT_EQ(loop.now(), 0.0);
    EXPECT_FALSE(ran);

    loop.advance(0.0); // moving it by nothing runs what is due now
    EXPECT_TRUE(ran);
    EXPECT_EQ(loop.now(), 0.0);
}

TEST(VirtualRunLoop, TheClockShowsACallItsOwnDueTime)
{
    VirtualRunLoop loop;
    std::vector<double> times;
    loop.performAfterDelay(0.5, [&] { times.push_back(loop.now()); });
    loop.performAfterDelay(0.25, [&] {
        times.push_back(loop.now());
        loop.performAfterDelay(0.125, [&] { times.push_back(loop.now()); });
    });
    loop.advance(10.0);
    EXPECT_EQ(times, (std::vector<double> { 0.25, 0.375, 0.5 }));
    EXPECT_EQ(loop.now(), 10.0);
}

TEST(VirtualRunLoop, ACallDueExactlyAtTheEndRuns)
{
    VirtualRunLoop loop;
    int count = 0;
    loop.performAfterDelay(0.75, [&] { ++count; });
    loop.performAfterDelay(0.750000001, [&] { ++count; });
    loop.advance(0.75);
    EXPECT_EQ(count, 1);
    loop.advance(0.000000001);
    EXPECT_EQ(count, 2);
}

// Ten tenths are not one in binary fractions; in nanoseconds they are.
TEST(VirtualRunLoop, ManySmallStepsAddUpToTheWhole)
{
    VirtualRunLoop loop;
    bool ran = false;
    loop.performAfterDelay(1.0, [&] { ran = true; });
    for (int step = 0; step < 9; ++step) {
        loop.advance(0.1);
    }
    EXPECT_FALSE(ran);
    loop.advance(0.1);
    EXPECT_TRUE(ran);
    EXPECT_EQ(loop.now(), 1.0);
}

TEST(VirtualRunLoop, TellsWhenTheNextCallIsDue)
{
    VirtualRunLoop loop;
    EXPECT_EQ(loop.nextDue(), std::nullopt);
    loop.performAfterDelay(2.0, [] {});
    loop.performAfterDelay(1.5, [] {});
    EXPECT_EQ(loop.nextDue(), 1.5);
    loop.advance(1.75);
    EXPECT_EQ(loop.nextDue(), 2.0);
    loop.advance(1.0);
    EXPECT_EQ(loop.nextDue(), std::nullopt);
}

TEST(VirtualRunLoop, TwoLoopsKnowNothingOfEachOther)
{
    VirtualRunLoop one;
    VirtualRunLoop two;
    std::string log;
    one.performAfterDelay(1.0, [&] { log += "one"; });
    two.performAfterDelay(1.0, [&] { log += "two"; });
    two.advance(1.0);
    EXPECT_EQ(log, "two");
    EXPECT_EQ(one.now(), 0.0);
}

TEST(DelayedCalls, RunsOneCallAtATimeAndNoneBeforeItsTime)
{
    DelayedCalls calls;
    std::string log;
    calls.add(20, [&] { log += 'b'; });
    calls.add(10, [&] { log += 'a'; });

    EXPECT_FALSE(calls.runNext(9));
    EXPECT_TRUE(calls.runNext(20));
    EXPECT_EQ(log, "a");
    EXPECT_TRUE(calls.runNext(20));
    EXPECT_EQ(log, "ab");
    EXPECT_FALSE(calls.runNext(std::numeric_limits<Nanoseconds>::max()));
}

TEST(DelayedCalls, ACallThatAddsAnotherAtTheSameInstantIsFollowedByIt)
{
    DelayedCalls calls;
    std::string log;
    calls.add(10, [&] {
        log += 'a';
        calls.add(10, [&] { log += 'c'; });
    });
    calls.add(10, [&] { log += 'b'; });
    while (calls.runNext(10)) { }
    EXPECT_EQ(log, "abc");
}

TEST(Time, SecondsRoundToTheNearestNanosecond)
{
    EXPECT_EQ(toNanoseconds(0.75), 750'000'000);
    EXPECT_EQ(toNanoseconds(0.1 + 0.2), 300'000'000);
    EXPECT_EQ(toNanoseconds(-0.5), -500'000'000);
    EXPECT_EQ(toSeconds(1'500'000'000), 1.5);
}

} // namespace veyrand::platform
