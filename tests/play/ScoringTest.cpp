#include "play/Scoring.h"

#include <gtest/gtest.h>

namespace veyrand::play {

TEST(Scoring, ClassicStartsFromOneHundredAndFiftyAndEachLineBeyondParCostsTen)
{
    EXPECT_EQ(pointsForSolving(false, 2, 2), 150);
    EXPECT_EQ(pointsForSolving(false, 2, 3), 140);
    EXPECT_EQ(pointsForSolving(false, 5, 13), 70);
    EXPECT_EQ(pointsForSolving(false, 5, 4), 160); // under par
}

TEST(Scoring, EndlessStartsFromTenAMoveOfPar)
{
    EXPECT_EQ(pointsForSolving(true, 6, 6), 50);
    EXPECT_EQ(pointsForSolving(true, 6, 8), 30);
    EXPECT_EQ(pointsForSolving(true, 2, 13), -100);
}

} // namespace veyrand::play
