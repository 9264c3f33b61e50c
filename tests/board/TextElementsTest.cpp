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
    EXPECT_EQ(texts().text("c"), "12");
    EXPECT_EQ(texts().style("c").fontSize, 60.0);
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
    EXPECT_EQ(texts().attached(), 1);
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
    EXPECT_EQ(texts().text("counter-par"), "8");
    EXPECT_EQ(before->keyInGameData(), "counter-par");
}

TEST_F(TextElements, ChangingTheTextOfNothingDoesNothing)
{
    gameData().changeText("8", nullptr);
    EXPECT_TRUE(table().keys().empty());
}

TEST_F(TextElements, RenewingLeavesEverythingAsItIs)
{
    gameData().fadeInCounter("7", 0.3, 0.4, 0.0, 0.0, "counter-par");
    const test::RecordingObserver observer(table(), "counter-par");
    GameData::renewAllObjects();
    EXPECT_TRUE(observer.heard().empty());
}

} // namespace veyrand::board
