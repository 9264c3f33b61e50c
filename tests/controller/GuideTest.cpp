#include "play/Ways.h"
#include "progress/PlayerKeys.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::HasSubstr;

namespace {

// A puzzle that is practised, with the board asked after every move.
class GuideTest : public test::HeadlessPlay {
protected:
    void practise(const std::string& root, const std::string& goal, int open)
    {
        game().currentGame().loadPlayer(
            std::string(progress::kDefaultPlayerName), progress::Mode::Classic);
        game().currentGame().placePuzzle({ .root = root,
            .goal = goal,
            .par = 9,
            .practice = progress::CurrentGame::Practice {
                .open = open, .caption = "Somebody's own", .purse = 1000 } });
        game().controller().flow().layOutPuzzle();
        wait(3.0);
    }
    [[nodiscard]] std::string words() { return guide().state(); }
    [[nodiscard]] Guide& guide() { return game().controller().guide(); }
    [[nodiscard]] std::string text(const char* id) { return game().game().texts().text(id); }
    // From here the goal could be reached, were the board empty.
    [[nodiscard]] static std::optional<play::Move> aside(
        const std::string& from, const std::string& goal)
    {
        using engine::PackedLine;
        play::WaySearch search;
        const PackedLine line = PackedLine::pack(from).value();
        std::optional<play::Move> aside;
        std::size_t shortest = PackedLine::kMostChips + 1;
        for (const play::Step& step : play::stepsFrom(line, play::kAllMoves)) {
            const std::string text = step.line.text();
            if (text != goal && text.size() < shortest
                && search.find(step.line, PackedLine::pack(goal).value())) {
                shortest = text.size();
                aside = play::moveBetween(line, step.line, play::kAllMoves);
            }
        }
        return aside;
    }
};

} // namespace

TEST_F(GuideTest, SaysThatTooFewLinesAreLeft)
{
    const std::string goal = "YGRGB";
    practise("YRR", goal, 7);
    ASSERT_TRUE(guide().ask());
    EXPECT_THAT(words(), testing::Not(HasSubstr(text("guide.tooFewLines"))));
    while (lines().size() < 12) {
        const auto move = aside(lines().back(), goal);
        ASSERT_TRUE(move) << lines().back();
        ASSERT_TRUE(std::holds_alternative<play::Outcome>(
            game().controller().flow().apply(play::Action(*move))));
        wait(4.0);
    }
    EXPECT_THAT(words(), HasSubstr(text("guide.tooFewLines")));
}

TEST_F(GuideTest, SaysThatALineWouldGrowTooLong)
{
    practise("YRGGGBB", "YRGBBRGGGBB", 4);
    ASSERT_TRUE(guide().ask());
    EXPECT_THAT(words(), HasSubstr(text("guide.tooLong")));
    EXPECT_THAT(words(), HasSubstr(text("guide.backToStart")));
}

TEST_F(GuideTest, HasNothingToSayWhereNothingIsPractised)
{
    EXPECT_FALSE(guide().ask());
    EXPECT_EQ(words(), "");
    play("YRRR", "YG");
    EXPECT_FALSE(guide().ask());
    EXPECT_EQ(words(), "");
}

// Another puzzle on the board is not told what was found out of the one before it.
TEST_F(GuideTest, LooksAnewAtAnotherPuzzle)
{
    practise("YRRR", "YG", 7);
    ASSERT_TRUE(guide().ask());
    EXPECT_EQ(guide().advice().value().moves, 1U);
    practise("YRRR", "YGG", 7);
    EXPECT_EQ(guide().advice().value().moves, 2U);
}

TEST_F(GuideTest, HasNoButtonWithoutAnswers)
{
    practise("YRRR", "YG", 7);
    EXPECT_TRUE(guide().showsButton());
    progress::Settings settings = progress::readSettings(game().preferences());
    settings.answers = false;
    progress::writeSettings(game().preferences(), settings);
    game().game().settingsChanged();
    EXPECT_FALSE(guide().showsButton());
    EXPECT_TRUE(guide().ask()) << "the keys ask all the same";
    EXPECT_NE(words(), "");
}

} // namespace veyrand::controller
