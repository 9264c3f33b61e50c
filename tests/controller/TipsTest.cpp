#include "controller/Tips.h"

#include "board/ElementKey.h"
#include "controller/GameController.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

namespace {

class TipsTest : public test::HeadlessPlay {
protected:
    [[nodiscard]] std::string medal(const char* mode, const progress::PlayerRecordChange& change)
    {
        progress::updatePlayerRecord(game().preferences(), progress::kDefaultPlayerName, change);
        return Tips(game().controller()).textFor(std::string("label-") + mode + "savegame");
    }
};

} // namespace

TEST_F(TipsTest, AMedalSaysWhereTheGameGoesOn)
{
    EXPECT_EQ(medal("classic", { .level = 1, .stage = 1, .score = 0 }), "a new game");
    EXPECT_EQ(
        medal("classic", { .level = 1, .stage = 4, .score = 310 }), "continue 1-4, 310 points");
    EXPECT_EQ(
        medal("classic", { .level = 2, .stage = 1, .score = 310 }), "continue 2-1, 310 points");
    EXPECT_EQ(medal("endless", { .endlessScore = 0 }), "a new game");
    EXPECT_EQ(medal("endless", { .endlessScore = -50 }), "continue with -50 points");
}

TEST_F(TipsTest, NothingIsSaidOfWhatIsNotThere)
{
    const Tips tips(game().controller());
    for (const char* const key : { "chip-0-0", "counter-par", "deletebutton-1", "nothing" }) {
        EXPECT_EQ(tips.textFor(key), "") << key << " on the title page";
    }
    play("YR", "YB");
    EXPECT_EQ(tips.textFor(board::generateKeyChipKey(0, 3)), "") << "a line that has gone";
    EXPECT_EQ(tips.textFor(board::generateKeyChipKey(7, 0)), "") << "beyond the line";
    EXPECT_EQ(tips.textFor(board::deleteButtonKey(0)), "") << "the start line stays";
    EXPECT_EQ(tips.textFor(board::deleteButtonKey(1)), "");
}

TEST_F(TipsTest, AChipIsToldAllThatCanBeDoneWithIt)
{
    play("YGGR", "YB");
    const Tips tips(game().controller());
    EXPECT_EQ(tips.textFor(board::generateKeyChipKey(1, 0)),
        "Click: puts a blue between the two greens. Drag: a green onto the green beside it.");
    EXPECT_EQ(tips.textFor(board::generateKeyChipKey(3, 0)), "Click: adds a green at the end.");
}

TEST_F(TipsTest, TheEasiestAndTheHardestPuzzlesAreCalledSo)
{
    const Tips tips(game().controller());
    Puzzle puzzle = at(1, 1, "YR", "YB");
    puzzle.mode = Mode::Endless;
    puzzle.par = kEasiestPar;
    play(puzzle);
    EXPECT_THAT(tips.textFor("button-easierbuttonon"), testing::HasSubstr("is the easiest"));
    EXPECT_THAT(tips.textFor("button-harderbuttonon"), testing::HasSubstr("a new puzzle"));
    puzzle.par = kHardestPar;
    play(puzzle);
    EXPECT_THAT(tips.textFor("button-harderbuttonon"), testing::HasSubstr("is the hardest"));
    EXPECT_THAT(tips.textFor("button-easierbuttonon"), testing::HasSubstr("a new puzzle"));
}

TEST_F(TipsTest, OnlyTheFirstHintIsSaidToExplain)
{
    const Tips tips(game().controller());
    for (const bool knows : { false, true }) {
        progress::updatePlayerRecord(
            game().preferences(), progress::kDefaultPlayerName, { .firstHintClick = knows });
        EXPECT_EQ(
            tips.textFor("button-lightbulbon"), knows ? "50 points" : "the first only explains");
    }
}

} // namespace veyrand::controller
