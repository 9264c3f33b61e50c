#include "controller/Sentences.h"

#include <gtest/gtest.h>

namespace veyrand::controller::sentences {

TEST(Sentences, ChipsAreReadInRuns)
{
    EXPECT_EQ(chips("YRRR"), "yellow, three reds");
    EXPECT_EQ(chips("BGGB"), "blue, two greens, blue");
    EXPECT_EQ(chips("RRRRRRRRRRRR"), "twelve reds");
}

TEST(Sentences, LinesAreCountedAsMovesAre)
{
    EXPECT_EQ(line(0, "YR"), "start line: yellow, red");
    EXPECT_EQ(line(3, "YR"), "line 3: yellow, red");
    EXPECT_EQ(chipInLine('Y', 0, 0), "yellow, start line, place 1");
}

TEST(Sentences, ParIsFarNearOrPassed)
{
    EXPECT_EQ(toPar(2), "Two moves to go to par.");
    EXPECT_EQ(toPar(1), "One move to go to par.");
    EXPECT_EQ(toPar(0), "Par is used up.");
    EXPECT_EQ(toPar(-1), "One move over par.");
}

TEST(Sentences, ASolvedPuzzleTellsItsPoints)
{
    EXPECT_EQ(solved(150, 0), "Solved at par: 150 points.");
    EXPECT_EQ(solved(130, 2), "Solved two moves over par: 130 points.");
    EXPECT_EQ(solved(160, -1), "Solved one move under par: 160 points.");
}

TEST(Sentences, AMessageEndsItsHeadingAsASentence)
{
    EXPECT_EQ(message("How to Play", "Click."), "How to Play. Click.");
    EXPECT_EQ(message("Goal!", ""), "Goal!");
    EXPECT_EQ(message("", "Click."), "Click.");
}

TEST(Sentences, ADifferenceBeginsWhereTheLinesPart)
{
    EXPECT_EQ(difference("YR", "YR"), "The line is the goal.");
    EXPECT_EQ(difference("YRG", "YRB"),
        "The first two chips are the same. Then the line has green; the goal has blue.");
    EXPECT_EQ(difference("YR", "YRGG"),
        "The first two chips are the same. Then the line has nothing more; the goal has two "
        "greens.");
    EXPECT_EQ(difference("R", "Y"),
        "The first chips differ. Then the line has red; the goal has yellow.");
}

} // namespace veyrand::controller::sentences
