#include "present/BoardLayers.h"

#include "LayeredBoard.h"

#include <gtest/gtest.h>

namespace veyrand::present {

using platform::PointF;
using platform::RectF;

namespace {

// A game area of 1440 x 900 points.
class BoardLayersTest : public LayeredBoard {
protected:
    RectF gameArea() { return layers().backgroundLayer().rectInRoot(); }
};

} // namespace

TEST_F(BoardLayersTest, TheGameAreaIsFittedNeverStretchedAndCentred)
{
    layers().fitTo({ .width = 1440, .height = 900 });
    EXPECT_EQ(gameArea(), (RectF { 0.0F, 0.0F, 1440.0F, 900.0F }));
    layers().fitTo({ .width = 1000, .height = 450 });
    EXPECT_EQ(gameArea(), (RectF { 140.0F, 0.0F, 720.0F, 450.0F }));
    layers().fitTo({ .width = 720, .height = 650 });
    EXPECT_EQ(gameArea(), (RectF { 0.0F, 100.0F, 720.0F, 450.0F }));
    EXPECT_EQ(layers().viewSize(), (platform::Size { .width = 720, .height = 650 }));
}

TEST_F(BoardLayersTest, NothingShowsInTheMarginsBesideTheGameArea)
{
    layers().fitTo({ .width = 720, .height = 650 });
    table().addGameObject(
        std::make_shared<board::GameObject>("RedChip", 0.8, -0.1, 0.075, 0.075, 1.0, true), "chip");
    const auto list = layers().displayList();
    ASSERT_EQ(list.size(), 3U); // black, wood, chip
    EXPECT_EQ(list.back().clip, (RectF { 0.0F, 100.0F, 720.0F, 450.0F }));
}

TEST_F(BoardLayersTest, EveryRecordHasOneLayerAndATextLayerIsNone)
{
    layers().fitTo({ .width = 1440, .height = 900 });
    gameData().fadeInLabel("Points", 0.3, 0.9, 0.2, 0.06, "label-points");
    gameData().fadeInCounter("150", 0.3, 0.8, 0.0, 0.0, "counter-score");
    EXPECT_EQ(layers().backgroundLayer().sublayers().size(), 2U);
    const auto* const counter = layers().layerForKey("counter-score");
    ASSERT_NE(counter, nullptr);
    EXPECT_EQ(layers().gameLayerForGameObject(*table().objectForKey("counter-score")), counter);
    EXPECT_EQ(layers().layerForKey("counter-par"), nullptr);

    // What lies under the pointer on a counter is its text, which is no record's layer.
    Layer* const hit = layers().contentLayer().hitTest({ 0.3F * 900.0F, 0.8F * 900.0F });
    ASSERT_NE(hit, nullptr);
    EXPECT_NE(dynamic_cast<TextLayer*>(hit), nullptr);
    EXPECT_EQ(dynamic_cast<GameObjectLayer*>(hit), nullptr);
}

TEST_F(BoardLayersTest, ATextIsAsLargeAsItsStringAndReportsItsOwnFontSize)
{
    gameData().fadeInCounter("150", 0.3, 0.8, 0.0, 0.0, "counter-score");
    const TextLayer* const text = BoardLayers::textOn(*layers().layerForKey("counter-score"));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->string(), "150");
    EXPECT_EQ(text->fontSize(), 60.0);
    EXPECT_EQ(text->bounds(), (platform::SizeF { 3.0F * 60.0F, 1.25F * 60.0F }));
    EXPECT_EQ(text->position(), (PointF { 0.5F, 0.5F }));
}

TEST_F(BoardLayersTest, ACounterFadesInAndChangesAtOnce)
{
    gameData().fadeInCounter("150", 0.3, 0.8, 0.0, 0.0, "counter-score");
    EXPECT_EQ(layers().layerForKey("counter-score")->shownOpacity(), 0.0F);
    gameData().changeText("160", table().objectForKey("counter-score"));
    EXPECT_EQ(layers().layerForKey("counter-score")->shownOpacity(), 1.0F);
    EXPECT_EQ(BoardLayers::textOn(*layers().layerForKey("counter-score"))->string(), "160");
    EXPECT_EQ(layers().backgroundLayer().sublayers().size(), 1U);
}

TEST(TextSize, SixtyIsAFifteenthOfTheGameHeightOnEveryScreen)
{
    const test::SquareLetters metrics;
    const platform::VirtualRunLoop runLoop;
    Scene scene(runLoop);
    for (const double gameHeight : { 900.0, 600.0, 1440.0 }) {
        const TextLayer text(scene, { .text = "12" }, metrics, gameHeight);
        EXPECT_FLOAT_EQ(text.bounds().width, static_cast<float>(2.0 * gameHeight / 15.0));
        EXPECT_EQ(text.fontSize(), 60.0);
    }
}

} // namespace veyrand::present
