#include "desktop/qt/FilePreferences.h"

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
            = std::make_unique<desktop::qt::FilePreferences>(m_folder.filePath("preferences.json"));
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<desktop::qt::FilePreferences> m_preferences;
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

namespace {

class FilePreferencesTest : public ::testing::Test {
protected:
    [[nodiscard]] QString file() const { return m_folder.filePath("preferences.json"); }
    [[nodiscard]] QString lastGood() const { return file() + QStringLiteral(".last-good"); }
    // What lies in the folder, less the lock.
    [[nodiscard]] QStringList names() const
    {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files);
        names.removeAll(QStringLiteral("preferences.json.lock"));
        return names;
    }
    // Name "first", then "second": the file and its last good copy.
    void saveTwice() const
    {
        desktop::qt::FilePreferences preferences(file());
        preferences.setValue("Name", std::string("first"));
        preferences.setValue("Name", std::string("second"));
    }
    [[nodiscard]] QString path(const char* name) const { return m_folder.filePath(name); }

    static QStringList reportsOf(desktop::qt::FilePreferences& preferences)
    {
        QStringList reports;
        preferences.setReporter([&reports](const QString& report) { reports.append(report); });
        preferences.setReporter([](const QString&) {});
        return reports;
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(FilePreferencesTest, TheFileIsMeantToBeRead)
{
    desktop::qt::FilePreferences(file()).setRecord(
        "Player-New", { { "TRNLevelKey", std::int64_t { 3 } }, { "TRNFirstHintClickKey", true } });
    EXPECT_EQ(contentsOf(file()),
        "{\n    \"Player-New\": {\n        \"TRNFirstHintClickKey\": true,\n"
        "        \"TRNLevelKey\": 3\n    }\n}\n");
}

TEST_F(FilePreferencesTest, AFileThatCannotBeUnderstoodIsKeptUnderAnotherName)
{
    write(file(), "{ half a fi");
    desktop::qt::FilePreferences preferences(file());
    EXPECT_EQ(preferences.value("Music"), std::nullopt);
    EXPECT_FALSE(QFile::exists(file())); // moved, and nothing written in its place yet
    preferences.setValue("Music", true);
    EXPECT_EQ(names(), QStringList({ "preferences.json", "preferences.json.damaged-1" }));
    EXPECT_EQ(contentsOf(path("preferences.json.damaged-1")), "{ half a fi");
}

TEST_F(FilePreferencesTest, AFileThatCannotBeUnderstoodIsReportedWithItsNameAndTheReason)
{
    const struct {
        const char* contents;
        const char* reason;
    } kDamages[] = { { "[]", "no JSON object" }, { "", "illegal value at byte" },
        { "{ \"a\": 1", "at byte 8" }, { "{\"a\":\"\xff\"}", "byte" } };
    for (const auto& damage : kDamages) {
        SCOPED_TRACE(damage.contents);
        write(file(), damage.contents);
        desktop::qt::FilePreferences preferences(file());
        const QString report = reportsOf(preferences).join(QLatin1Char('\n'));
        EXPECT_TRUE(report.contains(file())) << report.toStdString();
        EXPECT_TRUE(report.contains(QLatin1String(damage.reason))) << report.toStdString();
        EXPECT_TRUE(report.contains(QLatin1String(".damaged-"))) << report.toStdString();
    }
    EXPECT_EQ(names().size(), 4) << "each is kept";
}

TEST_F(FilePreferencesTest, TheLastGoodCopyTakesTheDamagedFilesPlace)
{
    saveTwice();
    write(file(), "{ \"Name\": \"thi");
    {
        desktop::qt::FilePreferences preferences(file());
        EXPECT_EQ(preferences.stringForKey("Name"), "first");
        EXPECT_TRUE(contentsOf(file()).contains("first")); // at once, not at the next change
        EXPECT_EQ(contentsOf(path("preferences.json.damaged-1")), "{ \"Name\": \"thi");
        EXPECT_TRUE(reportsOf(preferences).join(QString()).contains(QLatin1String("copy before")));
    }
    EXPECT_TRUE(contentsOf(lastGood()).contains("first")) << "damage is no good copy";
    desktop::qt::FilePreferences again(file());
    EXPECT_EQ(again.stringForKey("Name"), "first");
    EXPECT_EQ(reportsOf(again), QStringList());
}

TEST_F(FilePreferencesTest, ADamagedCopyHelpsNobody)
{
    saveTwice();
    write(file(), "{");
    write(lastGood(), "{");
    desktop::qt::FilePreferences preferences(file());
    EXPECT_EQ(preferences.value("Name"), std::nullopt);
    preferences.setValue("Name", std::string("third"));
    EXPECT_EQ(desktop::qt::FilePreferences(file()).stringForKey("Name"), "third");
}

// Whoever removes the file wants to begin anew.
TEST_F(FilePreferencesTest, ACopyDoesNotComeBackForAFileThatIsNotThere)
{
    saveTwice();
    QFile::remove(file());
    EXPECT_EQ(desktop::qt::FilePreferences(file()).value("Name"), std::nullopt);
}

// The new contents take the old file's place only once they are complete.
TEST_F(FilePreferencesTest, AFileIsReplacedWhole)
{
    desktop::qt::FilePreferences preferences(file());
    preferences.setValue("Name", std::string("Ada"));
    QFile open(file());
    ASSERT_TRUE(open.open(QIODevice::ReadOnly));
    preferences.setValue("Name", std::string("Grace"));
    // Whoever had the old file open still reads it unharmed.
    EXPECT_TRUE(open.readAll().contains("Ada"));
    EXPECT_TRUE(contentsOf(file()).contains("Grace"));
    EXPECT_TRUE(contentsOf(lastGood()).contains("Ada"));
    EXPECT_EQ(names(), QStringList({ "preferences.json", "preferences.json.last-good" }));
}

// An earlier program's end may have left half of what it was writing.
TEST_F(FilePreferencesTest, WhatAnInterruptedSaveLeftIsNoHindrance)
{
    saveTwice();
    write(path("preferences.json.new"), "{ half");
    write(path("preferences.json.last-good.new"), "{ half");
    desktop::qt::FilePreferences preferences(file());
    EXPECT_EQ(preferences.stringForKey("Name"), "second");
    preferences.setValue("Name", std::string("third"));
    EXPECT_EQ(names(), QStringList({ "preferences.json", "preferences.json.last-good" }));
    EXPECT_TRUE(contentsOf(file()).contains("third"));
}

TEST_F(FilePreferencesTest, WhatNobodyHereKnowsSurvives)
{
    write(file(), R"({ "FromALaterVersion": [1, 2], "Volume": 0.25,
        "Player-New": { "Colours": ["red"], "Speed": 1.5, "Level": 1 } })");
    {
        desktop::qt::FilePreferences preferences(file());
        preferences.setValue("Music", true);
        auto record = *preferences.record("Player-New");
        record["Level"] = std::int64_t { 2 };
        preferences.setRecord("Player-New", record);
    }
    const QByteArray contents = contentsOf(file());
    for (const char* part : { "FromALaterVersion", "\"Volume\": 0.25", "Colours", "red",
             "\"Speed\": 1.5", "\"Level\": 2" }) {
        EXPECT_TRUE(contents.contains(part)) << part << " in " << contents.toStdString();
    }
}

TEST_F(FilePreferencesTest, AFileThatIsNotThereIsMade)
{
    const QString name = path("new/folder/preferences.json");
    desktop::qt::FilePreferences(name).setValue("Music", true);
    EXPECT_TRUE(desktop::qt::FilePreferences(name).boolForKey("Music"));
}

TEST_F(FilePreferencesTest, ALinkToAFileElsewhereStaysALink)
{
    const QString elsewhere = path("elsewhere.json");
    write(elsewhere, "{}");
    ASSERT_TRUE(QFile::link(elsewhere, file()));
    desktop::qt::FilePreferences(file()).setValue("Music", true);
    EXPECT_TRUE(QFileInfo(file()).isSymLink());
    EXPECT_TRUE(contentsOf(elsewhere).contains("Music"));
}

TEST_F(FilePreferencesTest, ASecondProgramReadsAndSavesNothing)
{
    desktop::qt::FilePreferences first(file());
    first.setValue("Name", std::string("first"));
    desktop::qt::FilePreferences second(file());
    EXPECT_FALSE(first.isHeldElsewhere());
    ASSERT_TRUE(second.isHeldElsewhere());
    EXPECT_EQ(second.stringForKey("Name"), "first");
    second.setValue("Name", std::string("second"));
    EXPECT_EQ(second.stringForKey("Name"), "second"); // as long as it runs
    EXPECT_TRUE(contentsOf(file()).contains("first"));
    first.setValue("Music", true);
    EXPECT_TRUE(contentsOf(file()).contains("first"));
}

TEST_F(FilePreferencesTest, ASecondProgramMovesNoDamagedFile)
{
    const desktop::qt::FilePreferences first(file());
    write(file(), "{");
    desktop::qt::FilePreferences second(file());
    second.setValue("Name", std::string("second"));
    EXPECT_EQ(contentsOf(file()), "{");
}

TEST_F(FilePreferencesTest, TheNextProgramMaySaveOnceTheFirstHasEnded)
{
    saveTwice();
    EXPECT_FALSE(desktop::qt::FilePreferences(file()).isHeldElsewhere());
}

TEST_F(FilePreferencesTest, ThatNothingCanBeWrittenIsReportedOnce)
{
    write(path("no-folder"), "a file in the folder's place");
    desktop::qt::FilePreferences preferences(path("no-folder/preferences.json"));
    QStringList reports;
    preferences.setReporter([&reports](const QString& report) { reports.append(report); });
    preferences.setValue("Music", true);
    preferences.setValue("Music", false);
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(path("no-folder/preferences.json")));
    EXPECT_FALSE(preferences.boolForKey("Music"));
}

} // namespace veyrand::platform
