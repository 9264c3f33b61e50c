#include "support/HeadlessPlay.h"

#include <array>
#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

struct MoveByHand {
    const char* name;
    const char* root;
    const char* from;
    const char* to; // null for a click
};

constexpr std::array kMoves {
    MoveByHand { "doubling", "YRG", "chip-0-0", nullptr },
    MoveByHand { "green at the end", "YR", "chip-1-0", nullptr },
    MoveByHand { "three reds", "YRRRG", "chip-3-0", "chip-1-0" },
    MoveByHand { "two greens", "YGGR", "chip-1-0", "chip-2-0" },
    MoveByHand { "flip", "YRGB", "chip-0-0", "chip-2-0" },
    MoveByHand { "split", "YGGR", "chip-1-0", nullptr },
    MoveByHand { "drop between blues", "YBRGBR", "chip-4-0", "chip-1-0" },
};

class FullScreenTest : public test::HeadlessPlay {
protected:
    void toggle() { game().controller().toggleFullscreen(); }
    void expectWindow(bool zoomed, bool fullScreen)
    {
        EXPECT_EQ(game().window().isZoomed(), zoomed);
        EXPECT_EQ(game().window().isInFullScreenMode(), fullScreen);
    }
    void expectRowsEqualLines()
    {
        std::size_t chips = 0;
        const auto expected = lines();
        for (unsigned number = 0; number < expected.size(); ++number) {
            EXPECT_EQ(row(number), expected[number]);
            for (unsigned column = 0; column < expected[number].size(); ++column) {
                const auto chip = object(board::generateKeyChipKey(column, number));
                ASSERT_NE(chip, nullptr);
                EXPECT_EQ(chip->x(), board::xPositionForColumn(column));
                EXPECT_EQ(chip->y(), board::yPositionForRow(number));
                EXPECT_EQ(chip->opacity(), 1.0);
            }
            chips += expected[number].size();
        }
        EXPECT_EQ(test::keysFrom(table(), "chip").size(), chips) << "stray chips";
        EXPECT_THAT(test::keysFrom(table(), "temporary"), IsEmpty());
    }
    std::vector<std::string> tracked() { return game().game().view().hover().trackedButtons(); }
};

const std::vector<std::string>& titleButtons()
{
    static const std::vector<std::string> kButtons { "button-classicbuttonoff",
        "button-endlessbuttonoff", "button-quitbuttonoff" };
    return kButtons;
}

const std::vector<std::string>& boardButtons()
{
    static const std::vector<std::string> kButtons { "button-lightbulboff", "button-movesbuttonoff",
        "button-menubuttonoff" };
    return kButtons;
}

} // namespace

TEST_F(FullScreenTest, FromAnUnzoomedWindowAndBackLeavesItUnzoomed)
{
    toggle();
    expectWindow(true, true);
    EXPECT_TRUE(game().controller().fullScreen().originallyZoomed());
    EXPECT_FALSE(game().controller().fullScreen().staysZoomed());
    toggle();
    expectWindow(false, false);
    EXPECT_FALSE(game().controller().fullScreen().staysZoomed());
}

TEST_F(FullScreenTest, FromAZoomedWindowAndBackLeavesItZoomed)
{
    toggle(); // once before, from an unzoomed one: that is forgotten
    toggle();
    game().window().zoom();
    toggle();
    expectWindow(true, true);
    EXPECT_FALSE(game().controller().fullScreen().originallyZoomed());
    EXPECT_TRUE(game().controller().fullScreen().staysZoomed());
    toggle();
    expectWindow(true, false);
}

TEST_F(FullScreenTest, LeavingWorksOnlyFromWithin)
{
    game().controller().exitFullscreen();
    expectWindow(false, false);
    toggle();
    game().controller().exitFullscreen();
    expectWindow(false, false);
}

TEST_F(FullScreenTest, TheKeysOfTheMenuAreF11AndEscape)
{
    game().key("Esc");
    expectWindow(false, false);
    game().key("F11");
    expectWindow(true, true);
    game().key("Esc");
    expectWindow(false, false);
    game().key("F11");
    game().key("F11");
    expectWindow(false, false);
}

TEST_F(FullScreenTest, TheTitlePageGetsNoButtonsOfTheBoard)
{
    wait(1.0);
    const auto before = table().keys();
    toggle();
    EXPECT_EQ(table().keys(), before);
    EXPECT_EQ(tracked(), titleButtons());
    toggle();
    EXPECT_EQ(table().keys(), before);
    EXPECT_EQ(tracked(), titleButtons());
}

TEST_F(FullScreenTest, AButtonLightsUpWhereItComesToLieUnderThePointer)
{
    wait(1.0);
    game().resize({ 720, 450 });
    // Where the Classic button is on the whole screen, as far from its upper left corner.
    game().move({ .x = 1.06 * 2.0, .y = 1.0 - (1.0 - 0.7) * 2.0 });
    wait(1.0);
    EXPECT_EQ(object("button-classicbuttonon")->opacity(), 0.0);
    toggle();
    EXPECT_EQ(object("button-classicbuttonon")->opacity(), 1.0);
    game().resize({ 720, 450 }); // away from under it
    EXPECT_EQ(object("button-classicbuttonon")->opacity(), 0.0);
}

TEST_F(FullScreenTest, ThePanelsButtonsFadeInAnewOnceEach)
{
    play("YR", "YB");
    const auto keys = table().keys();
    const auto before = object("button-menubuttonoff");
    toggle();
    EXPECT_NE(object("button-menubuttonoff"), before);
    EXPECT_LT(layer("button-menubuttonoff")->shownOpacity(), 0.1F);
    wait(0.6);
    EXPECT_EQ(layer("button-menubuttonoff")->shownOpacity(), 1.0F);
    EXPECT_EQ(table().keys(), keys);
    EXPECT_EQ(tracked(), boardButtons());
    const auto again = object("button-menubuttonoff");
    toggle(); // only on the way in
    EXPECT_EQ(object("button-menubuttonoff"), again);
}

TEST_F(FullScreenTest, InTheMiddleOfAnyMoveItEndsWithRowsEqualToLines)
{
    for (const MoveByHand& move : kMoves) {
        for (const double moment : { 0.0, 0.3, 0.6, 0.8, 1.1, 1.3, 1.45, 1.6 }) {
            SCOPED_TRACE(std::string(move.name) + " at " + std::to_string(moment));
            play(move.root, "YB");
            move.to != nullptr ? drag(move.from, move.to) : click(move.from);
            ASSERT_EQ(lines().size(), 2U);
            wait(moment);
            toggle();
            expectRowsEqualLines();
            for (int tenth = 0; tenth < 30; ++tenth) {
                wait(0.1);
                expectRowsEqualLines(); // nothing of the move comes after
            }
            EXPECT_TRUE(table().contains("delete-1"));
        }
    }
}

TEST_F(FullScreenTest, TheLineDrawnAnewIsPlayedOn)
{
    play("YRG", "YB");
    click("chip-0-0");
    wait(0.4);
    toggle();
    settle();
    click("chip-0-1");
    settle();
    EXPECT_THAT(lines(), ElementsAre("YRG", "YRGRG", "YRGRGRGRG"));
    expectRowsEqualLines();
}

TEST_F(FullScreenTest, ADragInHandIsLetGo)
{
    play("YRRR", "YB");
    press("chip-1-0");
    move("chip-2-0");
    ASSERT_EQ(dragImages().size(), 1U);
    toggle();
    release("chip-3-0");
    settle();
    EXPECT_THAT(lines(), ElementsAre("YRRR"));
    EXPECT_THAT(dragImages(), IsEmpty());
    expectRowsEqualLines();
}

TEST_F(FullScreenTest, ChipsOfADeletedLineGoOnShrinkingAndGo)
{
    play("YR", "YB");
    click("chip-0-0");
    settle();
    click("delete-1");
    wait(0.5);
    toggle();
    settle();
    EXPECT_THAT(lines(), ElementsAre("YR"));
    expectRowsEqualLines();
}

TEST_F(FullScreenTest, AtAnyMomentOfTheCelebrationTheNextPuzzleComesUnharmed)
{
    for (const double moment : { 0.2, 2.7, 3.5, 4.2, 4.6, 6.0, 6.6 }) {
        SCOPED_TRACE(moment);
        play({ .root = "YGR", .goal = "YGRGR", .par = 2, .level = 1, .stage = 1 });
        click("chip-0-0");
        wait(moment);
        toggle();
        expectRowsEqualLines();
        wait(8.0 - moment);
        EXPECT_EQ(game().currentGame().stage(), 2);
        EXPECT_EQ(lines().size(), 1U);
        expectRowsEqualLines();
    }
}

TEST_F(FullScreenTest, UnderAPageTheBoardIsRebuiltAndThePageStaysWhole)
{
    play("YR", "YB");
    game().controller().pages().show("howToPlayMessageWindow");
    wait(1.1);
    const auto page = test::keysFrom(table(), "fullScreen");
    game().move({ .x = 0.3, .y = 0.125 }); // on the menu button, which must not light up
    toggle();
    EXPECT_EQ(test::keysFrom(table(), "fullScreen"), page);
    EXPECT_EQ(game().controller().messages().page(), "howToPlayMessageWindow");
    EXPECT_EQ(object("button-menubuttonon")->opacity(), 0.0);
    EXPECT_THAT(tracked(), IsEmpty()) << "a page takes every press";
    EXPECT_GT(layer("fullScreen")->zPosition(), layer("chip-0-0")->zPosition());
    expectRowsEqualLines();
    click("fullScreen");
    EXPECT_EQ(game().controller().messages().page(), "stage1MessageWindow");
}

TEST_F(FullScreenTest, BesideANotePlayGoesOn)
{
    play({ .root = "YGR", .goal = "YGRGR", .par = 2, .level = 1, .stage = 1 });
    click("chip-1-0"); // not what the lesson asks for
    wait(1.1);
    const std::string note = game().controller().messages().page();
    ASSERT_NE(note, "");
    toggle();
    EXPECT_EQ(game().controller().messages().page(), note);
    EXPECT_EQ(tracked(), boardButtons());
    click("chip-0-0");
    EXPECT_EQ(lines().size(), 2U);
}

// A dialogue opens on the title page, so it is looked for before the page beneath it.
TEST_F(FullScreenTest, UnderADialogueItsButtonsAnswerAsBefore)
{
    game().preferences().setRecord("Player-New",
        { { "TRNLevelKey", std::int64_t { 2 } }, { "TRNStageKey", std::int64_t { 4 } } });
    game().controller().flow().returnToMenu();
    wait(1.0);
    click("button-classicbuttonon");
    wait(1.0);
    ASSERT_EQ(game().controller().dialogueState(), 1);
    const auto keys = table().keys();
    toggle();
    EXPECT_EQ(table().keys(), keys);
    EXPECT_THAT(tracked(), ElementsAre("fullScreen-1i", "fullScreen-2i"));
    game().resize({ 1000, 700 });
    EXPECT_THAT(tracked(), ElementsAre("fullScreen-1i", "fullScreen-2i"));
    click("fullScreen-3i");
    EXPECT_EQ(game().currentGame().stage(), 4);
}

TEST_F(FullScreenTest, AFinishedClassicGameHasNoChipsToDraw)
{
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 11, .stage = 10 });
    click("chip-1-0");
    wait(8.0);
    ASSERT_EQ(game().controller().messages().page(), "classicGameFinished");
    toggle();
    EXPECT_THAT(test::keysFrom(table(), "chip"), IsEmpty());
    EXPECT_EQ(game().controller().messages().page(), "classicGameFinished");
}

// The window's own buttons are there in full screen too, on some desktops.
TEST_F(FullScreenTest, AWindowThatWasMadeSmallerMeanwhileIsNotMadeLarger)
{
    toggle();
    expectWindow(true, true);
    game().window().zoom();
    ASSERT_FALSE(game().window().isZoomed());
    toggle();
    expectWindow(false, false);
}

TEST_F(FullScreenTest, AWindowZoomedAfterwardsStaysSo)
{
    toggle();
    toggle();
    game().window().zoom();
    EXPECT_TRUE(game().controller().fullScreen().staysZoomed());
}

} // namespace veyrand::controller
