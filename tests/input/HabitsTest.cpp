#include "GameViewFixture.h"

#include <gmock/gmock.h>

namespace veyrand::input {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// Presses that do nothing unless the player has asked for more. Stone 0 of the last line, row 1, is
// a move; a click on it blocks for 0.75 s.
class HabitsTest : public GameViewTest {
protected:
    void allow(bool rememberPress, bool forgivingClicks)
    {
        view().setHabits([=] {
            return GameView::Habits { .rememberPress = rememberPress,
                .forgivingClicks = forgivingClicks };
        });
    }
    // A block that began long enough ago for a press not to be the second of two.
    void blockFirst()
    {
        click("chip-2-0");
        target().take();
        wait(0.5);
    }
    void nudge(const std::string& key)
    {
        press(centre(key));
        dragTo(offset(centre(key), 5.0, 0.0));
        release(offset(centre(key), 5.0, 0.0));
    }
};

} // namespace

TEST_F(HabitsTest, APressIntoABlockIsPlayedWhenTheBlockEnds)
{
    allow(true, false);
    blockFirst();
    click("chip-0-1");
    EXPECT_THAT(target().take(), IsEmpty());
    wait(0.5);
    EXPECT_THAT(target().take(), ElementsAre("click 1 0"));
    EXPECT_TRUE(blocked()) << "it blocks like any other";
}

TEST_F(HabitsTest, OnlyTheLastSuchPressIsPlayedAndOnlyIfItIsAMove)
{
    allow(true, false);
    blockFirst();
    target().moveColumn = 1;
    click("chip-1-1");
    click("chip-0-1");
    wait(1.0);
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(HabitsTest, TheSecondOfADoubleClickAndAButtonAreNotRemembered)
{
    allow(true, false);
    addButton("button-movesbutton", 0.2);
    click("chip-0-1");
    target().take();
    wait(0.2);
    click("chip-0-1");
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());

    blockFirst();
    click("button-movesbuttonon");
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(HabitsTest, APressThatWasCarriedElsewhereIsNotRemembered)
{
    allow(true, false);
    blockFirst();
    press(centre("chip-0-1"));
    dragTo(centre("chip-1-1"));
    release(centre("chip-1-1"));
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(HabitsTest, AnAnsweredPressForgetsTheLostOne)
{
    allow(true, false);
    blockFirst();
    press(centre("chip-0-1"));
    wait(1.0);
    view().cancelGesture();
    press(centre("chip-3-1"));
    release(centre("chip-3-1"));
    EXPECT_THAT(target().take(), ElementsAre("click 1 3"));
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(HabitsTest, WithoutTheWishALostPressStaysLost)
{
    allow(false, false);
    blockFirst();
    click("chip-0-1");
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(HabitsTest, AStoneLetGoOverItselfIsAClickOnlyForTheForgiving)
{
    allow(false, false);
    nudge("chip-0-1");
    EXPECT_THAT(target().take(), IsEmpty());
    allow(false, true);
    nudge("chip-0-1");
    EXPECT_THAT(target().take(), ElementsAre("click 1 0"));
    EXPECT_TRUE(blocked());
}

} // namespace veyrand::input
