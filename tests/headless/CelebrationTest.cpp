#include "present/ExtraTable.h"
#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

namespace {

using testing::Contains;
using testing::Not;

// A puzzle that one click solves, and what is painted of the celebration.
class CelebrationTest : public test::HeadlessPlay {
protected:
    void change(const std::function<void(progress::Settings&)>& how)
    {
        progress::Settings settings = progress::readSettings(game().preferences());
        how(settings);
        progress::writeSettings(game().preferences(), settings);
        game().game().settingsChanged();
    }
    void holdStill()
    {
        change([](progress::Settings& settings) {
            settings.reducedMotion = progress::Settings::ReducedMotion::On;
        });
    }
    void solve()
    {
        play("YR", "YRG");
        click("chip-1-0");
    }
    void solveInPractice()
    {
        const auto code = play::codeOf("YR", "YRG").value();
        ASSERT_EQ(game().controller().practice().open(code), "");
        wait(3.0);
        game().controller().closePage();
        wait(2.0);
        click("chip-1-0");
    }
    // Pictures that are asked for meanwhile, by whatever changes on the board.
    int picturesWanted(double seconds)
    {
        int pictures = 0;
        present::Scene& scene = game().game().layers().scene();
        scene.setDisplayListener([&pictures] { ++pictures; });
        wait(seconds);
        scene.setDisplayListener({});
        return pictures;
    }
    std::vector<std::string> words()
    {
        std::vector<std::string> words;
        for (const present::DisplayItem& item : game().game().layers().displayList()) {
            if (const auto* const text = std::get_if<present::TextContent>(&item.content)) {
                words.push_back(text->text);
            }
        }
        return words;
    }
    // Until the next puzzle comes.
    bool makesDust()
    {
        bool makesDust = false;
        for (int tenth = 0; tenth < 65; ++tenth) {
            wait(0.1);
            for (const auto& shown : game().game().layers().extras().shown()) {
                makesDust = makesDust || shown.kind == present::ExtraKind::Dust;
            }
        }
        return makesDust;
    }
};

constexpr double kJustBeforeThePlate = present::extras::kLightRuns - 0.01;

} // namespace

TEST_F(CelebrationTest, EveryStepOfTheCountAsksForItsPicture)
{
    solve();
    wait(kJustBeforeThePlate);
    EXPECT_GE(picturesWanted(present::extras::kCount + 0.02), present::extras::kCountSteps);
    EXPECT_THAT(words(), Contains(std::to_string(game().currentGame().score())));
}

TEST_F(CelebrationTest, ThePlateAsksForItsPictureWhereNothingMoves)
{
    holdStill();
    solve();
    wait(kJustBeforeThePlate);
    EXPECT_GT(picturesWanted(0.02), 0);
    EXPECT_THAT(words(), Contains(std::to_string(game().currentGame().score())));
}

TEST_F(CelebrationTest, ThePlateOfAPracticePuzzleAsksForItsPicture)
{
    solveInPractice();
    wait(kJustBeforeThePlate);
    EXPECT_GT(picturesWanted(0.02), 0);
    EXPECT_THAT(words(), Contains("At par!"));
    EXPECT_THAT(words(), Contains("in 1 move"));
}

TEST_F(CelebrationTest, PointsAreCountedAgainAfterPractice)
{
    solveInPractice();
    wait(10.0);
    solve();
    wait(3.0);
    EXPECT_THAT(words(), Contains(std::to_string(game().currentGame().score())));
    EXPECT_THAT(words(), Not(Contains("in 1 move")));
}

TEST_F(CelebrationTest, ThePlateGoesWithTheBoardsAnswers)
{
    solve();
    wait(3.0);
    ASSERT_THAT(words(), Contains(std::to_string(game().currentGame().score())));
    change([](progress::Settings& settings) { settings.answers = false; });
    wait(0.5);
    EXPECT_THAT(words(), Not(Contains(testing::HasSubstr("at par"))));
    EXPECT_THAT(game().game().layers().extras().shown(), testing::IsEmpty());
}

TEST_F(CelebrationTest, StonesTurnToDustUnlessMotionIsReduced)
{
    solve();
    EXPECT_TRUE(makesDust());
    holdStill();
    solve();
    EXPECT_FALSE(makesDust());
}

} // namespace veyrand::controller
