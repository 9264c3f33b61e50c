#include "controller/AccessibleTree.h"
#include "controller/Legality.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::Contains;
using ::testing::ElementsAre;

namespace {

// What is said where there is nothing to tell, and where a reader's own focus goes.
class SpokenKeysTest : public test::HeadlessPlay {
protected:
    [[nodiscard]] std::string text(const char* id) { return game().game().texts().text(id); }
    [[nodiscard]] std::vector<std::string> saidAt(std::string_view keys)
    {
        static_cast<void>(game().takeAnnouncements());
        game().key(keys);
        wait(0.2);
        return game().takeAnnouncements();
    }
};

} // namespace

TEST_F(SpokenKeysTest, SayThatThereIsNoPuzzleWhereThereIsNone)
{
    wait(2.0);
    game().listen();
    for (const char* const keys : { "G", "L", "D", "P" }) {
        EXPECT_THAT(saidAt(keys), ElementsAre(text("spoken.noPuzzle"))) << keys;
    }
}

TEST_F(SpokenKeysTest, SayThatAChipCannotBeLiftedAndThatOneIsBack)
{
    play("YR", "YGG");
    game().listen();
    game().key("2");
    EXPECT_THAT(saidAt("Space"), Contains(text("spoken.cannotBeLifted"))) << "it is only clicked";
    play("YRRR", "YGG");
    game().key("1");
    game().key("Space");
    ASSERT_EQ(game().game().view().keyLifted(), "chip-0-0");
    static_cast<void>(game().takeAnnouncements());
    EXPECT_TRUE(game().controller().key("Esc", GameController::Press::First));
    wait(0.2);
    EXPECT_THAT(game().takeAnnouncements(), Contains(text("spoken.hasBeenPutBack")));
    EXPECT_EQ(game().game().view().keyLifted(), "");
}

TEST_F(SpokenKeysTest, AReaderGoesToWhatIsOnTheBoardAndOnASheet)
{
    play("YRRR", "YGG");
    EXPECT_EQ(focusedId(game().controller()), "");
    focusOn(game().controller(), "chip-1-0");
    EXPECT_EQ(focusedId(game().controller()), "chip-1-0");
    game().controller().sheets().openStatistics();
    const auto tree = accessibleTree(game().controller());
    const auto& places = tree.children.front().children;
    ASSERT_FALSE(places.empty());
    const std::string last = places.back().id;
    focusOn(game().controller(), last);
    EXPECT_EQ(focusedId(game().controller()), last);
}

TEST_F(SpokenKeysTest, SayThatNothingHasBeenSaidYet)
{
    wait(2.0);
    game().listen();
    EXPECT_THAT(saidAt("R"), ElementsAre(text("spoken.nothingSaid")));
    EXPECT_THAT(saidAt("R"), ElementsAre(text("spoken.nothingSaid")));
    EXPECT_THAT(saidAt("G"), ElementsAre(text("spoken.noPuzzle")));
    EXPECT_THAT(saidAt("R"), ElementsAre(text("spoken.noPuzzle")));
}

TEST_F(SpokenKeysTest, SayNothingToNobody)
{
    play("YR", "YGG");
    game().key("2");
    game().key("Space"); // cannot be lifted
    for (const char* const keys : { "Shift+H", "G", "R" }) {
        game().key(keys);
    }
    wait(0.5);
    EXPECT_EQ(game().controller().speaker().last(), "");
}

TEST_F(SpokenKeysTest, WhoStopsListeningHearsNothingOfWhatWasJustDone)
{
    play("YRRR", "YGG");
    game().listen();
    wait(0.5);
    static_cast<void>(game().takeAnnouncements());
    game().controller().speaker().sayGoal();
    game().controller().speaker().setListener({});
    wait(0.5);
    EXPECT_THAT(game().takeAnnouncements(), ElementsAre());
    EXPECT_EQ(game().controller().speaker().last(), "");
}

TEST_F(SpokenKeysTest, TellThePointsOfTheModeThatIsPlayed)
{
    Puzzle puzzle = at(1, 1, "YR", "YGG");
    puzzle.mode = Mode::Endless;
    play(puzzle);
    game().currentGame().addToScore(120 - game().currentGame().endlessScore());
    game().listen();
    EXPECT_THAT(saidAt("P"), ElementsAre(::testing::HasSubstr("120 points.")));
}

TEST_F(SpokenKeysTest, AnActionIsCalledByItsNameItsTextOrTheWordsBeforeTheColon)
{
    for (const char* const text : { "soulever: tout", "soulever : tout", "soulever\u00A0: tout",
             "soulever\u202F: tout", "soulever" }) {
        const AccessibleAction action { "lift", text };
        for (const char* const called : { "lift", text, "soulever" }) {
            EXPECT_TRUE(action.isCalled(called)) << called;
        }
        EXPECT_FALSE(action.isCalled("tout"));
    }
    EXPECT_EQ((AccessibleAction { "lift", "soulever " }.ownName()), "soulever ");
}

TEST_F(SpokenKeysTest, AThingIsFoundOnlyWithTheActionThatIsAskedFor)
{
    play("YR", "YGG");
    const auto tree = accessibleTree(game().controller());
    const std::string yellow = "yellow, start line, place 1";
    EXPECT_NE(find(tree, yellow, ""), nullptr);
    EXPECT_NE(find(tree, yellow, "click"), nullptr);
    EXPECT_EQ(find(tree, yellow, "lift"), nullptr) << "it can only be clicked";
    EXPECT_EQ(find(tree, "blue, start line, place 1", ""), nullptr);
}

TEST_F(SpokenKeysTest, AReaderLiftsOnlyWhatCanBeLiftedAndPressesAButtonAllTheSame)
{
    play("YRRRG", "YGG");
    EXPECT_FALSE(actOn(game().controller(), "chip-7-0", "lift"));
    EXPECT_TRUE(actOn(game().controller(), "chip-1-0", "lift"));
    EXPECT_EQ(game().game().view().keyLifted(), "chip-1-0");
    EXPECT_TRUE(actOn(game().controller(), "button-menubuttonon", "press"));
    EXPECT_EQ(game().game().view().keyLifted(), "");
}

TEST_F(SpokenKeysTest, NoChipCanBeDroppedAnywhereWhereNoneLies)
{
    wait(1.0);
    EXPECT_THAT(dropsThatAreMoves(game().controller(), 0, 0), ElementsAre());
}

TEST_F(SpokenKeysTest, EveryPageOfTheHelpMenuOpens)
{
    wait(2.0);
    for (const MenuItem& item : menuItems()) {
        if (item.menu != MenuId::Help || !item.choose || item.id == MenuItemId::Moves) {
            continue;
        }
        item.choose(game().controller());
        EXPECT_NE(game().controller().messages().page(), "") << item.text;
        wait(2.0);
        game().controller().closePage();
        EXPECT_EQ(game().controller().messages().page(), "") << item.text;
        wait(2.0);
    }
}

TEST_F(SpokenKeysTest, ASheetThatIsNotOpenTakesNoKey)
{
    EXPECT_FALSE(game().controller().sheets().key("Left"));
}

TEST_F(SpokenKeysTest, AGameThatOffersNothingAtItsEndEndsAtOnce)
{
    bool isOver = false;
    game().controller().applicationWillTerminate([&isOver] { isOver = true; });
    EXPECT_TRUE(isOver);
}

TEST_F(SpokenKeysTest, NoStepIsUndoneOrRedoneBeforeThereIsOne)
{
    game().controller().history().undo();
    game().controller().history().redo();
    play("YRRR", "YGG");
    game().controller().history().undo();
    game().controller().history().redo();
    EXPECT_EQ(lines(), std::vector<std::string> { "YRRR" });
}

TEST_F(SpokenKeysTest, WhatAReaderKnowsIsTheSameUntilSomethingIsDone)
{
    play("YRRR", "YGG");
    const AccessibleNode before = accessibleTree(game().controller());
    wait(1.0);
    EXPECT_TRUE(accessibleTree(game().controller()) == before);
    click("chip-0-0");
    EXPECT_FALSE(accessibleTree(game().controller()) == before);
}

} // namespace veyrand::controller
