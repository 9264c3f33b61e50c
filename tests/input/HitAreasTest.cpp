#include "input/HitAreas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::input {

using platform::Point;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr Point kInLeft { 15.0, 15.0 };
constexpr Point kInRight { 25.0, 15.0 };
constexpr Point kOutside { 50.0, 50.0 };

class HitAreasTest : public ::testing::Test {
protected:
    HitAreasTest()
    {
        m_areas.install("left", { 10.0F, 10.0F, 10.0F, 10.0F }, std::nullopt);
        m_areas.install("right", { 20.0F, 10.0F, 10.0F, 10.0F }, std::nullopt);
    }
    std::vector<std::string> moveTo(std::optional<Point> pointer)
    {
        const HitAreas::Crossed crossed = m_areas.pointerMoved(pointer);
        std::vector<std::string> told;
        for (const std::string& key : crossed.left) {
            told.push_back("out " + key);
        }
        for (const std::string& key : crossed.entered) {
            told.push_back("in " + key);
        }
        return told;
    }
    HitAreas& areas() { return m_areas; }

private:
    HitAreas m_areas;
};

} // namespace

TEST_F(HitAreasTest, EnteringAndLeavingAreToldOnce)
{
    EXPECT_THAT(moveTo(kOutside), IsEmpty());
    EXPECT_THAT(moveTo(kInLeft), ElementsAre("in left"));
    EXPECT_THAT(moveTo(Point { 16.0, 15.0 }), IsEmpty());
    EXPECT_THAT(moveTo(kOutside), ElementsAre("out left"));
}

TEST_F(HitAreasTest, FromOneToItsNeighbourOneIsLeftAndOneEntered)
{
    moveTo(kInLeft);
    EXPECT_THAT(moveTo(kInRight), ElementsAre("out left", "in right"));
}

TEST_F(HitAreasTest, LeavingTheViewLeavesTheArea)
{
    moveTo(kInLeft);
    EXPECT_THAT(moveTo(std::nullopt), ElementsAre("out left"));
}

TEST_F(HitAreasTest, AnAreaMadeUnderTheRestingPointerCountsAsEntered)
{
    areas().removeAll();
    areas().install("left", { 10.0F, 10.0F, 10.0F, 10.0F }, kInLeft);
    EXPECT_THAT(moveTo(kInLeft), IsEmpty());
    EXPECT_THAT(moveTo(kOutside), ElementsAre("out left"));
}

TEST_F(HitAreasTest, RemovedAreasSayNothing)
{
    moveTo(kInLeft);
    areas().removeAll();
    EXPECT_THAT(areas().keys(), IsEmpty());
    EXPECT_THAT(moveTo(kOutside), IsEmpty());
}

} // namespace veyrand::input
