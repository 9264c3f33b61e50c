#include "desktop/linux/PosixFiles.h"

#include "platform/FilesContract.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace veyrand::platform {

namespace fs = std::filesystem;

namespace {

template <desktop::linux::PosixFiles::Exchange kExchange> class PosixFilesHarness {
public:
    Files& files() { return m_files; }
    std::string folder() { return m_folder.path(); }
    // Not even root can make anything there.
    static std::string unreachable() { return "/proc/self"; }
    static void write(const std::string& path, const std::string& text)
    {
        test::ScratchFolder::write(path, text);
    }
    static std::string read(const std::string& path) { return test::ScratchFolder::read(path); }
    static bool exists(const std::string& path) { return fs::exists(fs::symlink_status(path)); }
    static void spoil(const std::string& folder)
    {
        EXPECT_EQ(::mkfifo((folder + "/pipe").c_str(), S_IRUSR), 0);
    }

private:
    test::ScratchFolder m_folder;
    desktop::linux::PosixFiles m_files { kExchange };
};

class PosixFiles : public ::testing::Test {
protected:
    test::ScratchFolder m_folder;
    desktop::linux::PosixFiles m_files;
};

} // namespace

using Exchange = desktop::linux::PosixFiles::Exchange;
INSTANTIATE_TYPED_TEST_SUITE_P(Posix, FilesContract, PosixFilesHarness<Exchange::InOneStep>);
// As on a file system that cannot exchange two names.
INSTANTIATE_TYPED_TEST_SUITE_P(PosixByHand, FilesContract, PosixFilesHarness<Exchange::ByHand>);

TEST_F(PosixFiles, ReplacingLeavesNothingBeside)
{
    for (const Exchange exchange : { Exchange::InOneStep, Exchange::ByHand }) {
        m_folder.write(m_folder.at("app/old"), "old");
        m_folder.write(m_folder.at("new/new"), "new");
        EXPECT_TRUE(
            desktop::linux::PosixFiles(exchange).replace(m_folder.at("app"), m_folder.at("new")));
        EXPECT_EQ(std::distance(fs::directory_iterator(m_folder.path()), {}), 1);
        EXPECT_EQ(m_folder.read(m_folder.at("app/new")), "new");
    }
}

TEST_F(PosixFiles, ALinkIsCopiedAsALinkAndNotFollowed)
{
    m_folder.write(m_folder.at("outside/precious"), "kept");
    m_folder.write(m_folder.at("app/lib/real"), "library");
    fs::create_symlink("real", m_folder.at("app/lib/link"));
    fs::create_symlink("nowhere", m_folder.at("app/dangling"));
    fs::create_directory_symlink("../outside", m_folder.at("app/out"));
    ASSERT_TRUE(m_files.copy(m_folder.at("app"), m_folder.at("copy")));
    EXPECT_EQ(fs::read_symlink(m_folder.at("copy/lib/link")), "real");
    EXPECT_EQ(fs::read_symlink(m_folder.at("copy/dangling")), "nowhere");
    EXPECT_EQ(fs::read_symlink(m_folder.at("copy/out")), "../outside");
    ASSERT_TRUE(m_files.remove(m_folder.at("copy")));
    EXPECT_EQ(m_folder.read(m_folder.at("outside/precious")), "kept");
}

TEST_F(PosixFiles, AProgramStaysAProgramAndAReadOnlyFolderCanBeFilledAndReplaced)
{
    m_folder.write(m_folder.at("app/bin/game"), "program");
    fs::permissions(m_folder.at("app/bin/game"), static_cast<fs::perms>(0555));
    fs::permissions(m_folder.at("app/bin"), static_cast<fs::perms>(0555));
    ASSERT_TRUE(m_files.copy(m_folder.at("app"), m_folder.at("copy")));
    EXPECT_EQ(fs::status(m_folder.at("copy/bin/game")).permissions(), static_cast<fs::perms>(0755));
    EXPECT_EQ(fs::status(m_folder.at("copy/bin")).permissions(), static_cast<fs::perms>(0755));
    fs::permissions(m_folder.at("app/bin"), static_cast<fs::perms>(0755));
}

TEST_F(PosixFiles, ADanglingLinkIsInTheWayAndIsReplaced)
{
    m_folder.write(m_folder.at("new"), "new");
    fs::create_symlink("nowhere", m_folder.at("app"));
    EXPECT_FALSE(m_files.copy(m_folder.at("new"), m_folder.at("app")));
    EXPECT_TRUE(m_files.replace(m_folder.at("app"), m_folder.at("new")));
    EXPECT_EQ(m_folder.read(m_folder.at("app")), "new");
}

} // namespace veyrand::platform
