#include "present/WoodenMargins.h"

#include "LayeredBoard.h"

#include <gtest/gtest.h>

namespace veyrand::present {

using platform::RectF;

namespace {

class WoodenMarginsTest : public LayeredBoard {
protected:
    void wantWood() { layers().margins().setOn(true); }

    // The pictures that lie beside the board, without the board's own.
    [[nodiscard]] std::vector<DisplayItem> woodBeside()
    {
        std::vector<DisplayItem> wood;
        for (const DisplayItem& item : layers().displayList()) {
            if (std::holds_alternative<ImageContent>(item.content)
                && item.layer != layers().backgroundLayer().id()) {
                wood.push_back(item);
            }
        }
        return wood;
    }
    static Mirror mirrorOf(const DisplayItem& item)
    {
        return std::get<ImageContent>(item.content).mirror;
    }
};

} // namespace

TEST_F(WoodenMarginsTest, AreBlackUnlessWoodIsWanted)
{
    layers().fitTo({ .width = 1000, .height = 450 });
    EXPECT_TRUE(woodBeside().empty());
    wantWood();
    EXPECT_FALSE(woodBeside().empty());
    layers().margins().setOn(false);
    EXPECT_TRUE(woodBeside().empty());
}

TEST_F(WoodenMarginsTest, FillAWideWindowOnBothSidesTurnedOverAtTheBoardsEdges)
{
    wantWood();
    layers().fitTo({ .width = 1000, .height = 450 }); // the board is 720 wide
    const auto wood = woodBeside();
    ASSERT_EQ(wood.size(), 2U);
    EXPECT_EQ(wood[0].rect, (RectF { -580.0F, 0.0F, 720.0F, 450.0F }));
    EXPECT_EQ(wood[0].clip, (RectF { 0.0F, 0.0F, 140.0F, 450.0F }));
    EXPECT_EQ(wood[1].rect, (RectF { 860.0F, 0.0F, 720.0F, 450.0F }));
    EXPECT_EQ(wood[1].clip, (RectF { 860.0F, 0.0F, 140.0F, 450.0F }));
    EXPECT_EQ(mirrorOf(wood[0]), Mirror::LeftAndRight);
    EXPECT_EQ(mirrorOf(wood[1]), Mirror::LeftAndRight);
}

TEST_F(WoodenMarginsTest, FillATallWindowAboveAndBelow)
{
    wantWood();
    layers().fitTo({ .width = 720, .height = 650 });
    const auto wood = woodBeside();
    ASSERT_EQ(wood.size(), 2U);
    EXPECT_EQ(wood[0].clip, (RectF { 0.0F, 0.0F, 720.0F, 100.0F }));
    EXPECT_EQ(wood[1].clip, (RectF { 0.0F, 550.0F, 720.0F, 100.0F }));
    EXPECT_EQ(mirrorOf(wood[0]), Mirror::TopAndBottom);
}

TEST_F(WoodenMarginsTest, RepeatTheWoodInAWindowLongerThanIt)
{
    wantWood();
    layers().fitTo({ .width = 160, .height = 500 }); // margins of 200, boards of 100
    const auto wood = woodBeside();
    ASSERT_EQ(wood.size(), 4U);
    EXPECT_EQ(mirrorOf(wood[0]), Mirror::TopAndBottom);
    EXPECT_EQ(mirrorOf(wood[1]), Mirror::None);
    EXPECT_EQ(wood[1].rect, (RectF { 0.0F, 0.0F, 160.0F, 100.0F }));
}

TEST_F(WoodenMarginsTest, LeaveTheBoardWhereItIsAndAWindowOfItsShapeAsItIs)
{
    layers().fitTo({ .width = 1000, .height = 450 });
    const RectF before = layers().backgroundLayer().rectInRoot();
    const std::size_t own = layers().displayList().size();
    wantWood();
    EXPECT_EQ(layers().backgroundLayer().rectInRoot(), before);
    layers().fitTo({ .width = 1440, .height = 900 });
    EXPECT_EQ(layers().displayList().size(), own);
}

TEST_F(WoodenMarginsTest, KeepTheirNumbersSoThatNothingIsPaintedTwice)
{
    wantWood();
    layers().fitTo({ .width = 1000, .height = 450 });
    const auto before = layers().displayList();
    EXPECT_TRUE(damageBetween(before, layers().displayList()).empty());
}

} // namespace veyrand::present
