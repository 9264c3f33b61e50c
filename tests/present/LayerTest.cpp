#include "present/Layer.h"

#include "platform/fakes/VirtualRunLoop.h"
#include "present/ImageLayer.h"

#include <gtest/gtest.h>

namespace veyrand::present {

using platform::PointF;
using platform::RectF;

namespace {

class LayerTest : public ::testing::Test {
protected:
    LayerTest()
    {
        m_root.setBounds({ 100.0F, 100.0F });
        m_root.setPosition({ 50.0F, 50.0F });
    }

    ImageLayer& addTo(Layer& parent, PointF centre, float side)
    {
        auto& layer = parent.addSublayer(std::make_unique<ImageLayer>(m_scene, "RedChip"));
        layer.setBounds({ side, side });
        layer.setPosition(centre);
        return layer;
    }
    ImageLayer& add(PointF centre, float side) { return addTo(m_root, centre, side); }
    Layer& root() { return m_root; }
    Scene& scene() { return m_scene; }
    void wait(double seconds) { m_runLoop.advance(seconds); }
    DisplayList flat()
    {
        DisplayList list;
        m_root.flattenInto(list);
        return list;
    }

private:
    platform::VirtualRunLoop m_runLoop;
    Scene m_scene { m_runLoop };
    Layer m_root { m_scene };
};

} // namespace

TEST_F(LayerTest, TheLayerOfHighestZIsHit)
{
    auto& front = add({ 50.0F, 50.0F }, 20.0F);
    auto& back = add({ 50.0F, 50.0F }, 20.0F);
    front.setZPosition(-2.0F);
    back.setZPosition(-4.0F);
    EXPECT_EQ(root().hitTest({ 50.0F, 50.0F }), &front);
}

TEST_F(LayerTest, OfLayersAtOneHeightTheLaterIsHit)
{
    add({ 50.0F, 50.0F }, 20.0F);
    auto& later = add({ 50.0F, 50.0F }, 20.0F);
    EXPECT_EQ(root().hitTest({ 50.0F, 50.0F }), &later);
}

TEST_F(LayerTest, TransparentLayersAreHitAndHiddenOnesAreNot)
{
    auto& below = add({ 50.0F, 50.0F }, 20.0F);
    auto& above = add({ 50.0F, 50.0F }, 20.0F);
    above.setOpacity(0.0F);
    EXPECT_EQ(root().hitTest({ 50.0F, 50.0F }), &above);
    above.setHidden(true);
    EXPECT_EQ(root().hitTest({ 50.0F, 50.0F }), &below);
}

TEST_F(LayerTest, TheDragImageIsNeverHit)
{
    auto& chip = add({ 50.0F, 50.0F }, 20.0F);
    auto& drag = root().addSublayer(std::make_unique<DragImageLayer>(scene(), "RedChip"));
    drag.setBounds({ 20.0F, 20.0F });
    drag.setPosition({ 50.0F, 50.0F });
    drag.setZPosition(10.0F);
    EXPECT_EQ(root().hitTest({ 50.0F, 50.0F }), &chip);
}

TEST_F(LayerTest, LastingGeometryIsHitNotWhatIsShown)
{
    auto& chip = add({ 20.0F, 50.0F }, 20.0F);
    chip.animatePosition({ 20.0F, 50.0F }, { 80.0F, 50.0F }, 0.75, Timing::Linear);
    chip.setPosition({ 80.0F, 50.0F });
    EXPECT_EQ(chip.shownPosition().x, 20.0F);
    EXPECT_EQ(root().hitTest({ 80.0F, 50.0F }), &chip);
    EXPECT_EQ(root().hitTest({ 20.0F, 50.0F }), &root());
}

TEST_F(LayerTest, ALayerHoldsItsLowerEdgesOnly)
{
    auto& chip = add({ 50.0F, 50.0F }, 20.0F);
    EXPECT_EQ(root().hitTest({ 40.0F, 40.0F }), &chip);
    EXPECT_EQ(root().hitTest({ 60.0F, 50.0F }), &root());
    EXPECT_EQ(root().hitTest({ 50.0F, 60.0F }), &root());
    EXPECT_EQ(root().hitTest({ 100.0F, 50.0F }), nullptr);
}

TEST_F(LayerTest, WhatAMaskCutsOffIsNotHit)
{
    auto& frame = add({ 50.0F, 50.0F }, 20.0F);
    auto& inside = addTo(frame, { 20.0F, 10.0F }, 20.0F); // reaches past the frame's right edge
    EXPECT_EQ(root().hitTest({ 65.0F, 50.0F }), &inside);
    frame.setMasksToBounds(true);
    EXPECT_EQ(root().hitTest({ 65.0F, 50.0F }), &root());
    EXPECT_EQ(root().hitTest({ 58.0F, 50.0F }), &inside);
}

TEST_F(LayerTest, PointsAndRectanglesGoThroughAScaledLayerAndBack)
{
    auto& scaled = add({ 50.0F, 50.0F }, 40.0F);
    scaled.setScale(0.5F);
    auto& chip = addTo(scaled, { 30.0F, 10.0F }, 8.0F);
    EXPECT_EQ(chip.rectInRoot(), (RectF { 53.0F, 43.0F, 4.0F, 4.0F }));
    EXPECT_EQ(scaled.convertFromRoot({ 55.0F, 45.0F }), (PointF { 30.0F, 10.0F }));
    EXPECT_EQ(root().hitTest({ 54.0F, 44.0F }), &chip);
    ASSERT_EQ(flat().size(), 2U);
    EXPECT_EQ(flat().back().rect, (RectF { 53.0F, 43.0F, 4.0F, 4.0F }));
}

TEST_F(LayerTest, TheListRunsFromBackToFront)
{
    auto& front = add({ 50.0F, 50.0F }, 20.0F);
    auto& back = add({ 50.0F, 50.0F }, 20.0F);
    back.setZPosition(-2.0F);
    const auto list = flat();
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].layer, back.id());
    EXPECT_EQ(list[1].layer, front.id());
}

TEST_F(LayerTest, WhatCannotBeSeenIsNotListed)
{
    add({ 20.0F, 50.0F }, 20.0F).setHidden(true);
    add({ 40.0F, 50.0F }, 20.0F).setOpacity(0.0F);
    add({ 60.0F, 50.0F }, 0.0F);
    EXPECT_TRUE(flat().empty());
}

TEST_F(LayerTest, TheListShowsAnimationsOnTheirWay)
{
    auto& chip = add({ 20.0F, 50.0F }, 20.0F);
    chip.animatePosition({ 20.0F, 50.0F }, { 80.0F, 50.0F }, 1.0, Timing::Linear);
    chip.setPosition({ 80.0F, 50.0F });
    wait(0.5);
    EXPECT_EQ(flat().front().rect, (RectF { 40.0F, 40.0F, 20.0F, 20.0F }));
    EXPECT_EQ(flat().front().motion, Motion::Moving);
    wait(0.5);
    EXPECT_EQ(flat().front().rect, (RectF { 70.0F, 40.0F, 20.0F, 20.0F }));
    EXPECT_EQ(flat().front().motion, Motion::Resting);
}

TEST_F(LayerTest, WhatShrinksToNothingFadesAndEndsAsNoDot)
{
    auto& vanishing = add({ 50.0F, 50.0F }, 20.0F);
    vanishing.animateBounds({ 20.0F, 20.0F }, {}, 0.5, Timing::Linear);
    vanishing.setBounds({});
    EXPECT_EQ(flat().at(0).opacity, 1.0F);
    wait(0.25);
    EXPECT_FLOAT_EQ(flat().at(0).opacity, 0.5625F);
    wait(0.2);
    EXPECT_LT(flat().at(0).opacity, 0.05F) << "two pixels are left";
    wait(0.05);
    EXPECT_TRUE(flat().empty());
}

TEST_F(LayerTest, WhatOnlyGetsSmallerStaysAsItIs)
{
    auto& smaller = add({ 50.0F, 50.0F }, 20.0F);
    smaller.animateBounds({ 20.0F, 20.0F }, { 10.0F, 10.0F }, 0.5, Timing::Linear);
    smaller.setBounds({ 10.0F, 10.0F });
    wait(0.4);
    EXPECT_EQ(flat().at(0).opacity, 1.0F);
}

TEST_F(LayerTest, OpacityMultipliesDownTheTree)
{
    auto& frame = add({ 50.0F, 50.0F }, 20.0F);
    frame.setOpacity(0.5F);
    addTo(frame, { 10.0F, 10.0F }, 4.0F).setOpacity(0.5F);
    EXPECT_EQ(flat().back().opacity, 0.25F);
}

TEST_F(LayerTest, ARemovedLayerIsGoneWithItsSublayers)
{
    auto& frame = add({ 50.0F, 50.0F }, 20.0F);
    addTo(frame, { 10.0F, 10.0F }, 4.0F);
    frame.removeFromSuperlayer();
    EXPECT_TRUE(flat().empty());
    root().removeFromSuperlayer(); // there is none to leave
    EXPECT_EQ(root().superlayer(), nullptr);
}

TEST_F(LayerTest, EveryChangeAsksForAPicture)
{
    auto& chip = add({ 50.0F, 50.0F }, 20.0F);
    int asked = 0;
    scene().setDisplayListener([&] { ++asked; });
    const auto asks = [&](const std::function<void()>& change) {
        const int before = asked;
        change();
        return asked > before;
    };
    EXPECT_TRUE(asks([&] { chip.setPosition({ 51.0F, 50.0F }); }));
    EXPECT_TRUE(asks([&] { chip.setBounds({ 21.0F, 20.0F }); }));
    EXPECT_TRUE(asks([&] { chip.setOpacity(0.9F); }));
    EXPECT_TRUE(asks([&] { chip.setHidden(true); }));
    EXPECT_TRUE(asks([&] { chip.setZPosition(3.0F); }));
    EXPECT_TRUE(asks([&] { chip.setGlow(20.0F); }));
    EXPECT_TRUE(asks([&] { chip.setScale(2.0F); }));
    EXPECT_TRUE(asks([&] { chip.setImageName("GreenChip"); }));
    EXPECT_TRUE(asks([&] { chip.animateOpacity(1.0F, 0.0F, 0.5, Timing::Linear); }));
    EXPECT_TRUE(asks([&] { chip.removeFromSuperlayer(); }));
}

TEST_F(LayerTest, AnAnimationUnderAKindThatRunsReplacesIt)
{
    auto& chip = add({ 20.0F, 50.0F }, 20.0F);
    chip.animateOpacity(0.0F, 1.0F, 2.0, Timing::Linear);
    wait(0.5);
    chip.animateOpacity(1.0F, 0.0F, 1.0, Timing::Linear);
    wait(0.5);
    EXPECT_EQ(chip.shownOpacity(), 0.5F);
    wait(0.5);
    EXPECT_EQ(chip.shownOpacity(), 1.0F); // the value itself was never set
    // The longer one that was replaced still asks for frames: harmless, and soon over.
    wait(0.5);
    EXPECT_FALSE(scene().isAnimating());
}

TEST_F(LayerTest, WhereMotionIsToBeReducedALayerFadesOutAndInInsteadOfFlying)
{
    scene().setMotionTaste(MotionTaste::Reduced);
    auto& layer = add({ 20.0F, 20.0F }, 10.0F);
    layer.animatePosition({ 20.0F, 20.0F }, { 80.0F, 20.0F }, 1.0, Timing::Linear);
    layer.setPosition({ 80.0F, 20.0F });
    wait(0.25);
    EXPECT_FLOAT_EQ(flat().back().rect.x, 15.0F);
    EXPECT_FLOAT_EQ(flat().back().opacity, 0.5F);
    wait(0.5);
    EXPECT_FLOAT_EQ(flat().back().rect.x, 75.0F);
    EXPECT_FLOAT_EQ(flat().back().opacity, 0.5F);
    wait(0.25);
    EXPECT_FLOAT_EQ(flat().back().opacity, 1.0F);
}

TEST_F(LayerTest, WhatGoesNowhereDoesNotFade)
{
    scene().setMotionTaste(MotionTaste::Reduced);
    auto& layer = add({ 20.0F, 20.0F }, 10.0F);
    layer.animatePosition({ 20.0F, 20.0F }, { 20.0F, 20.0F }, 1.0, Timing::Linear);
    wait(0.5);
    EXPECT_FLOAT_EQ(flat().back().opacity, 1.0F);
}

} // namespace veyrand::present
