#pragma once

#include "platform/MotionWish.h"

#include <gtest/gtest.h>

namespace veyrand::platform {

// What every desktop's wish promises. A program checks its own with
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Noted, MotionWishContract, NotedMotionWishHarness);
//
// where the harness begins with a desktop that wishes nothing and offers
//
//     MotionWish& motionWish();
//     void wish(bool less); // returns once the port has heard of it
template <class Harness> class MotionWishContract : public ::testing::Test {
protected:
    MotionWish& motionWish() { return m_harness.motionWish(); }
    void wish(bool less) { m_harness.wish(less); }
    void listen()
    {
        motionWish().setListener([this] { ++m_timesTold; });
    }
    [[nodiscard]] int timesTold() const { return m_timesTold; }

private:
    Harness m_harness;
    int m_timesTold = 0;
};

TYPED_TEST_SUITE_P(MotionWishContract);

TYPED_TEST_P(MotionWishContract, NothingIsWishedUntilTheDesktopSaysSo)
{
    EXPECT_FALSE(this->motionWish().wantsLess());
    this->wish(true);
    EXPECT_TRUE(this->motionWish().wantsLess());
    this->wish(false);
    EXPECT_FALSE(this->motionWish().wantsLess());
}

TYPED_TEST_P(MotionWishContract, TheListenerHearsOfEveryChangeAndOfNothingElse)
{
    this->listen();
    this->wish(true);
    EXPECT_EQ(this->timesTold(), 1);
    this->wish(true);
    EXPECT_EQ(this->timesTold(), 1);
    this->wish(false);
    EXPECT_EQ(this->timesTold(), 2);
}

TYPED_TEST_P(MotionWishContract, AListenerThatIsTakenBackHearsNothing)
{
    this->listen();
    this->motionWish().setListener({});
    this->wish(true);
    EXPECT_EQ(this->timesTold(), 0);
}

REGISTER_TYPED_TEST_SUITE_P(MotionWishContract, NothingIsWishedUntilTheDesktopSaysSo,
    TheListenerHearsOfEveryChangeAndOfNothingElse, AListenerThatIsTakenBackHearsNothing);

} // namespace veyrand::platform
