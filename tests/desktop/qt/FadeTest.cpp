#include "desktop/qt/Fade.h"

#include <gtest/gtest.h>

namespace veyrand::desktop::qt {

TEST(Fade, RestsAtItsFirstLevel)
{
    const Fade fade(0.7);
    EXPECT_DOUBLE_EQ(fade.at(0.0), 0.7);
    EXPECT_TRUE(fade.isOver(0.0));
}

TEST(Fade, MovesEvenlyInTheTimeGiven)
{
    Fade fade(0.0);
    fade.to(1.0, 2.0, 10.0);
    EXPECT_DOUBLE_EQ(fade.at(10.0), 0.0);
    EXPECT_DOUBLE_EQ(fade.at(11.0), 0.5);
    EXPECT_FALSE(fade.isOver(11.9));
    EXPECT_TRUE(fade.isOver(12.0));
    EXPECT_DOUBLE_EQ(fade.at(99.0), 1.0);
}

TEST(Fade, TurnsRoundWithoutAJump)
{
    Fade fade(0.0);
    fade.to(1.0, 2.0, 0.0);
    fade.to(0.0, 1.0, 0.5);
    EXPECT_DOUBLE_EQ(fade.at(0.5), 0.25);
    EXPECT_DOUBLE_EQ(fade.at(1.0), 0.125);
    EXPECT_DOUBLE_EQ(fade.at(1.5), 0.0);
}

TEST(Duck, StepsBackByFourDecibelsAndComesForwardAgain)
{
    Duck duck;
    EXPECT_DOUBLE_EQ(duck.at(0.0), 1.0);
    EXPECT_TRUE(duck.isOver(0.0));
    duck.begin(4.5, 1.0);
    EXPECT_DOUBLE_EQ(duck.at(1.0), 1.0);
    EXPECT_NEAR(duck.at(3.0), 0.631, 0.001);
    EXPECT_NEAR(duck.at(5.4), 0.631, 0.001);
    EXPECT_FALSE(duck.isOver(5.4));
    EXPECT_GT(duck.at(6.2), 0.7);
    EXPECT_DOUBLE_EQ(duck.at(6.9), 1.0);
    EXPECT_TRUE(duck.isOver(6.9));
}

TEST(Duck, ASecondOneKeepsItBackForLonger)
{
    Duck duck;
    duck.begin(4.5, 0.0);
    const double before = duck.at(4.0);
    duck.begin(4.5, 4.0);
    EXPECT_NEAR(duck.at(4.0), before, 0.001);
    EXPECT_NEAR(duck.at(8.4), 0.631, 0.001);
    EXPECT_DOUBLE_EQ(duck.at(10.0), 1.0);
}

} // namespace veyrand::desktop::qt
