#include "input/InputBlock.h"

#include "platform/fakes/VirtualRunLoop.h"
#include "support/Instant.h"

#include <gtest/gtest.h>

namespace veyrand::input {

using test::kInstant;

namespace {

class InputBlockTest : public ::testing::Test {
protected:
    InputBlock& block() { return m_block; }
    [[nodiscard]] int ended() const { return m_ended; }
    void wait(double seconds) { m_runLoop.advance(seconds); }
    [[nodiscard]] bool isIdle() const { return !m_runLoop.nextDue().has_value(); }

private:
    int m_ended = 0;
    platform::VirtualRunLoop m_runLoop;
    InputBlock m_block { m_runLoop, [this] { ++m_ended; } };
};

} // namespace

TEST_F(InputBlockTest, ABlockOfThreeQuartersLastsExactlyThat)
{
    // At a time that binary fractions do not hold.
    wait(0.1);
    wait(0.2);
    block().startBlockClick(0.75);
    wait(0.75 - kInstant);
    EXPECT_TRUE(block().blockClick());
    EXPECT_EQ(ended(), 0);
    wait(kInstant);
    EXPECT_FALSE(block().blockClick());
    EXPECT_EQ(ended(), 1);
    EXPECT_TRUE(isIdle());
}

TEST_F(InputBlockTest, ALengthenedBlockIsPolledEveryTenthOfASecondUntilItsTimeHasPassed)
{
    block().startBlockClick(0.75);
    block().increaseDelay(0.75); // until 1.5; polled at 0.75, 0.85 ... 1.45, 1.55
    wait(1.5);
    EXPECT_TRUE(block().blockClick());
    wait(0.05 - kInstant);
    EXPECT_TRUE(block().blockClick());
    wait(kInstant);
    EXPECT_FALSE(block().blockClick());
    EXPECT_EQ(ended(), 1);
    EXPECT_TRUE(isIdle());
}

TEST_F(InputBlockTest, ALongerBlockIsNotCutShortByTheEndOfAShorterOne)
{
    block().startBlockClick(0.5);
    block().startBlockClick(7.0);
    wait(6.9);
    EXPECT_TRUE(block().blockClick());
    wait(0.1);
    EXPECT_FALSE(block().blockClick());
}

TEST_F(InputBlockTest, TheTimeAloneBlocksNothing)
{
    block().setDelay(0.75);
    EXPECT_FALSE(block().blockClick());
    EXPECT_TRUE(isIdle());
    block().increaseDelay(0.75);
    block().blockAndPollAfter(0.75);
    EXPECT_EQ(block().delayUntil(), 1.5);
    EXPECT_TRUE(block().blockClick());
}

} // namespace veyrand::input
