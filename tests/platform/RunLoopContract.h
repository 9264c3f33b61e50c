#pragma once

#include "platform/RunLoop.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace veyrand::platform {

// What every RunLoop promises, whatever drives its time. A program checks its own loop with
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Virtual, RunLoopContract, VirtualRunLoopHarness);
//
// where the harness owns one loop and offers
//
//     RunLoop& loop();
//     void pass(double seconds); // returns once that much of the loop's time has passed
//
// Real loops run these tests too, so the delays are short and only order and lower bounds are
// asserted: how late a call may come is the machine's business.
template <class Harness> class RunLoopContract : public ::testing::Test {
protected:
    RunLoop& loop() { return m_harness.loop(); }
    void pass(double seconds) { m_harness.pass(seconds); }

    // Asks for a call that leaves its number in the log.
    void callAfter(double seconds, int number)
    {
        loop().performAfterDelay(seconds, [this, number] { m_log.push_back(number); });
    }
    [[nodiscard]] const std::vector<int>& log() const { return m_log; }

    static constexpr double kShort = 0.002; // seconds
    static constexpr double kLong = 0.02;

private:
    std::vector<int> m_log;
    Harness m_harness; // last, so that no call outlives the log
};

TYPED_TEST_SUITE_P(RunLoopContract);

TYPED_TEST_P(RunLoopContract, TimeMovesForwardByAtLeastWhatPassed)
{
    const double before = this->loop().now();
    this->pass(this->kShort);
    EXPECT_GE(toNanoseconds(this->loop().now()), toNanoseconds(before + this->kShort));
}

TYPED_TEST_P(RunLoopContract, ACallWithoutDelayNeverRunsInsideTheRequest)
{
    this->callAfter(0.0, 1);
    EXPECT_TRUE(this->log().empty());
    this->pass(this->kShort);
    EXPECT_EQ(this->log(), (std::vector<int> { 1 }));
}

TYPED_TEST_P(RunLoopContract, ANegativeDelayIsNone)
{
    this->callAfter(0.0, 1);
    this->callAfter(-1.0, 2); // no way to the front of the queue
    EXPECT_TRUE(this->log().empty());
    this->pass(this->kShort);
    EXPECT_EQ(this->log(), (std::vector<int> { 1, 2 }));
}

TYPED_TEST_P(RunLoopContract, CallsRunInTheOrderInWhichTheyFallDue)
{
    this->callAfter(3 * this->kShort, 3);
    this->callAfter(this->kShort, 1);
    this->callAfter(2 * this->kShort, 2);
    this->pass(this->kLong);
    EXPECT_EQ(this->log(), (std::vector<int> { 1, 2, 3 }));
}

TYPED_TEST_P(RunLoopContract, EqualDelaysRunInTheOrderOfTheRequests)
{
    for (int number = 0; number < 20; ++number) {
        this->callAfter(this->kShort, number);
    }
    this->pass(this->kLong);
    ASSERT_EQ(this->log().size(), 20U);
    for (int number = 0; number < 20; ++number) {
        EXPECT_EQ(this->log()[static_cast<std::size_t>(number)], number);
    }
}

TYPED_TEST_P(RunLoopContract, NoCallRunsBeforeItsTime)
{
    const double due = this->loop().now() + this->kShort;
    double ranAt = 0.0;
    this->loop().performAfterDelay(this->kShort, [&] { ranAt = this->loop().now(); });
    this->pass(this->kLong);
    EXPECT_GE(toNanoseconds(ranAt), toNanoseconds(due));
}

TYPED_TEST_P(RunLoopContract, ACallMayAskForMore)
{
    this->loop().performAfterDelay(0.0, [this] {
        this->callAfter(0.0, 2);
        this->callAfter(this->kShort, 3);
    });
    this->callAfter(0.0, 1);
    this->pass(this->kLong);
    EXPECT_EQ(this->log(), (std::vector<int> { 1, 2, 3 }));
}

TYPED_TEST_P(RunLoopContract, ACallRunsOnceAndIsThenForgotten)
{
    const auto token = std::make_shared<int>(0);
    this->loop().performAfterDelay(0.0, [token] { ++*token; });
    EXPECT_EQ(token.use_count(), 2);
    this->pass(this->kShort);
    this->pass(this->kShort);
    EXPECT_EQ(*token, 1);
    EXPECT_EQ(token.use_count(), 1); // whatever a call holds on to is let go with it
}

REGISTER_TYPED_TEST_SUITE_P(RunLoopContract, TimeMovesForwardByAtLeastWhatPassed,
    ACallWithoutDelayNeverRunsInsideTheRequest, ANegativeDelayIsNone,
    CallsRunInTheOrderInWhichTheyFallDue, EqualDelaysRunInTheOrderOfTheRequests,
    NoCallRunsBeforeItsTime, ACallMayAskForMore, ACallRunsOnceAndIsThenForgotten);

} // namespace veyrand::platform
