#include "robot/Robot.h"

#include "progress/PlayerKeys.h"
#include "progress/Settings.h"
#include "support/FolderResources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

headless::HeadlessGame::Options withData(platform::Preferences::Contents preferences = {})
{
    return { .preferences = std::move(preferences), .resources = &gameResources() };
}

std::vector<std::string> takePages(const Robot& robot, std::size_t& taken)
{
    const auto& all = robot.pagesRead();
    std::vector<std::string> pages(all.begin() + static_cast<std::ptrdiff_t>(taken), all.end());
    taken = all.size();
    return pages;
}

} // namespace

class RobotAtTempo : public ::testing::TestWithParam<std::string> { };

INSTANTIATE_TEST_SUITE_P(Tempos, RobotAtTempo, ::testing::Values("normal", "off"),
    [](const auto& tempo) { return tempo.param; });

TEST_P(RobotAtTempo, PlaysClassicFromTheFirstPuzzleToTheClosingMessage)
{
    headless::HeadlessGame game(withData({ .values = {},
        .records = { { std::string(progress::kSettingsKey), { { "Tempo", GetParam() } } } } }));
    Robot robot(game);
    game.launch();
    game.wait(1.0);
    robot.click("button-classicbuttonon");

    std::size_t taken = 0;
    std::int64_t score = 0;
    for (int puzzle = 0; puzzle < 110; ++puzzle) {
        SCOPED_TRACE("puzzle " + std::to_string(game.currentGame().level()) + '-'
            + std::to_string(game.currentGame().stage()));
        ASSERT_EQ(game.currentGame().level(), puzzle / 10 + 1);
        ASSERT_EQ(game.currentGame().stage(), puzzle % 10 + 1);
        ASSERT_TRUE(robot.solvePuzzle());
        // Always by a shortest way, so each puzzle brings its full points.
        score += 150;
        EXPECT_EQ(game.currentGame().score(), score);
    }
    robot.readPages();
    EXPECT_EQ(game.controller().proof(), nullptr);
    EXPECT_EQ(robot.pagesRead().back(), "classicGameFinished");
    const auto record
        = game.preferences().record(progress::playerRecordKey(progress::kDefaultPlayerName));
    EXPECT_EQ(platform::integerForKey(*record, progress::kScoreKey), score);
    EXPECT_TRUE(game.preferences().boolForKey(progress::kEndlessGameUnlockedKey));

    // Every page of the way, each once and in its order.
    EXPECT_THAT(takePages(robot, taken),
        ElementsAre("howToPlayMessageWindow", "stage1MessageWindow", "stage1Help",
            "stage2MessageWindow", "stage2XHelp", "stage3MessageWindow", "stage4MessageWindow",
            "stage5MessageWindow", "stage6MessageWindow", "stage6IntermediateMessageWindow",
            "stage6IntermediateMessageWindow2", "stage8MessageWindow", "stage9MessageWindow",
            "stage10MessageWindow", "showSuccessMessage", "stage11MessageWindow",
            "showSuccessMessage", "stage21MessageWindow", "showSuccessMessage",
            "stage31MessageWindow", "showSuccessMessage", "stage41MessageWindow",
            "stage45MessageWindow", "showSuccessMessage", "showSuccessMessage",
            "showSuccessMessage", "showSuccessMessage", "showSuccessMessage", "showSuccessMessage",
            "classicGameFinished"));
}

TEST(Robot, PlaysTwoHundredEndlessPuzzlesOfEveryPar)
{
    headless::HeadlessGame game(withData(
        { .values = { { std::string(progress::kEndlessGameUnlockedKey), true } }, .records = {} }));
    Robot robot(game);
    game.launch();
    game.wait(1.0);
    robot.click("button-endlessbuttonon");

    std::int64_t score = 0;
    bool harder = true;
    for (int puzzle = 0; puzzle < 200; ++puzzle) {
        const int par = game.currentGame().par();
        SCOPED_TRACE("puzzle " + std::to_string(puzzle) + " of par " + std::to_string(par));
        ASSERT_TRUE(robot.solvePuzzle());
        score += par * 10 - 10;
        EXPECT_EQ(game.currentGame().endlessScore(), score);
        robot.waitUntilUnblocked();
        // Up to the hardest and down to the easiest, again and again.
        if (puzzle % 5 == 4) {
            robot.click(harder ? "button-harderbuttonon" : "button-easierbuttonon");
            harder = game.currentGame().par() == 12 ? false
                : game.currentGame().par() == 3     ? true
                                                    : harder;
        }
    }
    EXPECT_THAT(robot.pagesRead(), IsEmpty());
}

} // namespace veyrand::test
