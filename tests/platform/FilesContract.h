#pragma once

#include "platform/Files.h"

#include <gtest/gtest.h>
#include <string>

namespace veyrand::platform {

// What every adapter for files promises. The harness begins with an empty folder and offers
//
//     Files& files();
//     std::string folder();                                      // absolute
//     void write(const std::string& path, const std::string& text); // makes the folders above it
//     std::string read(const std::string& path);                 // "" when there is no such file
//     bool exists(const std::string& path);
//     std::string unreachable();                                 // a folder nothing can be made in
//     void spoil(const std::string& folder); // a copy of the folder will break off half-way
template <class Harness> class FilesContract : public ::testing::Test {
protected:
    Files& files() { return m_harness.files(); }
    std::string at(const std::string& name) { return m_harness.folder() + '/' + name; }
    void write(const std::string& name, const std::string& text)
    {
        m_harness.write(at(name), text);
    }
    std::string read(const std::string& name) { return m_harness.read(at(name)); }
    bool exists(const std::string& name) { return m_harness.exists(at(name)); }
    std::string unreachable() { return m_harness.unreachable(); }
    void spoil(const std::string& name) { m_harness.spoil(at(name)); }

private:
    Harness m_harness;
};

TYPED_TEST_SUITE_P(FilesContract);

TYPED_TEST_P(FilesContract, AFolderIsCopiedWithEverythingInIt)
{
    this->write("app/bin/game", "program");
    this->write("app/share/a/b/picture", "blue");
    EXPECT_TRUE(this->files().copy(this->at("app"), this->at("copy")));
    EXPECT_EQ(this->read("copy/bin/game"), "program");
    EXPECT_EQ(this->read("copy/share/a/b/picture"), "blue");
    EXPECT_EQ(this->read("app/bin/game"), "program");
}

TYPED_TEST_P(FilesContract, AFileIsCopiedAsAFile)
{
    this->write("game.image", "everything");
    EXPECT_TRUE(this->files().copy(this->at("game.image"), this->at("copy")));
    EXPECT_EQ(this->read("copy"), "everything");
}

TYPED_TEST_P(FilesContract, NothingIsCopiedOverWhatIsThere)
{
    this->write("app/game", "new");
    this->write("there/game", "old");
    EXPECT_FALSE(this->files().copy(this->at("app"), this->at("there")));
    EXPECT_EQ(this->read("there/game"), "old");
}

TYPED_TEST_P(FilesContract, WhatIsMissingCannotBeCopied)
{
    EXPECT_FALSE(this->files().copy(this->at("app"), this->at("copy")));
    EXPECT_FALSE(this->exists("copy"));
}

TYPED_TEST_P(FilesContract, ACopyNeedsAFolderToGoInto)
{
    this->write("app/game", "new");
    EXPECT_FALSE(this->files().copy(this->at("app"), this->at("nowhere/app")));
    EXPECT_FALSE(this->files().copy(this->at("app"), this->unreachable() + "/app"));
}

TYPED_TEST_P(FilesContract, ACopyThatBreaksOffFails)
{
    this->write("app/game", "new");
    this->spoil("app");
    EXPECT_FALSE(this->files().copy(this->at("app"), this->at("copy")));
    EXPECT_TRUE(this->files().remove(this->at("copy"))); // whatever there is of it
    EXPECT_FALSE(this->exists("copy"));
}

TYPED_TEST_P(FilesContract, ANewcomerTakesTheFreePlace)
{
    this->write("new/game", "new");
    EXPECT_TRUE(this->files().replace(this->at("app"), this->at("new")));
    EXPECT_EQ(this->read("app/game"), "new");
    EXPECT_FALSE(this->exists("new"));
}

TYPED_TEST_P(FilesContract, ANewcomerTakesThePlaceOfAllThatWasThere)
{
    this->write("app/game", "old");
    this->write("app/leftover", "old");
    this->write("new/game", "new");
    EXPECT_TRUE(this->files().replace(this->at("app"), this->at("new")));
    EXPECT_EQ(this->read("app/game"), "new");
    EXPECT_FALSE(this->exists("app/leftover"));
    EXPECT_FALSE(this->exists("new"));
}

TYPED_TEST_P(FilesContract, AFileMayReplaceAFolderAndAFolderAFile)
{
    this->write("app/game", "old");
    this->write("new", "file");
    EXPECT_TRUE(this->files().replace(this->at("app"), this->at("new")));
    EXPECT_EQ(this->read("app"), "file");
    this->write("newer/game", "folder");
    EXPECT_TRUE(this->files().replace(this->at("app"), this->at("newer")));
    EXPECT_EQ(this->read("app/game"), "folder");
}

TYPED_TEST_P(FilesContract, WithoutANewcomerTheOldOneStays)
{
    this->write("app/game", "old");
    EXPECT_FALSE(this->files().replace(this->at("app"), this->at("new")));
    EXPECT_EQ(this->read("app/game"), "old");
}

TYPED_TEST_P(FilesContract, AFolderIsToldFromAFileAndFromNothing)
{
    this->write("app/game", "new");
    EXPECT_TRUE(this->files().isFolder(this->at("app")));
    EXPECT_FALSE(this->files().isFolder(this->at("app/game")));
    EXPECT_FALSE(this->files().isFolder(this->at("nowhere")));
}

TYPED_TEST_P(FilesContract, FoldersAreMadeWithThoseAboveThem)
{
    EXPECT_TRUE(this->files().makeFolder(this->at("a/b/c")));
    EXPECT_TRUE(this->exists("a/b/c"));
    this->write("a/b/c/text", "kept");
    EXPECT_TRUE(this->files().makeFolder(this->at("a/b/c"))); // it is there already
    EXPECT_EQ(this->read("a/b/c/text"), "kept");
}

TYPED_TEST_P(FilesContract, AFolderCannotBeMadeWhereAFileIs)
{
    this->write("file", "text");
    EXPECT_FALSE(this->files().makeFolder(this->at("file")));
    EXPECT_FALSE(this->files().makeFolder(this->unreachable() + "/new"));
    EXPECT_EQ(this->read("file"), "text");
}

TYPED_TEST_P(FilesContract, WhatIsRemovedIsGoneAndItsNeighbourIsNot)
{
    this->write("app/game", "old");
    this->write("app2/game", "other");
    EXPECT_TRUE(this->files().remove(this->at("app")));
    EXPECT_FALSE(this->exists("app"));
    EXPECT_EQ(this->read("app2/game"), "other");
    EXPECT_TRUE(this->files().remove(this->at("app"))); // nothing is there, as was wished
}

REGISTER_TYPED_TEST_SUITE_P(FilesContract, AFolderIsCopiedWithEverythingInIt, AFileIsCopiedAsAFile,
    NothingIsCopiedOverWhatIsThere, WhatIsMissingCannotBeCopied, ACopyNeedsAFolderToGoInto,
    ACopyThatBreaksOffFails, ANewcomerTakesTheFreePlace, ANewcomerTakesThePlaceOfAllThatWasThere,
    AFileMayReplaceAFolderAndAFolderAFile, WithoutANewcomerTheOldOneStays,
    AFolderIsToldFromAFileAndFromNothing, FoldersAreMadeWithThoseAboveThem,
    AFolderCannotBeMadeWhereAFileIs, WhatIsRemovedIsGoneAndItsNeighbourIsNot);

} // namespace veyrand::platform
