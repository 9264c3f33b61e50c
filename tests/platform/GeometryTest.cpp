#include "platform/Geometry.h"

#include <gtest/gtest.h>

namespace veyrand::platform {

TEST(Rect, HoldsItsLowerEdgesButNotItsUpperOnes)
{
    const Rect rect { 1.0, 2.0, 3.0, 4.0 };
    EXPECT_TRUE(rect.contains({ 1.0, 2.0 }));
    EXPECT_TRUE(rect.contains({ 3.999, 5.999 }));
    EXPECT_FALSE(rect.contains({ 4.0, 3.0 }));
    EXPECT_FALSE(rect.contains({ 2.0, 6.0 }));
    EXPECT_FALSE(rect.contains({ 0.999, 3.0 }));
    EXPECT_FALSE(rect.contains({ 2.0, 1.999 }));
}

TEST(Rect, IsEmptyWithoutWidthOrHeight)
{
    EXPECT_TRUE(Rect {}.isEmpty());
    EXPECT_TRUE((Rect { 0.0, 0.0, 1.0, 0.0 }).isEmpty());
    EXPECT_TRUE((Rect { 0.0, 0.0, -1.0, 1.0 }).isEmpty());
    EXPECT_FALSE((Rect { 5.0, 5.0, 0.1, 0.1 }).isEmpty());
}

} // namespace veyrand::platform
