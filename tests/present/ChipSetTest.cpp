#include "present/ChipSet.h"

#include "LayeredBoard.h"

#include <gmock/gmock.h>

namespace veyrand::present {

using ::testing::UnorderedElementsAre;

namespace {

class ChipSetTest : public LayeredBoard {
protected:
    ChipSetTest()
    {
        layers().fitTo({ .width = 1440, .height = 900 });
        for (const char* image : { "YellowChip", "Delete", "MultiChip" }) {
            add(image, image, 0.8, 0.5, 0.075);
        }
    }

    board::GameObjectPtr record(const char* key) { return table().objectForKey(key); }
};

} // namespace

TEST_F(ChipSetTest, StonesAloneAreDrawnOtherwise)
{
    EXPECT_THAT(
        pictures(), UnorderedElementsAre("Delete", "MultiChip", "WoodBackground", "YellowChip"));
    layers().setChips(ChipSet::Letters);
    EXPECT_THAT(pictures(),
        UnorderedElementsAre(
            "Delete", "MultiChip-letters", "WoodBackground", "YellowChip-letters"));
    layers().setChips(ChipSet::Pictures);
    EXPECT_THAT(
        pictures(), UnorderedElementsAre("Delete", "MultiChip", "WoodBackground", "YellowChip"));
}

TEST_F(ChipSetTest, TheRecordsHearNothingOfIt)
{
    layers().setChips(ChipSet::Patterns);
    EXPECT_EQ(record("YellowChip")->imageName(), "YellowChip");
}

TEST_F(ChipSetTest, AnotherSetIsPaintedAtOnce)
{
    const DisplayList before = layers().displayList();
    int wishes = 0;
    layers().scene().setDisplayListener([&wishes] { ++wishes; });
    layers().setChips(ChipSet::Contrast);
    EXPECT_EQ(wishes, 1);
    EXPECT_EQ(damageBetween(before, layers().displayList()).size(), 4U); // two stones, old and new
    layers().setChips(ChipSet::Contrast);
    EXPECT_EQ(wishes, 1);
    layers().scene().setDisplayListener({});
}

} // namespace veyrand::present
