#include "platform/qt/FilePreferences.h"

#include "platform/PreferencesContract.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>

namespace veyrand::platform {

namespace {

class FilePreferencesHarness {
public:
    FilePreferencesHarness() { reopen(); }

    Preferences& preferences() { return *m_preferences; }

    void reopen()
    {
        m_preferences.reset();
        m_preferences
            = std::make_unique<qt::FilePreferences>(m_folder.filePath("preferences.json"));
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<qt::FilePreferences> m_preferences;
};

QByteArray contentsOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& name, const QByteArray& contents)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(File, PreferencesContract, FilePreferencesHarness);

TEST(FilePreferences, AFileThatCannotBeUnderstoodIsKeptUnderAnotherName)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("preferences.json");
    write(file, "{ half a fi");

    qt::FilePreferences preferences(file);
    EXPECT_EQ(preferences.value("Music"), std::nullopt);
    preferences.setValue("Music", true);

    bool isKept = false;
    for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
        isKept = isKept || contentsOf(folder.filePath(name)) == "{ half a fi";
    }
    EXPECT_TRUE(isKept);
    EXPECT_TRUE(qt::FilePreferences(file).boolForKey("Music"));
}

TEST(FilePreferences, WhatNobodyHereKnowsSurvives)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("preferences.json");
    write(file, R"({ "FromALaterVersion": [1, 2], "Player-New": { "Colours": ["red"] } })");

    qt::FilePreferences(file).setValue("Music", true);
    EXPECT_TRUE(contentsOf(file).contains("FromALaterVersion"));
    EXPECT_TRUE(contentsOf(file).contains("Colours"));
}

TEST(FilePreferences, AFileThatIsNotThereIsMade)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("new/folder/preferences.json");
    qt::FilePreferences(file).setValue("Music", true);
    EXPECT_TRUE(qt::FilePreferences(file).boolForKey("Music"));
}

} // namespace veyrand::platform
