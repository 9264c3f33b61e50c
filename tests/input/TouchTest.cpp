#include "input/Touch.h"

#include "GameViewFixture.h"

#include <gmock/gmock.h>

namespace veyrand::input {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A view of a phone's size, 390 points high: a chip is 29 points wide, less than a finger.
class TouchTest : public GameViewTest {
protected:
    TouchTest()
    {
        layers().fitTo({ .width = 624, .height = 390 });
        addImage("delete-1", 0.645, 0.875, 0.043);
    }

    [[nodiscard]] platform::Point at(const std::string& key, double x = 0.0, double y = 0.0)
    {
        const platform::RectF rect = layers().layerForKey(key)->rectInRoot();
        return { .x = static_cast<double>(rect.x + rect.width / 2.0F) + x,
            .y = static_cast<double>(rect.y + rect.height / 2.0F) + y };
    }
    void tap(platform::Point place)
    {
        m_touch.began(place);
        m_touch.ended(place);
    }
    Touch& touch() { return m_touch; }

private:
    Touch m_touch { view(), layers(), pointer() };
};

TEST_F(TouchTest, ATapReachesACentreThatIsNearEnough)
{
    EXPECT_EQ(touch().keyReached(at("chip-3-1", 21.5, 0.0)), "chip-3-1");
    EXPECT_EQ(touch().keyReached(at("chip-3-1", 22.5, 0.0)), "");
    tap(at("chip-3-1", 21.5, 0.0));
    EXPECT_THAT(target().take(), ElementsAre("click 1 3"));
}

TEST_F(TouchTest, TheNearerCentreWins)
{
    EXPECT_EQ(touch().keyReached(at("chip-0-1", 13.0, 0.0)), "chip-0-1");
    EXPECT_EQ(touch().keyReached(at("chip-0-1", 17.0, 0.0)), "chip-1-1");
}

TEST_F(TouchTest, ARemovalNeverWinsOverAChip)
{
    // The two centres are 29 points apart.
    EXPECT_EQ(touch().keyReached(at("delete-1")), "delete-1");
    EXPECT_EQ(touch().keyReached(at("delete-1", 6.0, 0.0)), "delete-1");
    EXPECT_EQ(touch().keyReached(at("delete-1", 8.0, 0.0)), "chip-0-1");
}

TEST_F(TouchTest, ARemovalIsReachedWhereChipsAreSmallerThanAFinger)
{
    // A phone held upright: a chip lies 18 points from the removal.
    layers().fitTo({ .width = 390, .height = 770 });
    EXPECT_EQ(touch().keyReached(at("delete-1")), "delete-1");
    EXPECT_EQ(touch().keyReached(at("delete-1", 4.0, 0.0)), "delete-1");
    EXPECT_EQ(touch().keyReached(at("delete-1", 6.0, 0.0)), "chip-0-1");
}

TEST_F(TouchTest, AFingerThatTremblesClicksAllTheSame)
{
    touch().began(at("chip-0-1"));
    touch().moved(at("chip-0-1", 5.0, 0.0));
    touch().ended(at("chip-0-1", 5.0, 0.0));
    EXPECT_THAT(target().take(), ElementsAre("click 1 0"));
}

TEST_F(TouchTest, AFingerDragsFromChipToChip)
{
    touch().began(at("chip-3-1"));
    touch().moved(at("chip-1-1"));
    touch().ended(at("chip-1-1", 9.0, 9.0));
    EXPECT_THAT(target().take(), ElementsAre("drag 1 3 to 1 1"));
}

TEST_F(TouchTest, ALongPressLiftsAndTheNextTapDropsOrPutsBack)
{
    for (const bool onTarget : { true, false }) {
        touch().began(at("chip-3-1"));
        wait(0.49);
        EXPECT_EQ(view().keyLifted(), "");
        wait(0.01);
        EXPECT_EQ(view().keyLifted(), "chip-3-1");
        touch().ended(at("chip-3-1"));
        EXPECT_EQ(view().keyLifted(), "chip-3-1");
        tap(at(onTarget ? "chip-1-1" : "chip-2-1"));
        EXPECT_EQ(view().keyLifted(), "");
    }
    EXPECT_THAT(target().take(), ElementsAre("drag 1 3 to 1 1"));
}

TEST_F(TouchTest, AFingerThatMovedThreePointsDragsInsteadOfLifting)
{
    touch().began(at("chip-3-1"));
    wait(0.3);
    touch().moved(at("chip-3-1", 3.0, 0.0));
    wait(0.3);
    EXPECT_EQ(view().keyLifted(), "");
    EXPECT_EQ(view().keyDragged(), "chip-3-1");
}

TEST_F(TouchTest, ALiftedChipThatIsCarriedOnIsDroppedWhereTheFingerLeaves)
{
    touch().began(at("chip-3-1"));
    wait(0.5);
    touch().moved(at("chip-1-1"));
    touch().ended(at("chip-1-1"));
    EXPECT_EQ(view().keyLifted(), "");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 3 to 1 1"));
}

TEST_F(TouchTest, AMousePressedLongLiftsOnlyWhenThePlayerWantsIt)
{
    const auto longPress = [this] {
        press(at("chip-3-1"));
        wait(0.6);
        const std::string lifted = view().keyLifted();
        view().cancelGesture();
        return lifted;
    };
    EXPECT_EQ(longPress(), "");
    view().setHabits([] { return GameView::Habits { .liftByClick = true }; });
    EXPECT_EQ(longPress(), "chip-3-1");
}

TEST_F(TouchTest, AFingerThatIsLiftedElsewhereHasDraggedThere)
{
    touch().began(at("chip-0-1"));
    touch().ended(at("chip-2-1"));
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 2"));
}

TEST_F(TouchTest, ACancelledTouchIsNone)
{
    touch().began(at("chip-3-1"));
    touch().cancelled();
    touch().ended(at("chip-3-1"));
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(TouchTest, NothingIsUnderAFingerThatHasGone)
{
    tap(at("chip-3-1"));
    EXPECT_EQ(pointer().position(), std::nullopt);
    touch().began(at("chip-3-1"));
    ASSERT_NE(pointer().position(), std::nullopt);
    touch().cancelled();
    EXPECT_EQ(pointer().position(), std::nullopt);
    EXPECT_EQ(view().keyUnderPointer(), "");
}

} // namespace veyrand::input
