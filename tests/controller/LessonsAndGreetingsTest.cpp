#include "support/HeadlessPlay.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::controller {

namespace {

struct Lesson {
    int stage;
    unsigned lines; // 0 for any number
    unsigned row;
    unsigned column;
    const char* note;
};

constexpr std::array kLessons {
    Lesson { 1, 1, 0, 0, "stage1Help" },
    Lesson { 2, 1, 0, 0, "stage2aHelp" },
    Lesson { 2, 2, 1, 0, "stage2bHelp" },
    Lesson { 3, 0, 0, 1, "stage3aHelp" },
    Lesson { 4, 1, 0, 0, "stage4aHelp" },
    Lesson { 4, 2, 1, 2, "stage4bHelp" },
    Lesson { 5, 1, 0, 1, "stage5aHelp" },
    Lesson { 5, 2, 1, 0, "stage5bHelp" },
};

struct Greeted {
    int level;
    int stage;
    const char* arriving;
    const char* resuming;
    int code = 0; // after arriving
};

constexpr std::array kGreetings {
    Greeted { 1, 2, "stage2MessageWindow", "stage2MessageWindow" },
    Greeted { 1, 3, "stage3MessageWindow", "stage3MessageWindow" },
    Greeted { 1, 4, "stage4MessageWindow", "stage4MessageWindow" },
    Greeted { 1, 5, "stage5MessageWindow", "stage5MessageWindow" },
    Greeted { 1, 6, "stage6MessageWindow", "stage6MessageWindow", 7 },
    Greeted { 1, 8, "stage8MessageWindow", "stage8MessageWindow" },
    Greeted { 1, 9, "stage9MessageWindow", "stage9MessageWindow" },
    Greeted { 1, 10, "stage10MessageWindow", "stage10MessageWindow" },
    Greeted { 2, 1, "showSuccessMessage", "stage11MessageWindow", 3 },
    Greeted { 3, 1, "showSuccessMessage", "stage21MessageWindow", 4 },
    Greeted { 4, 1, "showSuccessMessage", "stage31MessageWindow", 5 },
    Greeted { 5, 1, "showSuccessMessage", "stage41MessageWindow", 6 },
    Greeted { 5, 5, "stage45MessageWindow", "stage45MessageWindow" },
    Greeted { 6, 1, "showSuccessMessage", "" },
    Greeted { 7, 1, "showSuccessMessage", "" },
    Greeted { 8, 1, "showSuccessMessage", "" },
    Greeted { 9, 1, "showSuccessMessage", "" },
    Greeted { 10, 1, "showSuccessMessage", "" },
    Greeted { 11, 1, "showSuccessMessage", "" },
};

Greeted greetingAt(int level, int stage)
{
    for (const Greeted& greeting : kGreetings) {
        if (greeting.level == level && greeting.stage == stage) {
            return greeting;
        }
    }
    return { level, stage, "", "" };
}

} // namespace

class LessonsTest : public test::HeadlessPlay {
protected:
    // A puzzle at the place with so many lines standing.
    void stand(int level, int stage, unsigned lines, Mode mode = Mode::Classic)
    {
        play({ .root = "YRRR",
            .goal = "YB",
            .par = 5,
            .level = level,
            .stage = stage,
            .mode = mode });
        for (unsigned line = 1; line < lines; ++line) {
            game().controller().proof()->appendLine(engine::Theorem("YRRR"));
        }
    }
    // The note that a click is answered with; empty when it may go on.
    std::string answerToClick(unsigned row, unsigned column)
    {
        Messages& messages = game().controller().messages();
        messages.dismiss();
        const bool goesOn = game().controller().tutorial().checkTutorialClick(row, column);
        EXPECT_EQ(goesOn, messages.page().empty());
        return messages.page();
    }
    std::string answerToDrag(unsigned row, unsigned from, unsigned toRow, unsigned to)
    {
        Messages& messages = game().controller().messages();
        messages.dismiss();
        const bool goesOn = game().controller().tutorial().checkTutorialDrag(row, from, toRow, to);
        EXPECT_EQ(goesOn, messages.page().empty());
        return messages.page();
    }
};

TEST_F(LessonsTest, AskForOneClickEachAndForNothingElsewhere)
{
    for (const int level : { 1, 2, 5 }) {
        for (int stage = 1; stage <= 10; ++stage) {
            for (unsigned lines = 1; lines <= 3; ++lines) {
                SCOPED_TRACE(std::to_string(level) + '-' + std::to_string(stage) + " with "
                    + std::to_string(lines) + " lines");
                stand(level, stage, lines);
                for (unsigned row = 0; row < lines; ++row) {
                    for (unsigned column = 0; column < 4; ++column) {
                        std::string expected;
                        for (const Lesson& lesson : kLessons) {
                            if (level == 1 && lesson.stage == stage
                                && (lesson.lines == 0 || lesson.lines == lines)
                                && (lesson.row != row || lesson.column != column)) {
                                expected = lesson.note;
                            }
                        }
                        if (level == 1 && stage == 8 && lines == 1) {
                            expected = "stage8aHelp";
                        }
                        EXPECT_EQ(answerToClick(row, column), expected) << row << ", " << column;
                    }
                }
            }
        }
    }
}

TEST_F(LessonsTest, AskForOneDragAndLeaveAllOthersFree)
{
    for (int stage = 1; stage <= 10; ++stage) {
        for (unsigned lines = 1; lines <= 2; ++lines) {
            stand(1, stage, lines);
            const bool asks = stage == 8 && lines == 1;
            EXPECT_EQ(answerToDrag(0, 1, 0, 3), "") << stage;
            for (const auto& [from, to] : { std::pair { 3U, 1U }, { 1U, 2U }, { 0U, 2U } }) {
                EXPECT_EQ(answerToDrag(0, from, 0, to), asks ? "stage8aHelp" : "") << stage;
            }
            EXPECT_EQ(answerToDrag(1, 1, 1, 3), asks ? "stage8aHelp" : "") << stage;
        }
    }
}

TEST_F(LessonsTest, AreNoneOfEndless)
{
    for (int stage = 1; stage <= 10; ++stage) {
        stand(1, stage, 1, Mode::Endless);
        EXPECT_EQ(answerToClick(0, 2), "");
        EXPECT_EQ(answerToDrag(0, 3, 0, 1), "");
    }
}

TEST_F(LessonsTest, StayInForceForGood)
{
    EXPECT_TRUE(game().controller().tutorial().running());
    game().controller().pages().show("howToPlayMessageWindow");
    game().controller().flow().returnToMenu();
    EXPECT_TRUE(game().controller().tutorial().running());
}

TEST_F(LessonsTest, ANoteThatFollowsAClickNeverComesOverAnotherPuzzle)
{
    stand(1, 2, 1);
    EXPECT_EQ(answerToClick(0, 0), "");
    stand(1, 9, 1);
    EXPECT_EQ(game().controller().messages().page(), "");
}

class GreetingsTest : public test::HeadlessPlay { };

TEST_F(GreetingsTest, MeetThePlayerAtTheirPlacesAndNowhereElse)
{
    Messages& messages = game().controller().messages();
    for (int level = 1; level <= 11; ++level) {
        for (int stage = 1; stage <= 10; ++stage) {
            SCOPED_TRACE(std::to_string(level) + '-' + std::to_string(stage));
            const Greeted expected = greetingAt(level, stage);
            play(at(level, stage, "YR", "YB"));
            game().preferences().setValue("TRNEndlessGameUnlockedKey", false);
            game().controller().pages().showMessageForNewGame(Pages::Arrival::Solving);
            EXPECT_EQ(messages.page(), expected.arriving);
            EXPECT_EQ(messages.displayMessageWindowOnClick(), expected.code);

            messages.dismiss();
            game().preferences().setValue("TRNEndlessGameUnlockedKey", false);
            game().controller().pages().showMessageForNewGame(Pages::Arrival::Resuming);
            EXPECT_EQ(messages.page(), expected.resuming);
        }
    }
}

// The operation's own greeting is the one after a solved puzzle; at the very first place it is the
// page that explains the game.
TEST_F(GreetingsTest, ANewGameIsGreetedAtOnceAndAtTheVeryFirstPlaceExplained)
{
    GameFlow& flow = game().controller().flow();
    flow.newGame();
    EXPECT_EQ(game().controller().messages().page(), "howToPlayMessageWindow");
    flow.setStageAndLevelAndScore(1, 3, 300);
    flow.newGame();
    EXPECT_EQ(game().controller().messages().page(), "showSuccessMessage");
    GameFlow::continueGame();
    EXPECT_EQ(game().controller().messages().page(), "showSuccessMessage");
}

TEST_F(GreetingsTest, TheNewsThatEndlessIsOpenComesOnceForAllPlayers)
{
    Messages& messages = game().controller().messages();
    play(at(5, 5, "YR", "YB"));
    game().controller().pages().showMessageForNewGame(Pages::Arrival::Solving);
    EXPECT_EQ(messages.page(), "stage45MessageWindow");
    EXPECT_TRUE(game().preferences().boolForKey("TRNEndlessGameUnlockedKey"));
    messages.dismiss();
    game().preferences().setValue("TRNPlayerNameKey", std::string("Somebody else"));
    game().controller().pages().showMessageForNewGame(Pages::Arrival::Solving);
    EXPECT_EQ(messages.page(), "");
}

} // namespace veyrand::controller
