#include "present/ChipSet.h"

#include "platform/fakes/VirtualRunLoop.h"
#include "present/BoardLayers.h"
#include "support/BoardFakes.h"

#include <gmock/gmock.h>

namespace veyrand::present {

using ::testing::ElementsAre;

namespace {

class ChipSetTest : public ::testing::Test {
protected:
    ChipSetTest()
    {
        m_layers.fitTo({ .width = 1440, .height = 900 });
        for (const char* image : { "YellowChip", "Delete", "MultiChip" }) {
            m_gameData.gameObjects().addGameObject(
                std::make_shared<board::GameObject>(image, 0.8, 0.5, 0.075, 0.075, 1.0, true),
                image);
        }
    }

    std::vector<std::string> pictures()
    {
        std::vector<std::string> names;
        for (const DisplayItem& item : m_layers.displayList()) {
            if (const auto* const image = std::get_if<ImageContent>(&item.content)) {
                names.push_back(image->name);
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    BoardLayers& layers() { return m_layers; }
    board::GameObjectPtr record(const char* key)
    {
        return m_gameData.gameObjects().objectForKey(key);
    }

private:
    test::FakeScreen m_screen { { .width = 1440, .height = 900 } };
    test::SquareLetters m_metrics;
    platform::VirtualRunLoop m_runLoop;
    board::GameData m_gameData { m_screen };
    Scene m_scene { m_runLoop };
    BoardLayers m_layers { m_scene, m_gameData, m_metrics };
};

} // namespace

TEST_F(ChipSetTest, StonesAloneAreDrawnOtherwise)
{
    EXPECT_THAT(pictures(), ElementsAre("Delete", "MultiChip", "WoodBackground", "YellowChip"));
    layers().setChips(ChipSet::Letters);
    EXPECT_THAT(pictures(),
        ElementsAre("Delete", "MultiChip-letters", "WoodBackground", "YellowChip-letters"));
    layers().setChips(ChipSet::Pictures);
    EXPECT_THAT(pictures(), ElementsAre("Delete", "MultiChip", "WoodBackground", "YellowChip"));
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
