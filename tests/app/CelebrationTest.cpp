#include "present/FinalePictures.h"
#include "progress/PlayerKeys.h"
#include "progress/Settings.h"
#include "support/PlayedGame.h"

#include <gmock/gmock.h>

namespace veyrand::app {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

class CelebrationTest : public test::PlayedGame {
protected:
    [[nodiscard]] std::vector<std::string> kinds()
    {
        std::vector<std::string> kinds;
        for (const auto& shown : game().game().layers().extras().shown()) {
            kinds.emplace_back(present::nameOf(shown.kind));
        }
        return kinds;
    }
    [[nodiscard]] std::vector<std::string> plates()
    {
        std::vector<std::string> texts;
        for (const auto& shown : game().game().layers().extras().shown()) {
            if (shown.kind == present::ExtraKind::Plate) {
                texts.push_back(shown.text);
            }
        }
        return texts;
    }
    [[nodiscard]] std::vector<std::string> keysOf(present::ExtraKind kind)
    {
        std::vector<std::string> keys;
        for (const auto& shown : game().game().layers().extras().shown()) {
            if (shown.kind == kind) {
                keys.push_back(shown.key);
            }
        }
        return keys;
    }
    void finishTheGame()
    {
        play(at(11, 10, "YR", "YRG"));
        click("chip-1-0");
        wait(20.0);
    }
};

} // namespace

TEST_F(CelebrationTest, LightRunsAndThenAPlateSaysWhatThePuzzleBrought)
{
    play("YR", "YRG");
    click("chip-1-0");
    wait(0.5);
    EXPECT_THAT(kinds(), Contains("light"));
    EXPECT_THAT(plates(), IsEmpty());
    wait(0.8);
    EXPECT_THAT(plates(), ElementsAre("+150 at par"));
    EXPECT_EQ(object("counter-score")->text()->text, "0") << "as always";
    wait(3.0);
    EXPECT_THAT(plates(), IsEmpty());
    wait(0.3); // the stones have left the board
    EXPECT_EQ(object("chip-0-0"), nullptr);
    EXPECT_THAT(kinds(), Contains("dust"));
    wait(1.5);
    EXPECT_THAT(kinds(), Not(Contains("dust")));
}

TEST_F(CelebrationTest, ThePlateTellsOfDetoursAndOfHints)
{
    play(
        { .root = "YR", .goal = "YRGRG", .par = 2, .level = 5, .stage = 1, .mode = Mode::Classic });
    game().currentGame().addToScore(100);
    game().controller().flow().layOutPuzzle();
    wait(1.0);
    game().currentGame().addToScore(-50); // as a hint does
    click("chip-1-0");
    settle();
    click("chip-0-1");
    wait(1.5);
    EXPECT_THAT(plates(), ElementsAre("+140, 1 over par", "50 points went to hints"));
}

TEST_F(CelebrationTest, ARankHasItsMedalAndColouredHeadingsLieOnPlates)
{
    play(at(4, 1, "YR", "YB"));
    game().controller().pages().show("showSuccessMessage");
    wait(1.0);
    EXPECT_THAT(
        keysOf(present::ExtraKind::Plate), ElementsAre("fullScreen-0", "fullScreen-2", "medal"));
    game().key("Space");
    EXPECT_THAT(plates(), IsEmpty());
}

TEST_F(CelebrationTest, AMoveThatOpensHasItsSealAndDust)
{
    play(at(3, 1, "YR", "YB"));
    game().controller().pages().show("stage21MessageWindow");
    wait(0.5);
    EXPECT_THAT(keysOf(present::ExtraKind::Plate), ElementsAre("seal"));
    EXPECT_THAT(keysOf(present::ExtraKind::Dust), ::testing::SizeIs(present::kSealGrains));
    wait(1.5);
    EXPECT_THAT(keysOf(present::ExtraKind::Dust), IsEmpty());
    EXPECT_THAT(keysOf(present::ExtraKind::Plate), ElementsAre("seal"));
    game().key("Space");
    EXPECT_THAT(keysOf(present::ExtraKind::Plate), IsEmpty());
    game().controller().pages().show("stage9MessageWindow");
    EXPECT_THAT(keysOf(present::ExtraKind::Plate), IsEmpty()) << "tells of no new move";
}

TEST_F(CelebrationTest, TheLastPuzzleEndsInAFinaleThatGoesOnUntilTheMenu)
{
    finishTheGame();
    EXPECT_EQ(game().controller().messages().page(), "classicGameFinished");
    EXPECT_THAT(keysOf(present::ExtraKind::Dust), ::testing::SizeIs(present::kRisingStones));
    EXPECT_THAT(keysOf(present::ExtraKind::Plate), Contains("medal-10"));
    EXPECT_THAT(plates(), Contains("110 puzzles, 150 points"));
    game().key("Space");
    const auto quiet = keysOf(present::ExtraKind::Dust);
    EXPECT_THAT(quiet, Not(IsEmpty()));
    EXPECT_LT(quiet.size(), present::kRisingStones / 2);
    EXPECT_THAT(keysOf(present::ExtraKind::Plate), IsEmpty());
    const auto before = table().keys();
    for (int minute = 0; minute < 3; ++minute) {
        wait(60.0);
        const QImage one = game().picture();
        wait(0.05);
        EXPECT_NE(game().picture(), one) << "it moves on";
    }
    EXPECT_EQ(table().keys(), before) << "and nothing else happens by itself";
    EXPECT_EQ(keysOf(present::ExtraKind::Dust), quiet);
    click("button-menubuttonon");
    wait(2.0);
    EXPECT_THAT(keysOf(present::ExtraKind::Dust), IsEmpty());
    EXPECT_FALSE(game().game().layers().scene().isAnimating());
}

TEST_F(CelebrationTest, TheFinaleStandsStillWhereMotionIsReduced)
{
    game().preferences().setRecord(
        progress::kSettingsKey, { { "ReducedMotion", std::string("on") } });
    game().controller().settingsChanged();
    finishTheGame();
    EXPECT_THAT(keysOf(present::ExtraKind::Dust), ::testing::SizeIs(present::kRisingStones));
    const QImage one = game().picture();
    wait(1.0);
    EXPECT_EQ(game().picture(), one);
    EXPECT_FALSE(game().game().layers().scene().isAnimating()) << "and costs nothing";
}

TEST_F(CelebrationTest, KeysCloseAPageButNotInItsFirstSecond)
{
    play("YR", "YB");
    for (const char* key : { "Return", "Space", "Esc" }) {
        game().controller().pages().show("scoringMessageWindow");
        game().key(key);
        EXPECT_EQ(game().controller().messages().page(), "scoringMessageWindow") << key;
        wait(1.1);
        game().key(key);
        EXPECT_EQ(game().controller().messages().page(), "") << key;
        wait(1.0);
    }
}

TEST_F(CelebrationTest, EscapeLeavesAQuestionWithoutAnAnswer)
{
    game().preferences().setRecord(progress::playerRecordKey(progress::kDefaultPlayerName),
        { { std::string(progress::kLevelKey), std::int64_t { 3 } },
            { std::string(progress::kStageKey), std::int64_t { 2 } } });
    game().controller().flow().returnToMenu();
    wait(1.0);
    const auto before
        = game().preferences().record(progress::playerRecordKey(progress::kDefaultPlayerName));
    click("button-classicbuttonon");
    wait(1.0);
    ASSERT_NE(game().controller().dialogueState(), 0);
    game().key("Esc");
    EXPECT_EQ(game().controller().dialogueState(), 0);
    EXPECT_EQ(object("fullScreen"), nullptr);
    EXPECT_EQ(game().preferences().record(progress::playerRecordKey(progress::kDefaultPlayerName)),
        before);
    move("button-quitbuttonon");
    EXPECT_EQ(object("button-quitbuttonon")->opacity(), 1.0) << "the title page is alive";
}

TEST_F(CelebrationTest, TheFirstEscapeClosesAndOnlyTheNextLeavesFullScreen)
{
    play("YR", "YB");
    game().menu().trigger(QStringLiteral("Full Screen"));
    wait(1.0);
    ASSERT_TRUE(game().window().isInFullScreenMode());
    game().controller().pages().show("scoringMessageWindow");
    wait(1.1);
    game().key("Esc");
    EXPECT_TRUE(game().window().isInFullScreenMode());
    EXPECT_EQ(game().controller().messages().page(), "");
    game().key("Esc");
    EXPECT_FALSE(game().window().isInFullScreenMode());
}

} // namespace veyrand::app
