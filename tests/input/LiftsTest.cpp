#include "GameViewFixture.h"
#include "board/ElementKey.h"

#include <gmock/gmock.h>

namespace veyrand::input {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// A chip in the hand with no button held: of the last line, row 1, each may be dropped on stone 1.
class LiftsTest : public GameViewTest {
protected:
    void liftByClicks()
    {
        view().setHabits([] { return GameView::Habits { .liftByClick = true }; });
    }
};

} // namespace

TEST_F(LiftsTest, AFingerThatRestsOnAButtonLiftsNothing)
{
    const std::string key = board::deleteButtonKey(1);
    addImage(key, 1.2, 0.5, 0.05);
    view().mouseDown({ .location = centre(key), .isTouch = true });
    wait(2.0);
    EXPECT_EQ(view().keyLifted(), "");
    view().mouseUp({ .location = centre(key), .isTouch = true });
    EXPECT_THAT(target().take(), ElementsAre("delete 1"));
}

TEST_F(LiftsTest, AKeyLiftsNothingWhileTheBoardMoves)
{
    view().block().startBlockClick(0.75);
    EXPECT_FALSE(view().liftByKey("chip-0-1"));
    EXPECT_EQ(view().keyLifted(), "");
    wait(1.0);
    EXPECT_TRUE(view().liftByKey("chip-0-1"));
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
}

TEST_F(LiftsTest, AKeyThatLiftsSendsTheNoteAway)
{
    view().setOverlay(Overlay::Note);
    target().whenAsked = [this] { view().setOverlay(Overlay::None); };
    EXPECT_TRUE(view().liftByKey("chip-0-1"));
    EXPECT_THAT(target().take(), ElementsAre("message"));
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
}

TEST_F(LiftsTest, ANoteThatMakesRoomForAPageLeavesTheChipInItsPlace)
{
    view().setOverlay(Overlay::Note);
    target().whenAsked = [this] { view().setOverlay(Overlay::Page); };
    EXPECT_FALSE(view().liftByKey("chip-0-1"));
    EXPECT_EQ(view().keyLifted(), "");
}

TEST_F(LiftsTest, ADropIntoABlockLeavesTheChipInTheHand)
{
    view().drop("chip-1-1");
    EXPECT_THAT(target().take(), IsEmpty()) << "nothing is in the hand";
    ASSERT_TRUE(view().liftByKey("chip-0-1"));
    view().block().startBlockClick(0.75);
    view().drop("chip-1-1");
    EXPECT_THAT(target().take(), IsEmpty());
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
    wait(1.0);
    view().drop("chip-1-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 1"));
    EXPECT_EQ(view().keyLifted(), "");
}

TEST_F(LiftsTest, AClickIntoABlockLeavesTheChipInTheHand)
{
    liftByClicks();
    view().rightMouseDown({ .location = centre("chip-0-1") });
    ASSERT_EQ(view().keyLifted(), "chip-0-1");
    view().block().startBlockClick(0.75);
    click("chip-1-1");
    EXPECT_THAT(target().take(), IsEmpty());
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
    wait(1.0);
    click("chip-1-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 1"));
}

TEST_F(LiftsTest, APageThatComesPutsBackWhatIsLifted)
{
    liftByClicks();
    for (const Overlay overlay : { Overlay::Page, Overlay::Question }) {
        view().setOverlay(Overlay::None);
        view().rightMouseDown({ .location = centre("chip-0-1") });
        ASSERT_EQ(view().keyLifted(), "chip-0-1");
        view().setOverlay(overlay);
        EXPECT_EQ(view().keyLifted(), "");
    }
    click("chip-1-1");
    EXPECT_THAT(target().take(), ElementsAre("click 1 1")) << "a press like any other";
}

TEST_F(LiftsTest, ARightClickBesideANoteClosesItAsAnyPressDoes)
{
    liftByClicks();
    view().setOverlay(Overlay::Note);
    view().rightMouseDown({ .location = centre("chip-0-1") });
    EXPECT_THAT(target().take(), ElementsAre("message"));
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
}

} // namespace veyrand::input
