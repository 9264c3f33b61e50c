#include "board/ObjectTable.h"

#include "support/BoardFakes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace veyrand::board {

namespace {

using test::RecordingObserver;
using ::testing::ElementsAre;

GameObjectPtr record(const std::string& image)
{
    return std::make_shared<GameObject>(image, 0.5, 0.25, 0.1, 0.2, 1.0, true);
}

} // namespace

TEST(GameObject, StoresEveryArgumentAndSitsUnderNoKey)
{
    const GameObject object("RedChip", 0.1, 0.2, 0.3, 0.4, 0.5, false);
    EXPECT_EQ(object.keyInGameData(), std::nullopt);
    EXPECT_EQ(object.imageName(), "RedChip");
    EXPECT_EQ(object.x(), 0.1);
    EXPECT_EQ(object.y(), 0.2);
    EXPECT_EQ(object.width(), 0.3);
    EXPECT_EQ(object.height(), 0.4);
    EXPECT_EQ(object.opacity(), 0.5);
    EXPECT_FALSE(object.visible());
}

TEST(ObjectTable, ARecordUnderATakenKeyReplacesTheOldOneWhichKeepsItsStaleKey)
{
    ObjectTable table;
    const GameObjectPtr old = record("RedChip");
    const GameObjectPtr next = record("GreenChip");
    table.addGameObject(old, "chip-0-0");
    table.addGameObject(next, "chip-0-0");
    EXPECT_EQ(table.objectForKey("chip-0-0"), next);
    EXPECT_THAT(table.keys(), ElementsAre("chip-0-0"));
    EXPECT_EQ(old->keyInGameData(), "chip-0-0");
}

TEST(ObjectTable, AReplacedRecordLeavesBeforeTheNewOneIsAnnounced)
{
    ObjectTable table;
    table.addGameObject(record("RedChip"), "chip-0-0");
    const RecordingObserver observer(table, "chip-0-0");
    std::size_t heardBefore = 0;
    table.setNewObjectListener(
        [&](const std::string& /*key*/) { heardBefore = observer.heard().size(); });
    table.addGameObject(record("GreenChip"), "chip-0-0");
    ASSERT_EQ(observer.heard().size(), 1U);
    EXPECT_EQ(observer.heard().front(), std::nullopt);
    EXPECT_EQ(heardBefore, 1U);
}

TEST(ObjectTable, ANewRecordHasItsKeyAndPlaceWhenItIsAnnounced)
{
    ObjectTable table;
    const GameObjectPtr chip = record("RedChip");
    std::vector<std::string> announced;
    table.setNewObjectListener([&](const std::string& key) {
        announced.push_back(key);
        EXPECT_EQ(table.objectForKey(key), chip);
        EXPECT_EQ(chip->keyInGameData(), key);
    });
    table.addGameObject(chip, "delete-3");
    EXPECT_THAT(announced, ElementsAre("delete-3"));
}

TEST(ObjectTable, RemovingAKeyWithNoRecordChangesNothing)
{
    ObjectTable table;
    table.addGameObject(record("RedChip"), "chip-0-0");
    const RecordingObserver observer(table, "chip-0-1");
    table.removeGameObjectForKey("chip-0-1");
    table.removeEntry("chip-0-1");
    EXPECT_THAT(table.keys(), ElementsAre("chip-0-0"));
    EXPECT_TRUE(observer.heard().empty());
}

TEST(ObjectTable, RemovingClearsTheRecordsKeyAndAnnouncesThatItHasGone)
{
    ObjectTable table;
    const GameObjectPtr chip = record("RedChip");
    table.addGameObject(chip, "chip-0-0");
    const RecordingObserver observer(table, "chip-0-0");
    table.removeGameObjectForKey("chip-0-0");
    EXPECT_FALSE(table.contains("chip-0-0"));
    EXPECT_EQ(chip->keyInGameData(), std::nullopt);
    ASSERT_EQ(observer.heard().size(), 1U);
    EXPECT_EQ(observer.heard().front(), std::nullopt);
}

TEST(ObjectTable, TakingAnEntryOutDirectlyLeavesTheRecordsKey)
{
    ObjectTable table;
    const GameObjectPtr chip = record("RedChip");
    table.addGameObject(chip, "chip-0-0");
    table.removeEntry("chip-0-0");
    EXPECT_EQ(table.objectForKey("chip-0-0"), nullptr);
    EXPECT_EQ(chip->keyInGameData(), "chip-0-0");
}

TEST(ObjectTable, EmptyingAnnouncesEveryRemoval)
{
    ObjectTable table;
    table.addGameObject(record("RedChip"), "chip-0-0");
    table.addGameObject(record("RedChip"), "chip-1-0");
    const RecordingObserver first(table, "chip-0-0");
    const RecordingObserver second(table, "chip-1-0");
    table.removeAllEntries();
    EXPECT_TRUE(table.keys().empty());
    EXPECT_EQ(first.heard().size(), 1U);
    EXPECT_EQ(second.heard().size(), 1U);
}

TEST(ObjectTable, AChangeIsHeardByItsOwnKeysObserverOnlyAndOnce)
{
    ObjectTable table;
    table.addGameObject(record("RedChip"), "chip-0-0");
    table.addGameObject(record("RedChip"), "chip-1-0");
    const RecordingObserver first(table, "chip-0-0");
    const RecordingObserver second(table, "chip-1-0");
    table.change("chip-0-0", [](GameObject& chip) {
        chip.setX(0.75);
        chip.setY(0.5);
    });
    ASSERT_EQ(first.heard().size(), 1U);
    ASSERT_TRUE(first.heard().front().has_value());
    EXPECT_EQ(first.heard().front()->x(), 0.75);
    EXPECT_EQ(first.heard().front()->y(), 0.5);
    EXPECT_TRUE(second.heard().empty());
}

TEST(ObjectTable, FieldsSetWithoutAnAnnouncementAreSeenAtTheNextOne)
{
    ObjectTable table;
    const GameObjectPtr chip = record("RedChip");
    table.addGameObject(chip, "chip-0-0");
    const RecordingObserver observer(table, "chip-0-0");
    chip->setX(0.9);
    EXPECT_TRUE(observer.heard().empty());
    table.change("chip-0-0", [](GameObject& object) { object.setOpacity(0.5); });
    ASSERT_EQ(observer.heard().size(), 1U);
    EXPECT_EQ(observer.heard().front()->x(), 0.9);
}

TEST(ObjectTable, AChangeOfAMissingRecordIsNotMade)
{
    ObjectTable table;
    const RecordingObserver observer(table, "chip-0-0");
    table.change("chip-0-0", [](GameObject& /*chip*/) { FAIL() << "there is no such chip"; });
    EXPECT_TRUE(observer.heard().empty());
}

TEST(ObjectTable, AnObserverThatWasReplacedCannotEndTheOthersWatch)
{
    ObjectTable table;
    table.addGameObject(record("RedChip"), "chip-0-0");
    auto early = std::make_unique<RecordingObserver>(table, "chip-0-0");
    const RecordingObserver late(table, "chip-0-0");
    early.reset();
    table.change("chip-0-0", [](GameObject& chip) { chip.setX(0.1); });
    EXPECT_EQ(late.heard().size(), 1U);
}

TEST(ObjectTable, AnObserverThatHasASuccessorLeavesItInItsPlace)
{
    ObjectTable table;
    table.addGameObject(record("RedChip"), "chip-0-0");
    auto first = std::make_unique<RecordingObserver>(table, "chip-0-0");
    const RecordingObserver second(table, "chip-0-0");
    first.reset();
    table.removeEntry("chip-0-0");
    EXPECT_EQ(second.heard().size(), 1U);
}

TEST(ObjectTable, AnObserverThatIsNotThereCanStopObserving)
{
    ObjectTable table;
    const RecordingObserver other(table, "chip-0-0");
    table.unobserve("chip-1-0", other);
    table.addGameObject(record("RedChip"), "chip-0-0");
    table.removeEntry("chip-0-0");
    EXPECT_EQ(other.heard().size(), 1U);
}

} // namespace veyrand::board
