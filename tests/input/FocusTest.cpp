#include "input/Focus.h"

#include "GameViewFixture.h"
#include "board/ElementKey.h"

#include <gmock/gmock.h>

namespace veyrand::input {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

// The keys over a game that does as the test wishes: stone 0 of the last line can be clicked, and
// stone 2 dropped on stone 3.
class FocusTest : public GameViewTest {
protected:
    using Verb = KeyCommand::Verb;

    FocusTest() { target().moves = { play::Click { 1, 0 }, play::Drag { 1, 2, 1, 3 } }; }

    bool perform(Verb verb) { return m_focus.perform({ .verb = verb }); }
    [[nodiscard]] Focus& focus() { return m_focus; }
    [[nodiscard]] std::string shown() const
    {
        const auto stop = m_focus.shown();
        return stop ? stop->key : std::string();
    }
    // As where nothing of the board can be played.
    void leaveNothing()
    {
        target().moves.clear();
        target().lines = 1;
    }

private:
    Focus m_focus { view(), table(), target() };
};

} // namespace

TEST_F(FocusTest, GoesToStopsAlone)
{
    EXPECT_FALSE(focus().goTo("chip-1-1"));
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(focus().goTo("chip-2-1"));
    EXPECT_EQ(shown(), "chip-2-1");
    EXPECT_FALSE(focus().goTo("chip-1-1"));
    EXPECT_EQ(shown(), "chip-2-1");
}

TEST_F(FocusTest, TheFirstClickOnlyShowsWhereItIs)
{
    EXPECT_TRUE(perform(Verb::Click));
    EXPECT_EQ(shown(), "chip-0-1");
    EXPECT_THAT(target().take(), IsEmpty());
    EXPECT_TRUE(perform(Verb::Click));
    EXPECT_THAT(target().take(), ElementsAre("click 1 0"));
}

TEST_F(FocusTest, StandsNowhereWhereThereIsNothing)
{
    leaveNothing();
    for (const Verb verb : { Verb::Left, Verb::FarDown, Verb::First, Verb::NextGroup, Verb::Column,
             Verb::Click, Verb::Lift, Verb::TakeBack, Verb::Hint, Verb::Moves }) {
        EXPECT_TRUE(perform(verb));
        EXPECT_EQ(shown(), "");
    }
    EXPECT_THAT(target().take(), IsEmpty());
}

TEST_F(FocusTest, PutsNothingBackWithAnEmptyHand)
{
    EXPECT_FALSE(perform(Verb::PutBack));
    focus().goTo("chip-2-1");
    EXPECT_TRUE(perform(Verb::Lift));
    EXPECT_EQ(view().keyLifted(), "chip-2-1");
    EXPECT_TRUE(perform(Verb::PutBack));
    EXPECT_EQ(view().keyLifted(), "");
    EXPECT_EQ(shown(), "chip-2-1");
}

TEST_F(FocusTest, ComesBackToANoteWhenAllBesideItHasGone)
{
    addImage(std::string(kMessageKey), 0.8, 0.5, 0.4);
    view().setOverlay(Overlay::Note);
    perform(Verb::First);
    EXPECT_EQ(shown(), kMessageKey);
    perform(Verb::NextGroup);
    EXPECT_EQ(shown(), "chip-0-1");
    leaveNothing();
    EXPECT_EQ(shown(), kMessageKey);
}

TEST_F(FocusTest, LeavesWhatSpeaksToOthers)
{
    EXPECT_FALSE(perform(Verb::SpeakGoal));
}

TEST_F(FocusTest, AClickClosesAPageOrANoteThoughItHasNotBeenSeen)
{
    addImage(std::string(kMessageKey), 0.8, 0.5, 0.4);
    for (const Overlay overlay : { Overlay::Page, Overlay::Note }) {
        view().setOverlay(overlay);
        EXPECT_TRUE(perform(Verb::Click));
        EXPECT_THAT(target().take(), ElementsAre("message"));
        focus().hide();
    }
}

TEST_F(FocusTest, AChipThatMayBeDroppedNowhereIsLiftedWhereItIs)
{
    target().moves = { play::Click { 1, 0 } };
    ASSERT_TRUE(focus().goTo("chip-0-1"));
    EXPECT_TRUE(perform(Verb::Lift));
    EXPECT_EQ(view().keyLifted(), "chip-0-1");
    EXPECT_EQ(shown(), "");
}

TEST_F(FocusTest, TakesALineBackOnTheBoardAndBesideANoteAlone)
{
    EXPECT_TRUE(perform(Verb::TakeBack));
    EXPECT_THAT(target().take(), IsEmpty()) << "it has no button yet";
    addImage("delete-1", 1.2, 0.5, 0.05);
    for (const Overlay overlay : { Overlay::Page, Overlay::Question }) {
        view().setOverlay(overlay);
        EXPECT_TRUE(perform(Verb::TakeBack));
        EXPECT_THAT(target().take(), IsEmpty());
    }
    view().setOverlay(Overlay::Note);
    EXPECT_TRUE(perform(Verb::TakeBack));
    EXPECT_THAT(target().take(), ElementsAre("message", "delete 1"));
}

TEST_F(FocusTest, FindsNoChipInARemoval)
{
    target().moves = { play::Remove { 1 }, play::Click { 1, 0 } };
    target().lines = 1;
    perform(Verb::First);
    EXPECT_EQ(shown(), "chip-0-1");
    perform(Verb::Last);
    EXPECT_EQ(shown(), "chip-0-1");
}

TEST(KeyCommands, AreFoundForTheirKeysAlone)
{
    EXPECT_FALSE(commandFor("!")) << "before the digits";
    EXPECT_FALSE(commandFor(""));
    EXPECT_EQ(commandFor("0").value().column, 9U);
    EXPECT_EQ(commandFor("1").value().column, 0U);
    EXPECT_FALSE(speaks(KeyCommand::Verb::Left));
    EXPECT_TRUE(speaks(KeyCommand::Verb::SpeakGoal));
    EXPECT_TRUE(speaks(KeyCommand::Verb::SpeakChoices));
    EXPECT_FALSE(speaks(KeyCommand::Verb::HowFar)) << "it is the guide that answers";
}

} // namespace veyrand::input
