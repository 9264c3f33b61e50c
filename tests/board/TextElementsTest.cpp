#include "board/BoardFixture.h"

namespace veyrand::board {

using TextElements = BoardTest;

TEST_F(TextElements, ATextIsARecordWithoutImageThatShowsSixty)
{
    const auto counter
        = gameData().createGameObjectWithText({ .text = "12" }, 0.3, 0.8, 0.0, 0.0, 1.0, "c");
    EXPECT_EQ(object("c"), counter);
    EXPECT_EQ(lookOf(*counter), (Look { "", 0.3, 0.8, 0.0, 0.0, 1.0 }));
    EXPECT_TRUE(counter->visible());
    EXPECT_EQ(text("c"), "12");
    EXPECT_EQ(counter->text()->fontSize, 60.0);
}

TEST_F(TextElements, ACounterIsAddedTransparentAndSentToFullOpacity)
{
    double opacityWhenAdded = -1.0;
    table().setNewObjectListener(
        [&](const std::string& key) { opacityWhenAdded = object(key)->opacity(); });
    gameData().fadeInCounter("7", 0.3, 0.4, 0.0, 0.0, "counter-par");
    EXPECT_EQ(opacityWhenAdded, 0.0);
    EXPECT_EQ(object("counter-par")->opacity(), 1.0);
}

TEST_F(TextElements, ALabelIsAddedTransparentAndSentToFullOpacity)
{
    double opacityWhenAdded = -1.0;
    table().setNewObjectListener(
        [&](const std::string& key) { opacityWhenAdded = object(key)->opacity(); });
    gameData().fadeInLabel("Points", 0.3, 0.9, 0.2, 0.06, "label-points");
    EXPECT_EQ(opacityWhenAdded, 0.0);
    EXPECT_EQ(lookOf(*object("label-points")), (Look { "Points", 0.3, 0.9, 0.2, 0.06, 1.0 }));
}

TEST_F(TextElements, TheTextAlreadyShownLeavesRecordAndLayerUntouched)
{
    gameData().fadeInCounter("7", 0.3, 0.4, 0.0, 0.0, "counter-par");
    const GameObjectPtr before = object("counter-par");
    const test::RecordingObserver observer(table(), "counter-par");
    gameData().changeText("7", before);
    EXPECT_EQ(object("counter-par"), before);
    EXPECT_TRUE(observer.heard().empty());
}

TEST_F(TextElements, AnotherTextComesAtOnceInTheSamePlaceUnderTheSameKey)
{
    gameData().fadeInCounter("7", 0.3, 0.4, 0.0, 0.0, "counter-par");
    const GameObjectPtr before = object("counter-par");
    double opacityWhenAdded = -1.0;
    table().setNewObjectListener(
        [&](const std::string& key) { opacityWhenAdded = object(key)->opacity(); });
    gameData().changeText("8", before);
    const GameObjectPtr after = object("counter-par");
    EXPECT_NE(after, before);
    EXPECT_EQ(lookOf(*after), lookOf(*before));
    EXPECT_EQ(opacityWhenAdded, 1.0); // no fade
    EXPECT_EQ(text("counter-par"), "8");
    EXPECT_EQ(before->keyInGameData(), "counter-par");
}

TEST_F(TextElements, ChangingTheTextOfNothingDoesNothing)
{
    gameData().changeText("8", nullptr);
    EXPECT_TRUE(table().keys().empty());
}

TEST_F(TextElements, EveryElementHasANameForPeople)
{
    board().newGame("YRGB", "YB");
    board().lines.createDeleteButton(3);
    board().hints.drawProofGoodSoFar();
    const std::pair<const char*, const char*> kNames[] { { "chip-0-0", "yellow" },
        { "chip-1-0", "red" }, { "chip-2-0", "green" }, { "chip-3-0", "blue" },
        { "goal-0-12", "yellow" }, { "delete-3", "delete line 3" }, { "checkmark", "good so far" },
        { "button-lightbulbon", "Hint" }, { "button-lightbulboff", "Hint" },
        { "button-menubuttonoff", "Menu" }, { "label-points", "points" },
        { "counter-stage", "1-1" } };
    for (const auto& [key, name] : kNames) {
        ASSERT_NE(object(key), nullptr) << key;
        EXPECT_EQ(object(key)->name(), name) << key;
    }
    for (const std::string& key : table().keys()) {
        EXPECT_NE(object(key)->name(), "") << key;
    }
    object("chip-0-0")->setImageName("RedChip"); // as its picture changes, so does its name
    EXPECT_EQ(object("chip-0-0")->name(), "red");
    EXPECT_EQ(GameObject("Veil", 0.8, 0.5, 1.6, 1.0, 0.0, true).name(), "");
}

TEST_F(TextElements, RenewingLeavesEverythingAsItIs)
{
    gameData().fadeInCounter("7", 0.3, 0.4, 0.0, 0.0, "counter-par");
    const test::RecordingObserver observer(table(), "counter-par");
    GameData::renewAllObjects();
    EXPECT_TRUE(observer.heard().empty());
}

} // namespace veyrand::board
