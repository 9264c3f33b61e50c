#include "platform/fakes/PowerCutDisk.h"

#include "platform/DiskContract.h"

#include <gmock/gmock.h>

namespace veyrand::platform {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;
using State = PowerCutDisk::State;

namespace {

class PowerCutDiskHarness {
public:
    PowerCutDiskHarness() { EXPECT_EQ(m_disk.makeFolder(folder()), ""); }
    Disk& disk() { return m_disk; }
    std::string folder() { return "/state"; }

private:
    PowerCutDisk m_disk;
};

class PowerCut : public ::testing::Test {
protected:
    PowerCut() { EXPECT_EQ(m_disk.makeFolder("/s"), ""); }

    PowerCutDisk m_disk;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(PowerCut, DiskContract, PowerCutDiskHarness);

TEST_F(PowerCut, LeavesNothingOfANewFileBeforeItsFolderIsSynced)
{
    ASSERT_EQ(m_disk.write("/s/a", "1234"), "");
    ASSERT_EQ(m_disk.syncFile("/s/a"), "");
    EXPECT_THAT(
        m_disk.statesAfterPowerCut(), UnorderedElementsAre(State {}, State { { "/s/a", "1234" } }));
    ASSERT_EQ(m_disk.syncFolder("/s"), "");
    EXPECT_THAT(m_disk.statesAfterPowerCut(), ElementsAre(State { { "/s/a", "1234" } }));
}

TEST_F(PowerCut, LosesTearsAndReordersWhatWasNotSynced)
{
    ASSERT_EQ(m_disk.write("/s/a", "ab"), "");
    ASSERT_EQ(m_disk.syncFile("/s/a"), "");
    ASSERT_EQ(m_disk.syncFolder("/s"), "");
    ASSERT_EQ(m_disk.append("/s/a", "cd"), "");
    ASSERT_EQ(m_disk.append("/s/a", "ef"), "");
    std::set<std::string> found;
    for (const State& state : m_disk.statesAfterPowerCut()) {
        found.insert(state.at("/s/a"));
    }
    const auto text = [](std::string_view bytes) { return std::string(bytes); };
    EXPECT_THAT(found,
        ::testing::IsSupersetOf({ text("ab"), text("abc"), text("abcd"), text("abcde"),
            text("abcdef"), std::string("ab\0\0ef", 6), std::string("abc\0ef", 6),
            std::string("abcd\0\0", 6) }));
}

TEST_F(PowerCut, TakesOrLeavesARenameAsAWhole)
{
    ASSERT_EQ(m_disk.write("/s/a", "old"), "");
    ASSERT_EQ(m_disk.write("/s/b", "new"), "");
    ASSERT_EQ(m_disk.syncFile("/s/a"), "");
    ASSERT_EQ(m_disk.syncFile("/s/b"), "");
    ASSERT_EQ(m_disk.syncFolder("/s"), "");
    ASSERT_EQ(m_disk.rename("/s/b", "/s/a"), "");
    EXPECT_THAT(m_disk.statesAfterPowerCut(),
        UnorderedElementsAre(
            State { { "/s/a", "old" }, { "/s/b", "new" } }, State { { "/s/a", "new" } }));
}

TEST_F(PowerCut, FindsADiskThatIsWhatItWasLeftAs)
{
    ASSERT_EQ(m_disk.write("/s/a", "old"), "");
    for (const State& state : m_disk.statesAfterPowerCut()) {
        const PowerCutDisk found(state);
        EXPECT_EQ(found.exists("/s/a"), state.contains("/s/a"));
        EXPECT_THAT(found.statesAfterPowerCut(), ElementsAre(state));
    }
}

TEST_F(PowerCut, AFullDiskTakesWhatItHasRoomFor)
{
    ASSERT_EQ(m_disk.write("/s/a", "ab"), "");
    m_disk.leaveRoomFor(1);
    EXPECT_EQ(m_disk.append("/s/a", "cd"), "No space left on device");
    EXPECT_EQ(m_disk.read("/s/a", 100).bytes, "abc");
}

} // namespace veyrand::platform
