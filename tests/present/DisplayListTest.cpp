#include "present/DisplayList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::present {

using platform::RectF;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace {

constexpr RectF kView { 0.0F, 0.0F, 100.0F, 100.0F };

DisplayItem item(std::uint64_t layer, RectF rect)
{
    DisplayItem item;
    item.layer = layer;
    item.content = ImageContent { "RedChip" };
    item.rect = rect;
    item.clip = kView;
    return item;
}

constexpr RectF kLeft { 10.0F, 10.0F, 10.0F, 10.0F };
constexpr RectF kRight { 50.0F, 10.0F, 10.0F, 10.0F };

} // namespace

TEST(Damage, EqualListsHaveNone)
{
    const DisplayList list { item(1, kLeft), item(2, kRight) };
    EXPECT_THAT(damageBetween(list, list), IsEmpty());
}

TEST(Damage, WhatComesAndGoesDamagesItsPlace)
{
    EXPECT_THAT(damageBetween({}, { item(1, kLeft) }), UnorderedElementsAre(kLeft));
    EXPECT_THAT(damageBetween({ item(1, kLeft) }, {}), UnorderedElementsAre(kLeft));
}

TEST(Damage, WhatMovesDamagesBothPlaces)
{
    EXPECT_THAT(damageBetween({ item(1, kLeft) }, { item(1, kRight) }),
        UnorderedElementsAre(kLeft, kRight));
}

TEST(Damage, AnyVisibleChangeCounts)
{
    const DisplayItem before = item(1, kLeft);
    DisplayItem after = before;
    after.opacity = 0.5F;
    EXPECT_FALSE(damageBetween({ before }, { after }).empty());
    after = before;
    after.content = ImageContent { "GreenChip" };
    EXPECT_FALSE(damageBetween({ before }, { after }).empty());
    after = before;
    after.motion = Motion::Moving;
    EXPECT_FALSE(damageBetween({ before }, { after }).empty());
}

TEST(Damage, AGlowReachesTwiceItsRadiusPastEveryEdge)
{
    DisplayItem glowing = item(1, kRight);
    glowing.glow = 4.0F;
    EXPECT_THAT(damageBetween({ item(1, kRight) }, { glowing }),
        UnorderedElementsAre(kRight, RectF { 42.0F, 2.0F, 26.0F, 26.0F }));
}

TEST(Damage, TheShadowOfWhatIsLiftedReachesTwiceItsHeightPastEveryEdge)
{
    DisplayItem lifted = item(1, kRight);
    lifted.lift = 4.0F;
    EXPECT_THAT(damageBetween({ item(1, kRight) }, { lifted }),
        UnorderedElementsAre(kRight, RectF { 42.0F, 2.0F, 26.0F, 26.0F }));
}

TEST(Damage, ATextReachesAShareOfItsHeightPastEveryEdge)
{
    DisplayItem text = item(1, { 50.0F, 40.0F, 30.0F, 20.0F });
    text.content = TextContent { "4-2", {} };
    EXPECT_THAT(
        damageBetween({}, { text }), UnorderedElementsAre(RectF { 47.0F, 37.0F, 36.0F, 26.0F }));
}

TEST(Damage, WhatTheClipCutsOffIsNotDamaged)
{
    DisplayItem falling = item(1, { 10.0F, -5.0F, 10.0F, 10.0F });
    EXPECT_THAT(
        damageBetween({}, { falling }), UnorderedElementsAre(RectF { 10.0F, 0.0F, 10.0F, 5.0F }));
    falling.rect.y = -20.0F;
    EXPECT_THAT(damageBetween({}, { falling }), IsEmpty());
}

TEST(Damage, WhatSurroundsAnItemWithinItsClipIsNotCutOff)
{
    DisplayItem glowing = item(1, { 2.0F, 50.0F, 10.0F, 10.0F });
    glowing.glow = 4.0F;
    EXPECT_THAT(
        damageBetween({}, { glowing }), UnorderedElementsAre(RectF { -6.0F, 42.0F, 26.0F, 26.0F }));
}

TEST(Damage, ChangingPlacesInTheStackDamagesBothOrTheOneThatPassed)
{
    const auto damage
        = damageBetween({ item(1, kLeft), item(2, kLeft) }, { item(2, kLeft), item(1, kLeft) });
    ASSERT_FALSE(damage.empty());
    EXPECT_EQ(damage.front(), kLeft);
}

TEST(Damage, ALayerThatComesBetweenOthersDamagesOnlyItsOwnPlace)
{
    const RectF wide { 0.0F, 0.0F, 90.0F, 90.0F };
    EXPECT_THAT(damageBetween({ item(1, wide), item(2, wide) },
                    { item(1, wide), item(3, kLeft), item(2, wide) }),
        UnorderedElementsAre(kLeft));
}

} // namespace veyrand::present
