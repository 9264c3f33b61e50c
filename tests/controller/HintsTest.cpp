#include "progress/PlayerKeys.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A player with points who knows what hints are.
class HintsTest : public test::HeadlessPlay {
protected:
    HintsTest()
        : HeadlessPlay(rich())
    {
    }

    static Options rich()
    {
        Options options;
        options.preferences.records["Player-New"] = {
            { std::string(progress::kLevelKey), std::int64_t { 5 } },
            { std::string(progress::kStageKey), std::int64_t { 2 } },
            { std::string(progress::kScoreKey), std::int64_t { 1000 } },
            { std::string(progress::kFirstHintClickKey), true },
        };
        return options;
    }

    void hint() { click("button-lightbulbon"); }
    int mode() { return game().controller().hints().hintMode(); }
    std::vector<std::string> hintChips() { return test::keysFrom(table(), "hint"); }
    // A proof whose last two lines lead nowhere.
    void playBadly()
    {
        play("YRR", "YRRRRG");
        click("chip-2-0");
        settle();
        click("chip-0-1");
        settle();
        ASSERT_THAT(lines(), ElementsAre("YRR", "YRRG", "YRRGRRG"));
    }
};

TEST_F(HintsTest, AFlyingHintDoesNotLandOnAnotherPuzzle)
{
    play("YRR", "YRRRRG");
    hint();
    wait(1.0);
    hint();
    wait(0.5);
    game().play(at(5, 1, "YR", "YB")); // within the three quarters of a second
    wait(2.0);
    EXPECT_THAT(lines(), ElementsAre("YR"));
    EXPECT_EQ(mode(), 0);
    EXPECT_THAT(hintChips(), IsEmpty());
}

TEST_F(HintsTest, AWalkBackDoesNotGoOnInAnotherPuzzle)
{
    playBadly();
    hint();
    game().play(at(5, 1, "YRR", "YRRRRG"));
    game().controller().proof()->appendLine(engine::Theorem("YB"));
    sounds();
    wait(2.0);
    EXPECT_THAT(lines(), ElementsAre("YRR", "YB"));
    EXPECT_THAT(sounds(), IsEmpty());
    EXPECT_EQ(mode(), 0);
    EXPECT_FALSE(table().contains("checkmark"));
}

TEST_F(HintsTest, InputIsBlockedUntilTheWalkBackHasEnded)
{
    playBadly();
    hint();
    while (table().contains("checkmark") == false) {
        EXPECT_TRUE(blocked());
        wait(0.05);
    }
    EXPECT_THAT(lines(), ElementsAre("YRR"));
    EXPECT_EQ(mode(), 1);
}

TEST_F(HintsTest, NoneCrossesToTheTitlePage)
{
    play("YRR", "YRRRRG");
    hint();
    wait(1.0);
    EXPECT_EQ(mode(), 2);
    click("button-menubuttonon");
    EXPECT_EQ(mode(), 0);
    wait(5.0);
    EXPECT_THAT(hintChips(), IsEmpty());
}

TEST_F(HintsTest, OneStageAClick)
{
    play("YRR", "YRRRRG");
    click("chip-0-0");
    settle();
    std::vector<int> modes;
    for (int i = 0; i < 3; ++i) {
        hint();
        modes.push_back(mode());
        wait(0.6);
    }
    EXPECT_THAT(modes, ElementsAre(1, 2, 1));
}

TEST_F(HintsTest, AskedForWhileTheLastIsOnItsWayCostNothing)
{
    playBadly();
    hint();
    ASSERT_EQ(game().controller().flow().phase(), play::Phase::WalkingBack);
    game().controller().hints().lightBulbClick();
    EXPECT_EQ(game().currentGame().score(), 950);

    play("YRR", "YRRRRG");
    hint();
    wait(1.0);
    hint();
    ASSERT_EQ(game().controller().flow().phase(), play::Phase::HintFlying);
    const auto score = game().currentGame().score();
    game().controller().hints().lightBulbClick();
    EXPECT_EQ(game().currentGame().score(), score);
    EXPECT_EQ(game().controller().flow().session()->settled().purse(), score);
}

TEST_F(HintsTest, TheSearchIsMadeAnewAfterEveryMove)
{
    play("YRR", "YRRRRG");
    hint(); // thinks of YRRRR
    wait(1.0);
    click("chip-0-0");
    settle();
    hint();
    wait(1.0);
    hint();
    wait(1.0);
    hint();
    settle();
    EXPECT_THAT(lines(), ElementsAre("YRR", "YRRRR", "YRRRRG"));
}

TEST_F(HintsTest, TakingAwayFewerThanTwelvePiecesLeavesTheMark)
{
    play("YRR", "YRRRRG");
    click("chip-0-0");
    settle();
    hint();
    EXPECT_TRUE(table().contains("checkmark"));
    game().controller().hints().clearHint();
    EXPECT_TRUE(table().contains("checkmark")) << "there were no pieces at all";

    for (unsigned i = 0; i < 12; ++i) {
        game().gameData().fadeInImage(
            "RedChip", 0.5, 0.5, 0.1, 0.1, 1.0, board::chipKey("hint", i, board::kHintRow));
    }
    game().controller().hints().clearHint();
    EXPECT_FALSE(table().contains("checkmark"));
    EXPECT_THAT(hintChips(), IsEmpty());
}

TEST_F(HintsTest, AreSilentAboutAPuzzleThatIsOver)
{
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 11, .stage = 10 });
    click("chip-1-0");
    wait(8.0);
    EXPECT_EQ(game().controller().proof(), nullptr);
    game().controller().messages().dismiss();
    game().controller().hints().hintClick();
    EXPECT_EQ(game().controller().messages().page(), "classicGameFinished");
    EXPECT_EQ(mode(), 0);
}

} // namespace veyrand::controller
