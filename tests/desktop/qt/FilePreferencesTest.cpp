#include "desktop/qt/FilePreferences.h"

#include "platform/PreferencesContract.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sys/stat.h>

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

TEST_F(FilePreferencesTest, TheFileKeepsItsMode)
{
    for (const auto mode : { QFile::ReadOwner | QFile::WriteOwner,
             QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup }) {
        write(file(), "{}");
        ASSERT_TRUE(QFile::setPermissions(file(), mode));
        const auto before = QFile::permissions(file());
        desktop::qt::FilePreferences(file()).setValue("Music", true);
        EXPECT_EQ(QFile::permissions(file()), before);
    }
}

// Reading a pipe would wait for somebody to write, and /dev/zero never ends.
TEST_F(FilePreferencesTest, OnlyARegularFileOfReasonableSizeIsRead)
{
    const std::pair<const char*, std::function<void()>> cases[] = {
        { "no regular file",
            [this] { ASSERT_EQ(::mkfifo(QFile::encodeName(file()).constData(), 0600), 0); } },
        { "no regular file", [this] { ASSERT_TRUE(QFile::link("/dev/zero", file())); } },
        { "no regular file", [this] { ASSERT_TRUE(QDir().mkpath(file())); } },
        { "larger than", [this] { write(file(), QByteArray(1024 * 1024, ' ') + "{}"); } },
    };
    for (const auto& [reason, make] : cases) {
        SCOPED_TRACE(reason);
        QFile::remove(file());
        make();
        desktop::qt::FilePreferences preferences(file());
        const QString report = reportsOf(preferences).join(QString());
        EXPECT_TRUE(report.contains(QLatin1String(reason))) << report.toStdString();
        EXPECT_TRUE(report.contains(QLatin1String(".damaged-"))) << report.toStdString();
        preferences.setValue("Music", true);
        EXPECT_EQ(contentsOf(file()), "{\n    \"Music\": true\n}\n");
        EXPECT_FALSE(QFileInfo(file()).isSymLink());
    }
    EXPECT_TRUE(QFileInfo::exists("/dev/zero"));
    write(file(), QByteArray(1024 * 1024 - 2, ' ') + "{}");
    desktop::qt::FilePreferences largest(file());
    EXPECT_EQ(reportsOf(largest), QStringList());
}

TEST_F(FilePreferencesTest, WhatWasChangedFromOutsideIsKeptBesideWhatIsWritten)
{
    desktop::qt::FilePreferences preferences(file());
    QStringList reports;
    preferences.setReporter([&reports](const QString& report) { reports.append(report); });
    preferences.setValue("Name", std::string("first"));
    write(file(), "{ \"Name\": \"theirs\" }");
    preferences.setValue("Music", true);
    EXPECT_TRUE(contentsOf(file()).contains("first"));
    EXPECT_EQ(contentsOf(path("preferences.json.damaged-1")), "{ \"Name\": \"theirs\" }");
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(QLatin1String("changed by something else")));
    EXPECT_TRUE(reports.front().contains(QLatin1String(".damaged-1")));
    preferences.setValue("Music", false); // ours stands there now
    EXPECT_EQ(reports.size(), 1);
    EXPECT_FALSE(contentsOf(lastGood()).contains("theirs"));
}

TEST_F(FilePreferencesTest, AFileThatAppearedOrWentMeanwhileIsAChangeToo)
{
    desktop::qt::FilePreferences preferences(file());
    write(file(), "theirs");
    preferences.setValue("Music", true);
    EXPECT_EQ(contentsOf(path("preferences.json.damaged-1")), "theirs");
    QFile::remove(file());
    preferences.setValue("Music", false);
    EXPECT_TRUE(contentsOf(file()).contains("false"));
    EXPECT_EQ(names().filter(QStringLiteral("damaged")).size(), 1);
}

class MisunderstoodPreferencesTest : public FilePreferencesTest {
protected:
    // Levels must be numbers, and what begins with "Player" a group.
    static std::vector<std::string> judge(std::string_view group, const StoredGroup& stored)
    {
        std::vector<std::string> names;
        for (const auto& [name, value] : stored.values) {
            const bool isLevel = group == "Player-New" && name == "Level";
            if ((isLevel && !std::holds_alternative<std::int64_t>(value))
                || (group.empty() && name.starts_with("Player"))) {
                names.push_back(name);
            }
        }
        return names;
    }
    [[nodiscard]] QString damaged() const { return path("preferences.json.damaged-1"); }
};

TEST_F(MisunderstoodPreferencesTest, WhatIsNotUnderstoodIsCopiedBeforeItIsDropped)
{
    const QByteArray before = R"({ "Music": false, "Player-New": { "Level": "3", "Score": 20 } })";
    write(file(), before);
    desktop::qt::FilePreferences preferences(file(), judge);
    EXPECT_EQ(reportsOf(preferences), QStringList());
    preferences.setValue("Music", true);
    auto record = *preferences.record("Player-New");
    record["Score"] = std::int64_t { 40 };
    preferences.setRecord("Player-New", record);
    EXPECT_FALSE(QFile::exists(damaged())) << "nothing has been dropped so far";
    EXPECT_TRUE(contentsOf(file()).contains("\"Level\": \"3\""));

    QStringList reports;
    preferences.setReporter([&reports](const QString& report) { reports.append(report); });
    record["Level"] = std::int64_t { 1 };
    preferences.setRecord("Player-New", record);
    EXPECT_TRUE(contentsOf(damaged()).contains("\"Level\": \"3\""));
    EXPECT_TRUE(contentsOf(file()).contains("\"Level\": 1"));
    EXPECT_TRUE(contentsOf(file()).contains("\"Score\": 40")) << "what is understood is kept";
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports.front().contains(QLatin1String("Player-New.Level")));
    EXPECT_TRUE(reports.front().contains(damaged()));
    record["Level"] = std::int64_t { 2 };
    preferences.setRecord("Player-New", record);
    EXPECT_EQ(reports.size(), 1) << "once";
}

TEST_F(MisunderstoodPreferencesTest, ARecordOfAnotherKindIsCopiedToo)
{
    const QByteArray before = R"({ "Player-New": 3 })";
    write(file(), before);
    desktop::qt::FilePreferences preferences(file(), judge);
    preferences.setRecord("Player-New", { { "Level", std::int64_t { 1 } } });
    EXPECT_EQ(contentsOf(damaged()), before);
}

TEST_F(FilePreferencesTest, WhatCouldNotBeSavedIsTriedAndToldAgainAtTheEnd)
{
    write(path("no-folder"), "a file in the folder's place");
    desktop::qt::FilePreferences preferences(path("no-folder/preferences.json"));
    preferences.setReporter([](const QString&) {});
    EXPECT_EQ(preferences.saveWhatFailed(), QString());
    preferences.setValue("Music", true);
    EXPECT_TRUE(preferences.saveWhatFailed().contains(path("no-folder/preferences.json")));
    QFile::remove(path("no-folder"));
    ASSERT_TRUE(QDir().mkpath(path("no-folder")));
    EXPECT_EQ(preferences.saveWhatFailed(), QString());
    EXPECT_TRUE(contentsOf(path("no-folder/preferences.json")).contains("true"));
}

TEST(UsualPreferencesFile, ARelativeFolderIsIgnored)
{
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", "/somewhere");
    EXPECT_EQ(desktop::qt::FilePreferences::usualFile(), "/somewhere/veyrand/preferences.json");
    const QString usual = QDir::homePath() + QStringLiteral("/.config/veyrand/preferences.json");
    for (const char* folder : { "somewhere", "./somewhere", "" }) {
        qputenv("XDG_CONFIG_HOME", folder);
        EXPECT_EQ(desktop::qt::FilePreferences::usualFile(), usual) << folder;
    }
    qputenv("XDG_CONFIG_HOME", before);
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
