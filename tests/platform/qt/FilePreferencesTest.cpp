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

TEST(FilePreferences, AFileThatCannotBeUnderstoodIsReportedByName)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("preferences.json");
    write(file, "[]"); // JSON, but no object
    static QString reported;
    reported.clear();
    const QtMessageHandler usual
        = qInstallMessageHandler([](QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                                     const QString& message) { reported += message; });
    const qt::FilePreferences preferences(file);
    qInstallMessageHandler(usual);
    EXPECT_TRUE(reported.contains(file)) << reported.toStdString();
    EXPECT_FALSE(QFile::exists(file)); // moved, and nothing written in its place yet
}

TEST(FilePreferences, ASecondDamagedFileLeavesTheFirstOneKept)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("preferences.json");
    for (const char* damaged : { "first", "second" }) {
        write(file, damaged);
        const qt::FilePreferences preferences(file);
    }
    QStringList kept;
    for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
        kept += QString::fromUtf8(contentsOf(folder.filePath(name)));
    }
    kept.sort();
    EXPECT_EQ(kept, QStringList({ "first", "second" }));
}

// The new contents take the old file's place only once they are complete.
TEST(FilePreferences, AFileIsReplacedWhole)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("preferences.json");
    qt::FilePreferences preferences(file);
    preferences.setValue("Name", std::string("Ada"));
    QFile open(file);
    ASSERT_TRUE(open.open(QIODevice::ReadOnly));
    preferences.setValue("Name", std::string("Grace"));
    // Whoever had the old file open still reads it unharmed.
    EXPECT_TRUE(open.readAll().contains("Ada"));
    EXPECT_TRUE(contentsOf(file).contains("Grace"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({ "preferences.json" }));
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
