#include "desktop/posix/PosixDisk.h"

#include "platform/DiskContract.h"
#include "support/ScratchFolder.h"

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace veyrand::desktop::posix {

namespace {

class PosixDiskHarness {
public:
    platform::Disk& disk() { return m_disk; }
    std::string folder() { return m_folder.path(); }

private:
    test::ScratchFolder m_folder;
    PosixDisk m_disk;
};

unsigned modeOf(const std::string& path)
{
    struct stat status { };
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 0777U;
}

// Sets a variable of the environment, or removes it, for as long as it lives.
class Variable {
public:
    Variable(const char* name, const char* value)
        : m_name(name)
        , m_before(std::getenv(name) != nullptr ? std::optional<std::string>(std::getenv(name))
                                                : std::nullopt)
    {
        set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(m_before ? m_before->c_str() : nullptr); }

private:
    void set(const char* value)
    {
        if (value != nullptr) {
            ::setenv(m_name, value, 1);
        } else {
            ::unsetenv(m_name);
        }
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

} // namespace

} // namespace veyrand::desktop::posix

namespace veyrand::platform {
INSTANTIATE_TYPED_TEST_SUITE_P(Posix, DiskContract, desktop::posix::PosixDiskHarness);
}

namespace veyrand::desktop::posix {

TEST(PosixDisk, WhatItMakesIsForTheUserAlone)
{
    const test::ScratchFolder folder;
    PosixDisk disk;
    ASSERT_EQ(disk.makeFolder(folder.path() + "/a/b"), "");
    ASSERT_EQ(disk.write(folder.path() + "/a/b/c", "text"), "");
    EXPECT_EQ(modeOf(folder.path() + "/a"), 0700U);
    EXPECT_EQ(modeOf(folder.path() + "/a/b"), 0700U);
    EXPECT_EQ(modeOf(folder.path() + "/a/b/c"), 0600U);
    ASSERT_EQ(::chmod((folder.path() + "/a/b/c").c_str(), 0644), 0);
    ASSERT_EQ(disk.write(folder.path() + "/a/b/c", "text"), "");
    EXPECT_EQ(modeOf(folder.path() + "/a/b/c"), 0600U) << "whoever had left it there";
}

// A game that waited for whoever might write into a pipe would never start.
TEST(PosixDisk, APipeIsRefusedAndNotWaitedFor)
{
    const test::ScratchFolder folder;
    const std::string pipe = folder.path() + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    PosixDisk disk;
    EXPECT_EQ(disk.read(pipe, 100).fault, "it is no regular file");
    EXPECT_NE(disk.append(pipe, "text"), "");
    EXPECT_NE(disk.write(pipe, "text"), "");
    EXPECT_EQ(disk.read("/dev/zero", 100).fault, "it is no regular file");
}

TEST(PosixDisk, TellsInWordsWhatWentWrong)
{
    PosixDisk disk;
    EXPECT_EQ(disk.append("/nonexistent/a", "text"), "No such file or directory");
    EXPECT_EQ(disk.makeFolder("/proc/nothing/can/be/made/here").empty(), false);
}

TEST(UserStateFolder, IsWhereTheUserWantsIt)
{
    const Variable home("HOME", "/home/ada");
    {
        const Variable state("XDG_STATE_HOME", "/elsewhere");
        EXPECT_EQ(userStateFolder(), "/elsewhere");
    }
    {
        const Variable state("XDG_STATE_HOME", "not/absolute");
        EXPECT_EQ(userStateFolder(), "/home/ada/.local/state");
    }
    const Variable state("XDG_STATE_HOME", nullptr);
    EXPECT_EQ(userStateFolder(), "/home/ada/.local/state");
    const Variable none("HOME", nullptr);
    EXPECT_EQ(userStateFolder(), "");
}

TEST(Claim, IsHeldByOneAtATime)
{
    const test::ScratchFolder folder;
    const std::string lock = folder.path() + "/lock";
    {
        const Claim first(lock);
        EXPECT_FALSE(first.isHeldElsewhere());
        EXPECT_TRUE(Claim(lock).isHeldElsewhere());
    }
    EXPECT_FALSE(Claim(lock).isHeldElsewhere());
    EXPECT_FALSE(Claim("/nonexistent/lock").isHeldElsewhere());
}

} // namespace veyrand::desktop::posix
