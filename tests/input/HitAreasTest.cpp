#include "input/HitAreas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::input {

using platform::Point;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class Crossings final : public HitAreaListener {
public:
    void mouseEntered(const std::string& key) override { m_heard.push_back("in " + key); }
    void mouseExited(const std::string& key) override { m_heard.push_back("out " + key); }
    std::vector<std::string> take() { return std::exchange(m_heard, {}); }

private:
    std::vector<std::string> m_heard;
};

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
        m_areas.pointerMoved(pointer, m_crossings);
        return m_crossings.take();
    }
    HitAreas& areas() { return m_areas; }

private:
    HitAreas m_areas;
    Crossings m_crossings;
};

} // namespace

TEST_F(HitAreasTest, EnteringAndLeavingAreToldOnce)
{
    EXPECT_THAT(moveTo(kOutside), IsEmpty());
    EXPECT_THAT(moveTo(kInLeft), ElementsAre("in left"));
    EXPECT_THAT(moveTo(Point { 16.0, 15.0 }), IsEmpty());
    EXPECT_THAT(moveTo(kOutside), ElementsAre("out left"));
}

TEST_F(HitAreasTest, FromOneToItsNeighbourTheFirstIsLeftFirst)
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
