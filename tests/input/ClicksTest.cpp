#include "input/GameViewFixture.h"
#include "support/Instant.h"

#include <gmock/gmock.h>

namespace veyrand::input {

using test::kInstant;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class Clicks : public GameViewTest { };

} // namespace

TEST_F(Clicks, AChipsClickNamesItsRowAndColumn)
{
    click("chip-2-0");
    EXPECT_THAT(target().take(), ElementsAre("click 0 2"));
}

TEST_F(Clicks, EveryKindOfElementBlocksForItsOwnTime)
{
    addImage("delete-1", 0.645, 0.875, 0.05);
    addButton("button-menubutton", 0.2);
    addImage("fullScreen-3i", 1.5, 0.2, 0.05);
    const std::tuple<const char*, const char*, double> cases[] = {
        { "chip-0-1", "click 1 0", 0.75 },
        { "delete-1", "delete 1", 0.95 },
        { "button-menubuttonon", "button-menubuttonon", 0.5 },
        { "fullScreen-3i", "fullScreen-3i", 0.5 },
    };
    for (const auto& [key, call, seconds] : cases) {
        click(key);
        EXPECT_THAT(target().take(), ElementsAre(call));
        wait(seconds - kInstant);
        EXPECT_TRUE(blocked()) << key;
        wait(kInstant);
        EXPECT_FALSE(blocked()) << key;
    }
}

TEST_F(Clicks, OtherElementsAreNoGesture)
{
    addImage("goal-0-12", 0.5, 0.5, 0.05);
    addImage("hint-0-99", 0.5, 0.4, 0.05);
    addImage("label-points", 0.5, 0.3, 0.05);
    addImage("checkmark", 0.5, 0.2, 0.05);
    for (const char* key : { "goal-0-12", "hint-0-99", "label-points", "checkmark" }) {
        click(key);
        EXPECT_THAT(target().take(), IsEmpty()) << key;
        EXPECT_FALSE(blocked()) << key;
    }
    press({ 5.0, 5.0 });
    release({ 5.0, 5.0 }); // the bare background
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(Clicks, TheLitFaceOfAButtonWasPlacedFirstAndIsHit)
{
    addButton("button-lightbulb", 0.275);
    click("button-lightbulboff");
    EXPECT_THAT(target().take(), ElementsAre("button-lightbulbon"));
}

TEST_F(Clicks, AButtonLooksPressedWhileItIsHeld)
{
    addButton("button-lightbulb", 0.275);
    press(centre("button-lightbulbon"));
    EXPECT_TRUE(layer("button-lightbulbon").isPressed());
    EXPECT_FALSE(layer("button-lightbulboff").isPressed());
    release(centre("button-lightbulbon"));
    EXPECT_FALSE(layer("button-lightbulbon").isPressed());
}

TEST_F(Clicks, ALetGoButtonLooksUpWhereverThePointerIsThen)
{
    addButton("button-lightbulb", 0.275);
    press(centre("button-lightbulbon"));
    release({ 5.0, 5.0 });
    EXPECT_FALSE(layer("button-lightbulbon").isPressed());
}

TEST_F(Clicks, ChipsAndWhatIsNoButtonNeverLookPressed)
{
    addImage("fullScreen-3i", 0.5, 0.5, 0.05); // a picture of a note: no dialogue is open
    for (const char* key : { "chip-1-0", "fullScreen-3i" }) {
        press(centre(key));
        EXPECT_FALSE(layer(key).isPressed()) << key;
        release(centre(key));
        wait(1.0);
    }
}

TEST_F(Clicks, AButtonsClickPutsTheBoardsLightsOut)
{
    addButton("button-lightbulb", 0.275);
    view().hover().interfaceElementOn("button-lightbulbon");
    click("button-lightbulboff");
    EXPECT_EQ(opacity("button-lightbulbon"), 0.0);
}

TEST_F(Clicks, PressAndReleaseOnDifferentElementsAreNoClick)
{
    press(centre("chip-0-0"));
    release(centre("chip-1-0"));
    press(centre("chip-0-0"));
    release({ 5.0, 5.0 });
    EXPECT_THAT(target().take(), IsEmpty());
    EXPECT_FALSE(blocked());
}

TEST_F(Clicks, APressWhoseReleaseNeverComesIsNone)
{
    addButton("button-lightbulb", 0.275);
    press(centre("button-lightbulbon"));
    view().cancelGesture();
    EXPECT_FALSE(layer("button-lightbulbon").isPressed());
    release(centre("button-lightbulbon"));
    EXPECT_THAT(target().take(), IsEmpty());
    press(centre("chip-0-0"));
    moveTo(centre("chip-0-0")); // without the button
    release(centre("chip-0-0"));
    EXPECT_THAT(target().take(), IsEmpty());
}

// A box that the game's answer opens says that presses are over.
TEST_F(Clicks, CancellingFromWithinTheAnswerDisturbsNothing)
{
    target().whenAsked = [this] { view().cancelGesture(); };
    target().acceptsDrags = true;
    click("chip-0-0");
    EXPECT_THAT(target().take(), ElementsAre("click 0 0"));
    EXPECT_TRUE(blocked());
    wait(0.75);
    drag("chip-0-1", "chip-2-1");
    EXPECT_THAT(target().take(), ElementsAre("drag 1 0 to 1 2"));
    EXPECT_TRUE(blocked());
}

TEST_F(Clicks, APressWithAModifierIsNeitherClickNorDrag)
{
    press(centre("chip-0-1"), true);
    dragTo(offset(centre("chip-0-1"), 10.0, 0.0));
    EXPECT_THAT(dragImages(), IsEmpty());
    release(centre("chip-0-1"));
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(Clicks, TheSecondOfTwoClicksHalfASecondApartIsIgnored)
{
    click("chip-0-0");
    wait(0.5);
    click("chip-1-0");
    EXPECT_THAT(target().take(), ElementsAre("click 0 0"));
    wait(0.25);
    click("chip-1-0");
    EXPECT_THAT(target().take(), ElementsAre("click 0 1"));
}

TEST_F(Clicks, APressThatWasIgnoredStaysIgnoredWhenTheBlockEndsBeforeItsRelease)
{
    click("chip-0-0");
    wait(0.5);
    press(centre("chip-1-1"));
    wait(0.5);
    dragTo(offset(centre("chip-1-1"), 10.0, 0.0));
    EXPECT_THAT(dragImages(), IsEmpty());
    release(centre("chip-1-1"));
    EXPECT_THAT(target().take(), ElementsAre("click 0 0"));
}

TEST_F(Clicks, TheBlockStartsBeforeTheGameAnswersSoThatItCanLengthenIt)
{
    target().whenAsked = [this] {
        EXPECT_TRUE(blocked());
        view().block().increaseDelay(0.75);
    };
    click("chip-0-0");
    wait(1.5 - kInstant);
    EXPECT_TRUE(blocked());
    wait(0.1);
    EXPECT_FALSE(blocked());
}

TEST_F(Clicks, AMessageTakesEveryPress)
{
    view().setOverlay(Overlay::Page);
    click("chip-0-0");
    press({ 5.0, 5.0 });
    release({ 5.0, 5.0 });
    press(centre("chip-0-0"), true);
    release(centre("chip-0-0"));
    EXPECT_THAT(target().take(), ElementsAre("message", "message", "message"));
}

TEST_F(Clicks, ATutorialNoteHearsEveryPressAndPlayGoesOn)
{
    view().setOverlay(Overlay::Note);
    click("chip-0-0");
    EXPECT_THAT(target().take(), ElementsAre("message", "click 0 0"));
}

TEST_F(Clicks, ABlockedPressDoesNotReachAMessageEither)
{
    view().setOverlay(Overlay::Page);
    view().block().startBlockClick(0.5);
    click("chip-0-0");
    EXPECT_THAT(target().take(), IsEmpty());
}

// Gestures remember keys: the board may be drawn anew between press and release.
TEST_F(Clicks, AnElementReplacedUnderItsKeyIsStillTheOnePressed)
{
    press(centre("chip-0-0"));
    lines().createChipsForTheorem("YRGR", 0);
    release(centre("chip-0-0"));
    EXPECT_THAT(target().take(), ElementsAre("click 0 0"));
}

} // namespace veyrand::input
