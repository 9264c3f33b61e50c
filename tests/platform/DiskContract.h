#pragma once

#include "platform/Disk.h"

#include <gtest/gtest.h>
#include <string>

namespace veyrand::platform {

// What every disk promises. The harness begins with an empty folder and offers
//
//     Disk& disk();
//     std::string folder(); // absolute
template <class Harness> class DiskContract : public ::testing::Test {
protected:
    static constexpr std::size_t kMost = 100;

    Disk& disk() { return m_harness.disk(); }
    std::string folder() { return m_harness.folder(); }
    std::string at(const std::string& name) { return folder() + '/' + name; }
    void write(const std::string& name, const std::string& text)
    {
        EXPECT_EQ(disk().write(at(name), text), "");
    }
    std::string read(const std::string& name)
    {
        const auto found = disk().read(at(name), kMost);
        EXPECT_EQ(found.fault, "");
        return found.bytes.value_or("(none)");
    }

private:
    Harness m_harness;
};

TYPED_TEST_SUITE_P(DiskContract);

TYPED_TEST_P(DiskContract, WhatIsWrittenIsRead)
{
    this->write("a", "one\n");
    EXPECT_EQ(this->disk().append(this->at("a"), "two\n"), "");
    EXPECT_EQ(this->read("a"), "one\ntwo\n");
    this->write("a", "");
    EXPECT_EQ(this->read("a"), "");
}

TYPED_TEST_P(DiskContract, AMissingFileIsNoFaultToReadSyncOrRemove)
{
    EXPECT_EQ(this->read("a"), "(none)");
    EXPECT_FALSE(this->disk().exists(this->at("a")));
    EXPECT_EQ(this->disk().remove(this->at("a")), "");
    EXPECT_EQ(this->disk().syncFile(this->at("a")), "");
}

TYPED_TEST_P(DiskContract, OnlyAFileThatIsThereIsAppendedToOrRenamed)
{
    EXPECT_NE(this->disk().append(this->at("a"), "text"), "");
    EXPECT_FALSE(this->disk().exists(this->at("a")));
    EXPECT_NE(this->disk().rename(this->at("a"), this->at("b")), "");
}

TYPED_TEST_P(DiskContract, NothingIsWrittenIntoAFolderThatIsMissing)
{
    EXPECT_NE(this->disk().write(this->at("no/a"), "text"), "");
    EXPECT_EQ(this->disk().makeFolder(this->at("no/such")), "");
    EXPECT_EQ(this->disk().makeFolder(this->at("no/such")), "") << "it is there";
    EXPECT_EQ(this->disk().write(this->at("no/such/a"), "text"), "");
    EXPECT_EQ(this->read("no/such/a"), "text");
}

TYPED_TEST_P(DiskContract, AFolderIsNoFile)
{
    ASSERT_EQ(this->disk().makeFolder(this->at("folder")), "");
    EXPECT_EQ(this->disk().read(this->at("folder"), this->kMost).fault, "it is no regular file");
    EXPECT_NE(this->disk().write(this->at("folder"), "text"), "");
    this->write("file", "text");
    EXPECT_NE(this->disk().makeFolder(this->at("file/folder")), "");
}

TYPED_TEST_P(DiskContract, ATooLargeFileIsNotRead)
{
    this->write("a", std::string(this->kMost, 'a'));
    EXPECT_EQ(this->read("a").size(), this->kMost);
    ASSERT_EQ(this->disk().append(this->at("a"), "a"), "");
    const auto found = this->disk().read(this->at("a"), this->kMost);
    EXPECT_FALSE(found.bytes.has_value());
    EXPECT_EQ(found.fault, "it is too large");
}

TYPED_TEST_P(DiskContract, ANewNameReplacesWhatHadIt)
{
    this->write("a", "one");
    this->write("b", "two");
    EXPECT_EQ(this->disk().rename(this->at("a"), this->at("b")), "");
    EXPECT_EQ(this->read("a"), "(none)");
    EXPECT_EQ(this->read("b"), "one");
    EXPECT_EQ(this->disk().remove(this->at("b")), "");
    EXPECT_FALSE(this->disk().exists(this->at("b")));
}

TYPED_TEST_P(DiskContract, FilesAndFoldersAreSynced)
{
    this->write("a", "one");
    EXPECT_EQ(this->disk().syncFile(this->at("a")), "");
    EXPECT_EQ(this->disk().syncFolder(this->folder()), "");
}

REGISTER_TYPED_TEST_SUITE_P(DiskContract, WhatIsWrittenIsRead,
    AMissingFileIsNoFaultToReadSyncOrRemove, OnlyAFileThatIsThereIsAppendedToOrRenamed,
    NothingIsWrittenIntoAFolderThatIsMissing, AFolderIsNoFile, ATooLargeFileIsNotRead,
    ANewNameReplacesWhatHadIt, FilesAndFoldersAreSynced);

} // namespace veyrand::platform
