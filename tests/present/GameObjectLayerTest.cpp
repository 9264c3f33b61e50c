#include "present/GameObjectLayer.h"

#include "LayeredBoard.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyrand::present {

using board::GameObject;
using platform::PointF;
using platform::SizeF;

namespace {

constexpr float kNear = 1e-3F; // points

// Layers over a board whose game area is 600 points high.
class GameObjectLayerTest : public LayeredBoard {
protected:
    GameObjectLayerTest()
        : LayeredBoard({ .width = 960, .height = 600 })
    {
    }
    GameObjectLayer& add(const std::string& key, double x, double y, double size,
        double opacity = 1.0, bool visible = true)
    {
        LayeredBoard::add("RedChip", key, x, y, size, opacity, visible);
        return *layers().layerForKey(key);
    }
    template <class Function> void change(const std::string& key, Function&& setFields)
    {
        table().change(key, std::forward<Function>(setFields));
    }
};

} // namespace

TEST_F(GameObjectLayerTest, ANewLayerIsPlacedAtOnce)
{
    const auto& layer = add("chip-0-0", 0.3, 0.5, 0.1);
    EXPECT_EQ(layer.position(), (PointF { 180.0F, 300.0F }));
    EXPECT_EQ(layer.bounds(), (SizeF { 60.0F, 60.0F }));
    EXPECT_EQ(layer.shownPosition(), layer.position());
    EXPECT_EQ(layer.shownBounds(), layer.bounds());
    EXPECT_EQ(layer.shownOpacity(), 1.0F);
    EXPECT_EQ(layer.imageName(), "RedChip");
    EXPECT_FALSE(scene().isAnimating());
}

TEST_F(GameObjectLayerTest, AChangeOfOpacityAloneFadesLinearlyForHalfASecond)
{
    const auto& layer = add("chip-0-0", 0.25, 0.5, 0.125);
    change("chip-0-0", [](GameObject& chip) { chip.setOpacity(0.0); });
    EXPECT_EQ(layer.opacity(), 0.0F);
    EXPECT_EQ(layer.shownOpacity(), 1.0F);
    wait(0.125);
    EXPECT_NEAR(layer.shownOpacity(), 0.75F, 1e-6F);
    wait(0.25);
    EXPECT_NEAR(layer.shownOpacity(), 0.25F, 1e-6F);
    EXPECT_EQ(layer.shownPosition(), layer.position());
    EXPECT_EQ(layer.shownBounds(), layer.bounds());
    EXPECT_TRUE(scene().isAnimating());
    wait(0.125);
    EXPECT_EQ(layer.shownOpacity(), 0.0F);
    EXPECT_FALSE(scene().isAnimating());
}

TEST_F(GameObjectLayerTest, AChangeOfYAloneSlidesWithEaseForThreeQuartersOfASecond)
{
    const auto& layer = add("chip-0-0", 0.25, 0.5, 0.125);
    change("chip-0-0", [](GameObject& chip) { chip.setY(0.75); });
    EXPECT_EQ(layer.shownPosition(), (PointF { 150.0F, 300.0F }));
    // A quarter of the time into the curve that starts and ends slowly.
    wait(0.1875);
    EXPECT_NEAR(layer.shownPosition().y, 300.0F + 150.0F * 0.12916F, 0.01F);
    EXPECT_EQ(layer.shownPosition().x, 150.0F);
    wait(0.1875);
    EXPECT_NEAR(layer.shownPosition().y, 375.0F, kNear);
    EXPECT_EQ(layer.shownOpacity(), 1.0F);
    EXPECT_EQ(layer.shownBounds(), layer.bounds());
    EXPECT_TRUE(scene().isAnimating());
    wait(0.375);
    EXPECT_EQ(layer.shownPosition(), (PointF { 150.0F, 450.0F }));
    EXPECT_FALSE(scene().isAnimating());
}

TEST_F(GameObjectLayerTest, AChangeOfSizeAloneShrinksLinearlyAboutTheCentre)
{
    const auto& layer = add("chip-0-0", 0.25, 0.5, 0.125);
    change("chip-0-0", [](GameObject& chip) {
        chip.setWidth(0.0);
        chip.setHeight(0.0);
    });
    wait(0.25);
    EXPECT_NEAR(layer.shownBounds().width, 37.5F, kNear);
    EXPECT_NEAR(layer.shownBounds().height, 37.5F, kNear);
    EXPECT_EQ(layer.shownPosition(), (PointF { 150.0F, 300.0F }));
    wait(0.25);
    EXPECT_EQ(layer.shownBounds(), (SizeF { 0.0F, 0.0F }));
    EXPECT_FALSE(scene().isAnimating());
}

TEST_F(GameObjectLayerTest, AChangeInMidFlightStartsFromTheValueLastSet)
{
    const auto& layer = add("chip-0-0", 0.25, 0.25, 0.125);
    change("chip-0-0", [](GameObject& chip) { chip.setY(0.5); });
    wait(0.375);
    change("chip-0-0", [](GameObject& chip) { chip.setY(0.75); });
    EXPECT_EQ(layer.shownPosition().y, 300.0F); // not the 225 that were on the screen
    wait(0.75);
    EXPECT_EQ(layer.shownPosition().y, 450.0F);
}

TEST_F(GameObjectLayerTest, VisibilityCountsOnlyWhenTheLayerIsPlaced)
{
    const auto& shown = add("chip-0-0", 0.25, 0.5, 0.125);
    change("chip-0-0", [](GameObject& chip) { chip.setVisible(false); });
    EXPECT_FALSE(shown.isHidden());

    const auto& hidden = add("chip-1-0", 0.25, 0.5, 0.125, 1.0, false);
    EXPECT_TRUE(hidden.isHidden());
    change("chip-1-0", [](GameObject& chip) { chip.setVisible(true); });
    EXPECT_TRUE(hidden.isHidden());
}

TEST_F(GameObjectLayerTest, ALayerAtXZeroIsPlacedAfreshEveryTime)
{
    const auto& layer = add("chip-0-0", 0.0, 0.5, 0.125);
    const std::int64_t z = layer.zPosition();
    change("chip-0-0", [](GameObject& chip) {
        chip.setY(0.25);
        chip.setOpacity(0.5);
        chip.setVisible(false);
    });
    EXPECT_EQ(layer.shownPosition(), (PointF { 0.0F, 150.0F }));
    EXPECT_EQ(layer.shownOpacity(), 0.5F);
    EXPECT_TRUE(layer.isHidden());
    EXPECT_EQ(layer.zPosition(), z - 2);
    EXPECT_FALSE(scene().isAnimating());
}

TEST_F(GameObjectLayerTest, RemovingTheEntryRemovesTheLayerAtOnce)
{
    add("chip-0-0", 0.25, 0.5, 0.125);
    add("chip-1-0", 0.25, 0.5, 0.125);
    table().removeGameObjectForKey("chip-0-0");
    EXPECT_EQ(layers().layerForKey("chip-0-0"), nullptr);
    table().removeEntry("chip-1-0");
    EXPECT_TRUE(layers().backgroundLayer().sublayers().empty());
}

TEST_F(GameObjectLayerTest, ReplacingARecordLeavesOneLayer)
{
    add("chip-0-0", 0.25, 0.5, 0.125);
    const auto& second = add("chip-0-0", 0.75, 0.5, 0.125);
    EXPECT_EQ(layers().backgroundLayer().sublayers().size(), 1U);
    EXPECT_EQ(second.position().x, 450.0F);
    change("chip-0-0", [](GameObject& chip) { chip.setX(0.5); });
    EXPECT_EQ(second.position().x, 300.0F);
}

TEST_F(GameObjectLayerTest, LaterLayersLieBehindAndMessagesInFrontOfAll)
{
    for (int i = 0; i < 10; ++i) {
        const auto& layer = add("chip-" + std::to_string(i) + "-0", 0.25, 0.5, 0.125);
        EXPECT_EQ(layer.zPosition(), -2 * (i + 1));
    }
    const std::int64_t first = add("fullScreen-1i", 0.25, 0.5, 0.125).zPosition();
    EXPECT_EQ(first, 32);
    EXPECT_GT(add("fullScreen-2i", 0.25, 0.5, 0.125).zPosition(), first);
    EXPECT_LT(add("fullScree", 0.25, 0.5, 0.125).zPosition(), 0);
}

// Single precision would make neighbours equal after some hours of play.
TEST_F(GameObjectLayerTest, AfterAnyNumberOfUpdatesTheLaterLayerStillLiesBehind)
{
    add("chip-0-0", 0.25, 0.5, 0.125);
    for (int i = 0; i < 20'000'000; ++i) {
        scene().lowerStackingCounter();
    }
    const std::int64_t before = add("chip-1-0", 0.25, 0.5, 0.125).zPosition();
    EXPECT_EQ(before, -40'000'004);
    EXPECT_EQ(add("chip-2-0", 0.25, 0.5, 0.125).zPosition(), before - 2);
    const std::int64_t message = add("fullScreen-1i", 0.25, 0.5, 0.125).zPosition();
    EXPECT_EQ(add("fullScreen-2i", 0.25, 0.5, 0.125).zPosition(), message + 2);
}

TEST_F(GameObjectLayerTest, TheFirstMessageOfAllStandsAtTwelve)
{
    EXPECT_EQ(add("fullScreen-1i", 0.25, 0.5, 0.125).zPosition(), 12);
}

TEST_F(GameObjectLayerTest, StackingIsDecidedWhenTheLayerIsPlaced)
{
    const auto& layer = add("chip-0-0", 0.25, 0.5, 0.125);
    change("chip-0-0", [](GameObject& chip) { chip.setX(0.5); });
    EXPECT_EQ(layer.zPosition(), -2);
    // The change counted all the same.
    EXPECT_EQ(add("chip-1-0", 0.25, 0.5, 0.125).zPosition(), -6);
}

// Layers keep single precision, and a value that it cannot hold counts as changed.
TEST_F(GameObjectLayerTest, AValueThatSinglePrecisionCannotHoldAnimatesOverNoDistance)
{
    const auto& layer = add("chip-0-0", 0.7200000000000001, 0.5, 0.125);
    change("chip-0-0", [](GameObject& /*chip*/) {});
    EXPECT_TRUE(scene().isAnimating());
    const PointF place = layer.position();
    wait(0.3);
    EXPECT_EQ(layer.shownPosition(), place);
}

TEST_F(GameObjectLayerTest, TheDirectSetterMovesWithoutAnimation)
{
    auto& layer = add("chip-0-0", 0.25, 0.5, 0.125);
    layer.setOpacity(0.5F);
    layer.setPosition({ 10.0F, 20.0F });
    EXPECT_EQ(layer.shownOpacity(), 0.5F);
    EXPECT_EQ(layer.shownPosition(), (PointF { 10.0F, 20.0F }));
    EXPECT_FALSE(scene().isAnimating());
}

TEST(Timing, TheEasedCurveIsTheCubicOfTheTwoControlPoints)
{
    // Points of the curve computed from its parameter.
    for (const double t : { 0.1, 0.3, 0.5, 0.7, 0.9 }) {
        const double u = 1.0 - t;
        const double time = 3 * u * u * t * 0.42 + 3 * u * t * t * 0.58 + t * t * t;
        const double progress = 3 * u * t * t + t * t * t;
        EXPECT_NEAR(progressOf(Timing::EaseInEaseOut, time), progress, 1e-6) << t;
        EXPECT_NEAR(progressOf(Timing::Linear, time), time, 1e-6);
    }
    for (const Timing timing : { Timing::Linear, Timing::EaseInEaseOut }) {
        EXPECT_EQ(progressOf(timing, -0.5), 0.0F);
        EXPECT_EQ(progressOf(timing, 0.0), 0.0F);
        EXPECT_EQ(progressOf(timing, 1.0), 1.0F);
        EXPECT_EQ(progressOf(timing, 1.5), 1.0F);
    }
}

} // namespace veyrand::present
