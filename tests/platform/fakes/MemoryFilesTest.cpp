#include "platform/fakes/MemoryFiles.h"

#include "platform/FilesContract.h"

#include <gmock/gmock.h>

namespace veyrand::platform {

using ::testing::ElementsAre;

namespace {

class MemoryFilesHarness {
public:
    MemoryFilesHarness()
    {
        m_files.makeFolder(folder());
        m_files.makeFolder(unreachable());
        m_files.protect(unreachable());
    }
    Files& files() { return m_files; }
    static std::string folder() { return "/home/ada"; }
    static std::string unreachable() { return "/sealed"; }
    void write(const std::string& path, const std::string& text) { m_files.write(path, text); }
    std::string read(const std::string& path) { return m_files.read(path); }
    bool exists(const std::string& path) { return m_files.exists(path); }
    void spoil(const std::string& folder)
    {
        m_files.write(folder + "/z", "broken");
        m_files.breakAt(folder + "/z");
    }

private:
    MemoryFiles m_files;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, FilesContract, MemoryFilesHarness);

TEST(MemoryFiles, ABrokenCopyLeavesWhatCameBeforeTheBreak)
{
    MemoryFiles files;
    files.write("/app/a", "1");
    files.write("/app/b", "2");
    files.makeFolder("/to");
    files.breakAt("/app/b");
    EXPECT_FALSE(files.copy("/app", "/to/app"));
    EXPECT_THAT(files.files(), ElementsAre("/app/a", "/app/b", "/to/app/a"));
}

TEST(MemoryFiles, ARefusedReplacementIsRefusedOnce)
{
    MemoryFiles files;
    files.write("/app", "old");
    files.write("/new", "new");
    files.refuseReplacement();
    EXPECT_FALSE(files.replace("/app", "/new"));
    EXPECT_EQ(files.read("/app"), "old");
    EXPECT_TRUE(files.replace("/app", "/new"));
    EXPECT_EQ(files.read("/app"), "new");
}

} // namespace veyrand::platform
