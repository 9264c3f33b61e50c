#include "support/HeadlessPlay.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

struct FollowOn {
    int code;
    const char* page;
    int codeAfterwards;
};

// Codes from 8 on are left as they are; it is the page that follows which changes them.
constexpr std::array kFollowOns {
    FollowOn { 0, "", 0 },
    FollowOn { 1, "stage1MessageWindow", 12 },
    FollowOn { 2, "moves2MessageWindow", 0 },
    FollowOn { 3, "stage11MessageWindow", 0 },
    FollowOn { 4, "stage21MessageWindow", 0 },
    FollowOn { 5, "stage31MessageWindow", 0 },
    FollowOn { 6, "stage41MessageWindow", 0 },
    FollowOn { 7, "stage6IntermediateMessageWindow", 8 },
    FollowOn { 8, "stage6IntermediateMessageWindow2", 0 },
    FollowOn { 9, "firstHint", 10 },
    FollowOn { 10, "secondHint", 11 },
    FollowOn { 11, "thirdHint", 0 },
    FollowOn { 12, "stage1Help", 0 },
    FollowOn { 13, "", 0 },
};

} // namespace

class MessagesTest : public test::HeadlessPlay {
protected:
    Messages& messages() { return game().controller().messages(); }
    void show(const std::string& page) { game().controller().pages().show(page); }
    std::vector<std::string> tracked() { return game().game().view().hover().trackedButtons(); }
};

TEST_F(MessagesTest, AClickOpensThePageOfItsCode)
{
    for (const FollowOn& followOn : kFollowOns) {
        SCOPED_TRACE(followOn.code);
        play("YR", "YB");
        show("stopHintClick");
        messages().setDisplayMessageWindowOnClick(followOn.code);
        messages().messageWindowClick();
        EXPECT_EQ(messages().page(), followOn.page);
        EXPECT_EQ(messages().displayMessageWindowOnClick(), followOn.codeAfterwards);
    }
}

TEST_F(MessagesTest, ThePageThatFollowsKeepsTheBoardSilentUntilItGoesToo)
{
    for (const FollowOn& followOn : kFollowOns) {
        SCOPED_TRACE(followOn.code);
        play("YR", "YB");
        show("stopHintClick");
        EXPECT_THAT(tracked(), IsEmpty());
        messages().setDisplayMessageWindowOnClick(followOn.code);
        messages().messageWindowClick();
        if (game().game().view().messageWindow()) {
            EXPECT_THAT(tracked(), IsEmpty());
            messages().setDisplayMessageWindowOnClick(0);
            messages().messageWindowClick();
        } else if (followOn.code == 13) {
            continue; // no such code; input is not restored for it
        }
        EXPECT_THAT(tracked(),
            ElementsAre("button-lightbulboff", "button-movesbuttonoff", "button-menubuttonoff"));
    }
}

TEST_F(MessagesTest, AMessageRaisesARunningBlockToOneSecondAndNeverLowersIt)
{
    play("YR", "YB");
    input::InputBlock& block = game().game().view().block();
    block.startBlockClick(0.5);
    show("stopHintClick");
    wait(0.99);
    EXPECT_TRUE(block.blockClick());
    wait(0.01);
    EXPECT_FALSE(block.blockClick());

    block.startBlockClick(3.0);
    show("stage2aHelp");
    wait(2.99);
    EXPECT_TRUE(block.blockClick());
    wait(0.2);
    EXPECT_FALSE(block.blockClick());
}

TEST_F(MessagesTest, ANoteKeepsTheBoardsHitAreas)
{
    play("YR", "YB");
    const auto before = tracked();
    show("stage2aHelp");
    EXPECT_EQ(tracked(), before);
    EXPECT_FALSE(game().game().view().messageWindow());
    EXPECT_TRUE(game().game().view().tutorialWindow());
}

TEST_F(MessagesTest, OneShownOverAnotherLeavesTheRestToTheBoard)
{
    play("YR", "YB");
    show("stage2MessageWindow");
    show("stopHintClick");
    messages().messageWindowClick();
    EXPECT_EQ(messages().page(), "");
    EXPECT_FALSE(table().contains("fullScreen"));
    EXPECT_FALSE(table().contains("fullScreen-1"));
    EXPECT_TRUE(table().contains("fullScreen-2")) << "the third line of the first";
    play("YR", "YB");
    EXPECT_THAT(test::keysFrom(table(), "fullScreen"), IsEmpty());
}

TEST_F(MessagesTest, ANewPuzzleEndsWhatIsOpenAndWhatWouldFollow)
{
    play("YR", "YB");
    show("howToPlayMessageWindow");
    play("YR", "YB");
    EXPECT_EQ(messages().page(), "");
    EXPECT_EQ(messages().displayMessageWindowOnClick(), 0);
    click("chip-0-0");
    EXPECT_EQ(lines().size(), 2U) << "the press plays";
}

TEST_F(MessagesTest, AnUnknownPageIsRefused)
{
    EXPECT_FALSE(game().controller().pages().show("stage7MessageWindow"));
    EXPECT_EQ(messages().page(), "");
}

class DialoguesTest : public MessagesTest { };

TEST_F(DialoguesTest, TheOneThatNobodyAsksLeadsHomeOrBack)
{
    Dialogues& dialogues = game().controller().dialogues();
    play("YR", "YB");
    dialogues.showDialogue("ContinueGame", "StartNewGame", Dialogues::Question::ReturnToMenu);
    EXPECT_EQ(dialogues.dialogueState(), 2);
    dialogues.dialogueButtonClick(1);
    EXPECT_EQ(dialogues.dialogueState(), 0);
    EXPECT_FALSE(table().contains("fullScreen-1i"));
    EXPECT_THAT(tracked(),
        ElementsAre("button-lightbulboff", "button-movesbuttonoff", "button-menubuttonoff"));

    dialogues.showDialogue("ContinueGame", "StartNewGame", Dialogues::Question::ReturnToMenu);
    dialogues.dialogueButtonClick(0);
    EXPECT_EQ(dialogues.dialogueState(), 0);
    EXPECT_TRUE(table().contains("label-veyrand"));
}

TEST_F(DialoguesTest, WithoutOneItsButtonsDoNothing)
{
    play("YR", "YB");
    game().controller().buttonClick("fullScreen-3i");
    game().controller().buttonClick("fullScreen-4i");
    game().controller().buttonClick("");
    game().controller().buttonClick("button-unheardof");
    EXPECT_THAT(lines(), ElementsAre("YR"));
}

TEST_F(DialoguesTest, OnlyItsTwoButtonsAreTracked)
{
    play("YR", "YB");
    game().controller().dialogues().showDialogue(
        "ContinueGame", "StartNewGame", Dialogues::Question::ClassicGame);
    EXPECT_THAT(tracked(), ElementsAre("fullScreen-1i", "fullScreen-2i"));
    game().game().view().reestablishTracking();
    EXPECT_THAT(tracked(), ElementsAre("fullScreen-1i", "fullScreen-2i"));
}

} // namespace veyrand::controller
