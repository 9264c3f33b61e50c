#include "GameViewFixture.h"
#include "board/ElementKey.h"
#include "input/Foreground.h"
#include "input/Stops.h"
#include "input/Touch.h"

#include <gmock/gmock.h>

namespace veyrand::input {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

// Presses, keys and fingers that come when nobody expects them: while something has gone, has
// opened, or is already in the hand.
class OddPresses : public GameViewTest {
protected:
    static GameView::Habits all()
    {
        return { .rememberPress = true, .forgivingClicks = true, .liftByClick = true };
    }
    void allowAll() { view().setHabits(all); }
    void allowLifting()
    {
        view().setHabits([] { return GameView::Habits { .liftByClick = true }; });
    }
    void rightClick(const std::string& key) { view().rightMouseDown({ .location = centre(key) }); }
    void takeAway(const std::string& key) { table().removeGameObjectForKey(key); }
    // A block that began long enough ago for a press not to be the second of two.
    void blockFirst()
    {
        click("chip-2-0");
        target().take();
        wait(0.5);
    }
};

// Covers everything, or nothing.
class Cover final : public Foreground {
public:
    [[nodiscard]] bool covers(platform::Point /*place*/) const override { return isThere; }
    bool pressed(platform::Point /*place*/) override { return isThere; }
    void released(platform::Point /*place*/) override { }
    bool hovered(platform::Point /*place*/) override { return isThere; }

    bool isThere = true;
};

} // namespace

TEST_F(OddPresses, WithoutAStartLineACopyIsAsWideAsAChipIs)
{
    takeAway("chip-0-0");
    startDrag("chip-1-1");
    ASSERT_THAT(dragImages(), SizeIs(1));
    EXPECT_FLOAT_EQ(dragImages().front()->bounds().width, 67.5F);
}

TEST_F(OddPresses, AChipThatAKeyLiftsAfterAFingerIsNoLargerForIt)
{
    table().change("chip-0-0", [](board::GameObject& chip) { chip.setWidth(0.02); });
    const auto width = [this] {
        EXPECT_TRUE(view().liftByKey("chip-0-1"));
        const float lifted = dragImages().back()->bounds().width;
        view().cancelGesture();
        wait(2.0);
        return lifted;
    };
    const float before = width();
    view().mouseDown({ .location = { 1.0, 1.0 }, .isTouch = true });
    view().mouseUp({ .location = { 1.0, 1.0 }, .isTouch = true });
    EXPECT_EQ(width(), before);
}

TEST_F(OddPresses, ADropMayTakeTheChipAndTheLinesAway)
{
    target().acceptsDrags = true;
    target().whenAsked = [this] {
        takeAway("chip-0-1");
        target().lines = 0;
    };
    drag("chip-0-1", "chip-1-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 1"));
    wait(2.0);
    EXPECT_THAT(dragImages(), IsEmpty());
}

TEST_F(OddPresses, WhatIsNoChipOfTheLineIsNotLifted)
{
    addImage(board::deleteButtonKey(1), 1.2, 0.5, 0.05);
    EXPECT_FALSE(view().liftByKey(board::deleteButtonKey(1)));
    EXPECT_FALSE(view().liftByKey("chip-9-1")) << "there is none";
    EXPECT_FALSE(view().liftByKey("chip-0-0")) << "of another line";
    target().targets = std::vector<unsigned> {};
    EXPECT_FALSE(view().liftByKey("chip-0-1")) << "it can be dropped nowhere";
    target().targets.reset();
    EXPECT_FALSE(view().liftByKey("chip-0-1")) << "no drag may begin with it";
    EXPECT_EQ(view().keyLifted(), "");
}

TEST_F(OddPresses, AKeyLiftsNothingUnderAQuestionOrAPage)
{
    for (const Overlay overlay : { Overlay::Question, Overlay::Page }) {
        view().setOverlay(overlay);
        EXPECT_FALSE(view().liftByKey("chip-0-1"));
    }
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(OddPresses, ALiftedChipIsCarriedOverWhatIsThereAlone)
{
    view().carryTo("chip-1-1");
    EXPECT_THAT(dragImages(), IsEmpty()) << "nothing is in the hand";
    ASSERT_TRUE(view().liftByKey("chip-0-1"));
    const auto place = dragImages().front()->position();
    view().carryTo("chip-9-1");
    EXPECT_EQ(dragImages().front()->position(), place);
    view().carryTo("chip-1-1");
    EXPECT_NE(dragImages().front()->position(), place);
}

TEST_F(OddPresses, AChipThatTheMouseDragsIsNoKeysToDrop)
{
    startDrag("chip-0-1");
    view().drop("chip-1-1");
    EXPECT_THAT(target().take(), IsEmpty());
    EXPECT_EQ(view().keyDragged(), "chip-0-1");
}

TEST_F(OddPresses, ARightClickLiftsOnlyWhereAClickWould)
{
    rightClick("chip-0-1");
    EXPECT_EQ(view().keyLifted(), "") << "nobody has asked for it";
    view().setHabits([] { return GameView::Habits {}; });
    rightClick("chip-0-1");
    EXPECT_EQ(view().keyLifted(), "");
    allowLifting();
    press(centre("chip-0-1"));
    rightClick("chip-0-1");
    EXPECT_EQ(view().keyLifted(), "") << "the other button is held";
    view().cancelGesture();
    for (const Overlay overlay : { Overlay::Page, Overlay::Question }) {
        view().setOverlay(overlay);
        rightClick("chip-0-1");
        EXPECT_EQ(view().keyLifted(), "");
    }
    view().setOverlay(Overlay::None);
    view().block().startBlockClick(0.75);
    rightClick("chip-0-1");
    EXPECT_EQ(view().keyLifted(), "");
    wait(1.0);
    view().rightMouseDown({ .location = { 5.0, 5.0 } });
    EXPECT_EQ(view().keyLifted(), "") << "there is nothing";
    rightClick("chip-0-1");
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
}

TEST_F(OddPresses, ALongPressThatHasBecomeSomethingElseLiftsNothing)
{
    allowLifting();
    const auto lifted = [this] {
        wait(0.6);
        const std::string key = view().keyLifted();
        view().cancelGesture();
        wait(1.0);
        return key;
    };
    press(centre("chip-0-1"));
    view().block().startBlockClick(0.75);
    EXPECT_EQ(lifted(), "") << "the board has begun to move";
    press(centre("chip-0-0"));
    dragTo(offset(centre("chip-0-0"), 5.0, 0.0));
    EXPECT_EQ(lifted(), "") << "a drag that was refused";
    press(centre("chip-0-1"));
    release(centre("chip-0-1"));
    EXPECT_EQ(lifted(), "") << "a click";
    startDrag("chip-3-1");
    takeAway("chip-3-1");
    dragTo(centre("chip-1-1"));
    EXPECT_EQ(lifted(), "") << "a drag whose chip has gone";
}

TEST_F(OddPresses, ALiftedChipGoesBackWhereItMayNotBeDropped)
{
    allowLifting();
    addImage(board::deleteButtonKey(1), 1.2, 0.5, 0.05);
    for (const std::string& other :
        { std::string("chip-1-0"), std::string("chip-2-1"), board::deleteButtonKey(1) }) {
        rightClick("chip-0-1");
        ASSERT_EQ(view().keyLifted(), "chip-0-1");
        click(other);
        EXPECT_EQ(view().keyLifted(), "") << other;
        wait(1.0);
    }
    rightClick("chip-0-1");
    target().targets.reset();
    click("chip-1-1");
    EXPECT_EQ(view().keyLifted(), "") << "there is nowhere any more";
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(OddPresses, ALiftedChipWhoseRecordHasGoneIsDroppedNowhere)
{
    allowLifting();
    rightClick("chip-0-1");
    takeAway("chip-0-1");
    click("chip-1-1");
    EXPECT_EQ(view().keyLifted(), "");
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(OddPresses, AChipThatCanOnlyBeDraggedIsClickedWhereItCannotBeLifted)
{
    allowLifting();
    target().moves = { play::Drag { 1, 2, 1, 3 } };
    target().targets.reset();
    click("chip-2-1");
    EXPECT_THAT(target().take(), ElementsAre("click 1 2"));
    EXPECT_EQ(view().keyLifted(), "");
}

TEST_F(OddPresses, APointerThatLeavesPutsTheChipBack)
{
    allowLifting();
    rightClick("chip-0-1");
    moveTo(centre("chip-1-1"));
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
    moveTo(std::nullopt);
    EXPECT_EQ(view().keyLifted(), "");
}

TEST_F(OddPresses, ALostPressIsForgottenWithAModifierOrUnderAPage)
{
    allowAll();
    blockFirst();
    press(centre("chip-0-1"), true);
    release(centre("chip-0-1"));
    wait(2.0);
    blockFirst();
    view().setOverlay(Overlay::Page);
    click("chip-0-1");
    view().setOverlay(Overlay::None);
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(OddPresses, APressThatIsRememberedIsForgottenWhenSomethingOpens)
{
    allowAll();
    for (const Overlay overlay : { Overlay::Page, Overlay::Question }) {
        blockFirst();
        click("chip-0-1");
        view().setOverlay(overlay);
        wait(2.0);
        EXPECT_THAT(target().take(), IsEmpty());
        view().setOverlay(Overlay::None);
    }
}

TEST_F(OddPresses, APressThatIsRememberedIsForgottenWithItsChipOrItsWish)
{
    allowAll();
    blockFirst();
    click("chip-0-1");
    view().setHabits({});
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());
    allowAll();
    blockFirst();
    press(centre("chip-3-1"));
    const auto place = centre("chip-3-1");
    takeAway("chip-3-1");
    release(place);
    wait(2.0);
    blockFirst();
    click("chip-0-1");
    takeAway("chip-0-1");
    wait(2.0);
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(OddPresses, AKeyBesideANoteReachesWhatIsStillThere)
{
    addImage(std::string(kMessageKey), 0.8, 0.5, 0.4);
    target().whenAsked = [this] { view().setOverlay(Overlay::None); };
    view().setOverlay(Overlay::Note);
    view().activate(std::string(kMessageKey));
    EXPECT_THAT(target().take(), ElementsAre("message"));
    view().setOverlay(Overlay::Note);
    view().activate("chip-9-1");
    EXPECT_THAT(target().take(), ElementsAre("message")) << "there is no such chip";
    view().setOverlay(Overlay::Note);
    view().activate("chip-0-1");
    EXPECT_THAT(target().take(), ElementsAre("message", "click 1 0"));
    wait(2.0);
    target().whenAsked = [this] { view().setOverlay(Overlay::Page); };
    view().setOverlay(Overlay::Note);
    view().activate("chip-0-1");
    EXPECT_THAT(target().take(), ElementsAre("message")) << "a page has come instead";
}

TEST_F(OddPresses, AQuestionWhoseButtonsAreStillToComeLeavesTheTitlePageItsOwn)
{
    addButton("button-classicbutton", 0.7);
    view().setOverlay(Overlay::Question);
    view().reestablishTracking();
    moveTo(centre("button-classicbuttonoff"));
    EXPECT_EQ(opacity("button-classicbuttonon"), 1.0);
}

TEST_F(OddPresses, AGlowIsPutOnlyOnWhatIsThere)
{
    target().targets = std::vector<unsigned> { 1, 9 };
    drag("chip-0-1", "chip-1-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 1"));
    view().hover().turnOffEffectsForRow(1, 9);
    EXPECT_EQ(layer("chip-1-1").glow(), 0.0F);
}

TEST_F(OddPresses, AFingerThatIsNotDownNeitherMovesNorCancels)
{
    Touch touch(view(), layers(), pointer());
    touch.moved(centre("chip-0-1"));
    touch.ended(centre("chip-0-1"));
    touch.cancelled();
    EXPECT_THAT(target().take(), IsEmpty());
    EXPECT_EQ(pointer().position(), std::nullopt);
}

TEST_F(OddPresses, AFingerReachesNothingThatIsCovered)
{
    const Touch touch(view(), layers(), pointer());
    Cover cover;
    view().setForeground(&cover);
    EXPECT_EQ(touch.keyReached(centre("chip-0-1")), "");
    cover.isThere = false;
    EXPECT_EQ(touch.keyReached(centre("chip-0-1")), "chip-0-1");
    view().setForeground(nullptr);
}

TEST_F(OddPresses, AFingerReachesAnswersUnderAQuestionAlone)
{
    const Touch touch(view(), layers(), pointer());
    addImage("fullScreen-3i", 1.0, 0.4, 0.1, 0.0);
    EXPECT_EQ(touch.keyReached(centre("fullScreen-3i")), "");
    view().setOverlay(Overlay::Question);
    EXPECT_EQ(touch.keyReached(centre("fullScreen-3i")), "fullScreen-3i");
    EXPECT_EQ(touch.keyReached(centre("chip-0-1")), "");
}

TEST_F(OddPresses, AFingerReachesALargeChipAtItsCorner)
{
    const Touch touch(view(), layers(), pointer());
    EXPECT_EQ(touch.keyReached(offset(centre("chip-0-1"), -32.0, -32.0)), "chip-0-1");
    EXPECT_EQ(touch.keyReached(offset(centre("chip-0-1"), -36.0, -36.0)), "");
}

// Whichever of the two was made first.
TEST_F(OddPresses, ARemovalNeverWinsOverAChipThatCameLater)
{
    layers().fitTo({ .width = 624, .height = 390 });
    addImage("delete-1", 0.645, 0.875, 0.043);
    takeAway("chip-0-1");
    addImage("chip-0-1", 0.72, 0.875, 0.075);
    const Touch touch(view(), layers(), pointer());
    const platform::RectF rect = layers().layerForKey("delete-1")->rectInRoot();
    const platform::Point at { .x = static_cast<double>(rect.x + rect.width / 2.0F),
        .y = static_cast<double>(rect.y + rect.height / 2.0F) };
    EXPECT_EQ(touch.keyReached(at), "delete-1");
    EXPECT_EQ(touch.keyReached(offset(at, 10.0, 0.0)), "chip-0-1");
}

} // namespace veyrand::input
