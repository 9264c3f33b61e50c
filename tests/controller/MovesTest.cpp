#include "support/HeadlessPlay.h"
#include "support/Instant.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using test::kInstant;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

class MovesTest : public test::HeadlessPlay {
protected:
    // YGG doubles to YGGGG, whose greens vanish to YGG again, as often as there is to play.
    void playUpTo(std::size_t count)
    {
        for (auto row = lines().size() - 1; row + 1 < count; ++row) {
            const std::string last = std::to_string(row);
            if (lines().back() == "YGG") {
                click("chip-0-" + last);
            } else {
                drag("chip-1-" + last, "chip-2-" + last);
            }
            settle();
        }
        ASSERT_EQ(lines().size(), count);
        sounds();
    }
    // Twelve lines, the last of them YGGGG.
    void playToTwelveLines(const std::string& goal)
    {
        play("YGG", goal);
        playUpTo(12);
    }
    // A refused click sounds "No", adds no line and leaves the board as it is.
    void expectRefused(const std::string& key)
    {
        const auto linesBefore = lines();
        const auto keysBefore = table().keys();
        click(key);
        EXPECT_THAT(sounds(), ElementsAre("No")) << key;
        EXPECT_EQ(lines(), linesBefore);
        EXPECT_EQ(table().keys(), keysBefore);
        settle();
        EXPECT_EQ(table().keys(), keysBefore);
    }
    controller::GameController& controller() { return game().controller(); }
};

} // namespace

TEST_F(MovesTest, TheYellowOfYrDoublesEvenAtTheLowestLevel)
{
    play(at(1, 1, "YR", "YB"));
    click("chip-0-0");
    EXPECT_THAT(lines(), ElementsAre("YR", "YRR"));
    EXPECT_THAT(sounds(), ElementsAre("Marble"));
    settle();
    EXPECT_EQ(row(1), "YRR");
}

TEST_F(MovesTest, TheYellowOfAOneChipLineIsRefused)
{
    play("Y", "YB");
    expectRefused("chip-0-0");
}

TEST_F(MovesTest, ARedAtTheEndAddsAGreenAndARedElsewhereIsRefused)
{
    play("YRR", "YB");
    expectRefused("chip-1-0");
    click("chip-2-0");
    EXPECT_THAT(lines(), ElementsAre("YRR", "YRRG"));
}

TEST_F(MovesTest, AMoveThatIsNotOpenYetIsRefused)
{
    play(at(1, 7, "YRRR", "YB"));
    drag("chip-1-0", "chip-3-0");
    EXPECT_THAT(sounds(), ElementsAre("Click", "No")); // it was offered all the same
    EXPECT_THAT(lines(), ElementsAre("YRRR"));
}

TEST_F(MovesTest, OnlyTheLastLineCanBePlayed)
{
    play("YR", "YB");
    click("chip-0-0");
    settle();
    sounds();
    expectRefused("chip-0-0");
    expectRefused("chip-1-0");
}

TEST_F(MovesTest, ElevenChipsFromADoublingAreAcceptedAndThirteenRefused)
{
    play("YRRRRR", "YB");
    click("chip-0-0");
    EXPECT_EQ(lines().back(), "YRRRRRRRRRR");
    settle();
    EXPECT_EQ(row(1), "YRRRRRRRRRR");
    play("YRRRRRR", "YB");
    expectRefused("chip-0-0");
}

TEST_F(MovesTest, TwelveChipsAreTheMost)
{
    play("YRRRRRRRRRR", "YB");
    click("chip-10-0");
    EXPECT_EQ(lines().back(), "YRRRRRRRRRRG");
    settle();
    EXPECT_EQ(row(1), "YRRRRRRRRRRG");
    play("YGGRRRRRRRRR", "YB");
    expectRefused("chip-11-0");
    expectRefused("chip-1-0");
}

// A goal of thirteen chips would be refused too: the length is tested before the goal.
TEST_F(MovesTest, ALineTooLongIsRefusedEvenIfItIsTheGoal)
{
    play("YRRRRRRRRRRR", "YRRRRRRRRRRRG");
    expectRefused("chip-11-0");
}

TEST_F(MovesTest, WithTwelveLinesAClickThatMissesTheGoalIsRefused)
{
    playToTwelveLines("YB");
    ASSERT_THAT(lines(), SizeIs(12));
    expectRefused("chip-0-11");
    expectRefused("chip-1-11");
    EXPECT_THAT(lines(), SizeIs(12));
}

TEST_F(MovesTest, WithTwelveLinesAClickThatYieldsTheGoalIsTheThirteenth)
{
    playToTwelveLines("YGGGGGGGG");
    click("chip-0-11");
    EXPECT_THAT(lines(), SizeIs(13));
    EXPECT_THAT(sounds(), ElementsAre("Marble", "CymbalRoll"));
}

TEST_F(MovesTest, FromTwelveLinesOnNothingCanBeDragged)
{
    playToTwelveLines("YB");
    EXPECT_EQ(controller().areasToTrack(11, 1), std::nullopt);
    press("chip-1-11");
    move("chip-2-11");
    EXPECT_THAT(dragImages(), IsEmpty());
    release("chip-2-11");
    EXPECT_THAT(lines(), SizeIs(12));
    EXPECT_THAT(sounds(), IsEmpty());
    EXPECT_FALSE(blocked());
}

TEST_F(MovesTest, WithElevenLinesADragStillMakesTheTwelfth)
{
    play("YGGGG", "YB");
    playUpTo(11);
    ASSERT_EQ(lines().back(), "YGGGG");
    drag("chip-3-10", "chip-4-10");
    EXPECT_THAT(lines(), SizeIs(12));
}

// The handler of drops accepts what the view never starts: one line more.
TEST_F(MovesTest, OnThirteenLinesEveryGestureIsRefused)
{
    playToTwelveLines("YGGGGGGGG");
    EXPECT_TRUE(controller().rowToDrag() == 11U);
    click("chip-0-11");
    ASSERT_THAT(lines(), SizeIs(13));
    sounds();
    EXPECT_EQ(controller().areasToTrack(12, 1), std::nullopt);
    controller().mouseClick({}, 12, 0);
    controller().mouseClick({}, 12, 1);
    EXPECT_FALSE(controller().mouseDrag({}, 12, 1, 12, 2));
    EXPECT_THAT(sounds(), ElementsAre("No", "No", "No"));
    EXPECT_THAT(lines(), SizeIs(13));
}

TEST_F(MovesTest, WithTwelveLinesTheDropHandlerItselfStillAcceptsOnlyTheGoal)
{
    playToTwelveLines("YB");
    EXPECT_FALSE(controller().mouseDrag({}, 11, 1, 11, 2));
    EXPECT_THAT(lines(), SizeIs(12));
    playToTwelveLines("YGRG"); // never reached
    sounds();
    EXPECT_FALSE(controller().mouseDrag({}, 11, 0, 10, 2)); // another row
    EXPECT_THAT(sounds(), ElementsAre("No"));
}

TEST_F(MovesTest, EitherBlueDroppedOnTheOtherYieldsTheSame)
{
    for (const auto& [from, to] :
        { std::pair("chip-1-0", "chip-4-0"), std::pair("chip-4-0", "chip-1-0") }) {
        play("YBRGB", "YR");
        drag(from, to);
        EXPECT_THAT(lines(), ElementsAre("YBRGB", "YBB"));
        settle();
        EXPECT_EQ(row(1), "YBB");
    }
}

TEST_F(MovesTest, EitherEndOfThreeRedsYieldsTheSameShownFromTheFirst)
{
    for (const auto& [from, to] :
        { std::pair("chip-1-0", "chip-3-0"), std::pair("chip-3-0", "chip-1-0") }) {
        play("YRRRG", "YB");
        drag(from, to);
        EXPECT_THAT(lines(), ElementsAre("YRRRG", "YGG"));
        wait(0.75);
        // The outer reds slide onto the middle one.
        EXPECT_EQ(object("chip-1-1")->x(), board::xPositionForColumn(2));
        EXPECT_EQ(object("chip-3-1")->x(), board::xPositionForColumn(2));
        settle();
        EXPECT_EQ(row(1), "YGG");
    }
}

TEST_F(MovesTest, ARefusedDropSoundsNoAndChangesNothing)
{
    play("YRRG", "YB");
    drag("chip-1-0", "chip-2-0");
    EXPECT_THAT(sounds(), ElementsAre("No"));
    EXPECT_THAT(lines(), SizeIs(1));
    EXPECT_FALSE(blocked());
}

// The block of a click lasts 0.75 s; a move lengthens it. It is polled every tenth of a second.
TEST_F(MovesTest, AMoveBlocksInputUntilItsAnimationIsOver)
{
    play("YGRRRR", "YB");
    click("chip-0-0");
    wait(1.5 - kInstant);
    EXPECT_TRUE(blocked());
    wait(0.1);
    EXPECT_FALSE(blocked());
    drag("chip-2-1", "chip-4-1");
    EXPECT_EQ(lines().back(), "YGGRGRRRR");
    wait(2.25 - kInstant);
    EXPECT_TRUE(blocked());
    wait(0.1);
    EXPECT_FALSE(blocked());
}

TEST_F(MovesTest, ARefusedClickBlocksForItsThreeQuartersOnly)
{
    play("YRG", "YB");
    click("chip-1-0");
    wait(0.75 - kInstant);
    EXPECT_TRUE(blocked());
    wait(kInstant);
    EXPECT_FALSE(blocked());
}

TEST_F(MovesTest, ABlueOnItsNeighbourFallsToTheFirstMatchAndTheRowEndsAsTheLineReads)
{
    play("YBRGBB", "YR");
    drag("chip-4-0", "chip-5-0");
    EXPECT_THAT(lines(), ElementsAre("YBRGBB", "YBBB"));
    EXPECT_THAT(sounds(), ElementsAre("Marble")); // no "Click": it is no target
    wait(1.25);
    EXPECT_EQ(row(1), "YBBB");
    EXPECT_THAT(test::keysFrom(table(), "chip-"), SizeIs(6 + 4));
    settle();
    EXPECT_EQ(row(1), "YBBB");
}

TEST_F(MovesTest, ABlueOnItsNeighbourWithNoMatchAtAllIsRefused)
{
    play("YBB", "YR");
    drag("chip-1-0", "chip-2-0");
    EXPECT_THAT(lines(), ElementsAre("YBB"));
    EXPECT_THAT(sounds(), ElementsAre("No"));
    EXPECT_FALSE(blocked());
}

TEST_F(MovesTest, EffectsSwitchedOffPlayNothing)
{
    ASSERT_TRUE(game().menu().trigger("Sound Effects"));
    play("YRG", "YB");
    click("chip-1-0");
    settle();
    click("chip-0-0");
    EXPECT_THAT(lines(), SizeIs(2));
    EXPECT_THAT(sounds(), IsEmpty());
}

TEST_F(MovesTest, ARowsLengthIsItsLines)
{
    play("YRG", "YB");
    click("chip-0-0");
    EXPECT_EQ(controller().lengthOfRow(0), 3U);
    EXPECT_EQ(controller().lengthOfRow(1), 5U);
    EXPECT_EQ(controller().rowToDrag(), 1U);
}

TEST_F(MovesTest, OnTheTitlePageThereIsNoRowToDrag)
{
    EXPECT_EQ(controller().rowToDrag(), std::nullopt);
    EXPECT_EQ(controller().areasToTrack(0, 0), std::nullopt);
    EXPECT_EQ(controller().lineCount(), 0U);
}

} // namespace veyrand::controller
