#include "input/GameViewFixture.h"

#include <gmock/gmock.h>

namespace veyrand::input {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr platform::Point kNowhere { 5.0, 5.0 };

class HoverTest : public GameViewTest {
protected:
    HoverTest()
    {
        addButton("button-lightbulb", 0.275);
        addButton("button-movesbutton", 0.2);
        addButton("button-menubutton", 0.125);
        view().establishButtonTracking();
    }
    void addTitleButtons()
    {
        addButton("button-classicbutton", 0.7);
        addButton("button-endlessbutton", 0.5);
        addButton("button-quitbutton", 0.4);
    }
    void addDialogueButtons()
    {
        addImage("fullScreen-3i", 1.0, 0.4, 0.1, 0.0);
        addImage("fullScreen-1i", 1.0, 0.4, 0.1);
        addImage("fullScreen-4i", 1.2, 0.4, 0.1, 0.0);
        addImage("fullScreen-2i", 1.2, 0.4, 0.1);
    }
};

} // namespace

TEST_F(HoverTest, TheHintButtonLightsOnEntryAndGoesOutOnExit)
{
    const test::RecordingObserver unlit(table(), "button-lightbulboff");
    moveTo(centre("button-lightbulboff"));
    EXPECT_EQ(opacity("button-lightbulbon"), 1.0);
    EXPECT_THAT(sounds(), ElementsAre("Click"));
    moveTo(kNowhere);
    EXPECT_EQ(opacity("button-lightbulbon"), 0.0);
    EXPECT_EQ(opacity("button-lightbulboff"), 1.0);
    EXPECT_TRUE(unlit.heard().empty()); // the face beneath never changes
    EXPECT_THAT(sounds(), IsEmpty());
}

TEST_F(HoverTest, LeavingTheViewPutsTheLightOut)
{
    moveTo(centre("button-lightbulboff"));
    moveTo(std::nullopt);
    EXPECT_EQ(opacity("button-lightbulbon"), 0.0);
}

TEST_F(HoverTest, EffectsSwitchedOffEnterSilently)
{
    muteEffects();
    moveTo(centre("button-lightbulboff"));
    EXPECT_EQ(opacity("button-lightbulbon"), 1.0);
    EXPECT_THAT(sounds(), IsEmpty());
}

TEST_F(HoverTest, WhileBlockedAButtonNeitherLightsNorClicksButStillGoesOut)
{
    moveTo(centre("button-lightbulboff"));
    sounds();
    view().block().startBlockClick(0.75);
    moveTo(centre("button-movesbuttonoff"));
    EXPECT_EQ(opacity("button-lightbulbon"), 0.0);
    EXPECT_EQ(opacity("button-movesbuttonon"), 0.0);
    EXPECT_THAT(sounds(), IsEmpty());
}

TEST_F(HoverTest, AButtonUnderTheRestingPointerLightsSilentlyWhenABlockEnds)
{
    view().block().startBlockClick(0.75);
    moveTo(centre("button-movesbuttonoff"));
    wait(0.75);
    EXPECT_EQ(opacity("button-movesbuttonon"), 1.0);
    EXPECT_EQ(opacity("button-lightbulbon"), 0.0);
    EXPECT_THAT(sounds(), IsEmpty());
    moveTo(kNowhere);
    EXPECT_EQ(opacity("button-movesbuttonon"), 0.0);
}

TEST_F(HoverTest, UnderADialogueOrAMessageNothingLightsWhenABlockEnds)
{
    moveTo(kNowhere);
    view().block().startBlockClick(0.5);
    moveTo(centre("button-movesbuttonoff"));
    view().setOverlay(Overlay::Question);
    wait(0.5);
    EXPECT_EQ(opacity("button-movesbuttonon"), 0.0);
    view().setOverlay(Overlay::Page);
    view().block().startBlockClick(0.5);
    wait(0.5);
    EXPECT_EQ(opacity("button-movesbuttonon"), 0.0);
}

TEST_F(HoverTest, AButtonThatLitUpUnderAHeldPointerGoesOutWhenItHasLeft)
{
    addTitleButtons();
    view().hover().establishTitlePagButtonTracking();
    view().block().startBlockClick(0.5);
    press(kNowhere);
    dragTo(centre("button-quitbuttonoff"));
    wait(0.5);
    EXPECT_EQ(opacity("button-quitbuttonon"), 1.0);
    dragTo(kNowhere);
    release(kNowhere);
    EXPECT_EQ(opacity("button-quitbuttonon"), 0.0);
}

TEST_F(HoverTest, UnderAQuestionOnlyItsOwnTwoButtonsCanBeFoundUnderThePointer)
{
    addTitleButtons();
    addDialogueButtons();
    view().setOverlay(Overlay::Question);
    view().reestablishTracking();
    for (const char* key : { "button-quitbutton", "button-menubutton" }) {
        moveTo(centre(key + std::string("off")));
        view().turnOnAllHovers();
        EXPECT_EQ(opacity(key + std::string("on")), 0.0) << key;
    }
    moveTo(centre("fullScreen-2i"));
    view().turnOnAllHovers();
    EXPECT_EQ(opacity("fullScreen-4i"), 1.0);
}

// A change of size finds the buttons anew, but for those that a page covers.
TEST_F(HoverTest, UnderAPageNoButtonIsFoundAgain)
{
    view().setOverlay(Overlay::Page);
    view().reestablishTracking();
    EXPECT_THAT(view().hover().trackedButtons(), ElementsAre());
    moveTo(centre("button-menubuttonoff"));
    EXPECT_EQ(opacity("button-menubuttonon"), 0.0);
    view().setOverlay(Overlay::None);
    view().reestablishTracking();
    EXPECT_EQ(view().hover().trackedButtons().size(), 3U);
}

// Play goes on beside a note.
TEST_F(HoverTest, BesideANoteTheBoardsButtonsLightUp)
{
    addDialogueButtons(); // a note's pictures have such keys
    view().setOverlay(Overlay::Note);
    view().reestablishTracking();
    moveTo(centre("button-menubuttonoff"));
    EXPECT_EQ(opacity("button-menubuttonon"), 1.0);
    view().block().startBlockClick(0.5);
    moveTo(centre("button-movesbuttonoff"));
    EXPECT_EQ(opacity("button-menubuttonon"), 0.0);
    EXPECT_EQ(opacity("button-movesbuttonon"), 0.0);
    wait(0.5);
    EXPECT_EQ(opacity("button-movesbuttonon"), 1.0);
}

TEST_F(HoverTest, TheBoardTracksItsThreeButtonsAndInEndlessFive)
{
    EXPECT_THAT(view().hover().trackedButtons(),
        ElementsAre("button-lightbulboff", "button-movesbuttonoff", "button-menubuttonoff"));
    addButton("button-harderbutton", 0.485);
    addButton("button-easierbutton", 0.4);
    target().endless = true;
    view().establishButtonTracking();
    EXPECT_THAT(view().hover().trackedButtons(),
        ElementsAre("button-lightbulboff", "button-movesbuttonoff", "button-menubuttonoff",
            "button-harderbuttonoff", "button-easierbuttonoff"));
    moveTo(centre("button-easierbuttonoff"));
    EXPECT_EQ(opacity("button-easierbuttonon"), 1.0);
}

TEST_F(HoverTest, WithADialogueUpOnlyItsTwoButtonsAreTracked)
{
    addDialogueButtons();
    view().setOverlay(Overlay::Question);
    moveTo(centre("button-menubuttonoff"));
    view().reestablishTracking();
    EXPECT_EQ(opacity("button-menubuttonon"), 0.0);
    EXPECT_THAT(view().hover().trackedButtons(), ElementsAre("fullScreen-1i", "fullScreen-2i"));
    moveTo(centre("fullScreen-2i"));
    EXPECT_EQ(opacity("fullScreen-4i"), 1.0);
    EXPECT_EQ(opacity("fullScreen-3i"), 0.0);
    moveTo(centre("button-menubuttonoff"));
    EXPECT_EQ(opacity("fullScreen-4i"), 0.0);
    EXPECT_EQ(opacity("button-menubuttonon"), 0.0);
}

TEST_F(HoverTest, TheTitlePagesButtonsComeBeforeTheBoards)
{
    addTitleButtons();
    view().reestablishTracking();
    EXPECT_THAT(view().hover().trackedButtons(),
        ElementsAre("button-classicbuttonoff", "button-endlessbuttonoff", "button-quitbuttonoff"));
    for (const char* key : { "button-classicbuttonoff", "button-classicbuttonon" }) {
        table().removeGameObjectForKey(key);
    }
    view().reestablishTracking();
    EXPECT_EQ(view().hover().trackedButtons().size(), 3U);
    EXPECT_EQ(view().hover().trackedButtons().front(), "button-lightbulboff");
}

TEST_F(HoverTest, AnEmptyScreenTracksNothing)
{
    table().removeAllEntries();
    view().reestablishTracking();
    EXPECT_THAT(view().hover().trackedButtons(), IsEmpty());
}

TEST_F(HoverTest, PuttingTheBoardsLightsOutKeepsItsHitAreas)
{
    view().hover().interfaceElementOn("button-menubuttonon");
    view().hover().turnOffButtons();
    EXPECT_EQ(opacity("button-menubuttonon"), 0.0);
    EXPECT_EQ(view().hover().trackedButtons().size(), 3U);
    view().hover().turnOffTitlePageButtons();
    EXPECT_THAT(view().hover().trackedButtons(), IsEmpty());
}

TEST_F(HoverTest, AButtonThatIsNotThereIsNotTracked)
{
    view().hover().removeCurrentTrackingAreas();
    view().hover().createTrackingForObjectWithKey("button-harderbuttonoff");
    EXPECT_THAT(view().hover().trackedButtons(), IsEmpty());
}

TEST_F(HoverTest, ARowsGlowGoesOutInEveryColumn)
{
    layer("chip-0-1").setGlow(20.0F);
    layer("chip-3-1").setGlow(20.0F);
    layer("chip-3-0").setGlow(20.0F);
    view().hover().turnOffEffectsForRow(1, 4);
    EXPECT_EQ(layer("chip-0-1").glow(), 0.0F);
    EXPECT_EQ(layer("chip-3-1").glow(), 0.0F);
    EXPECT_EQ(layer("chip-3-0").glow(), 20.0F);
}

} // namespace veyrand::input
