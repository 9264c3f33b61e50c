#include "platform/Effect.h"
#include "present/ChipSet.h"
#include "present/ExtraPictures.h"
#include "progress/PlayerKeys.h"
#include "support/Places.h"
#include "support/PlayedGame.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <set>

namespace veyrand::look {

namespace {

using Names = std::set<std::string>;

// Whatever else lies there, the mixer's settings, say, is none.
Names filesIn(const char* folder)
{
    Names names;
    const QStringList kinds { QStringLiteral("*.svg"), QStringLiteral("*.jpg"),
        QStringLiteral("*.wav"), QStringLiteral("*.ogg") };
    QDirIterator files(
        QString::fromStdString(test::sourceFolder() + "/assets/") + QLatin1String(folder), kinds,
        QDir::Files);
    while (files.hasNext()) {
        names.insert(QFileInfo(files.next()).completeBaseName().toStdString());
    }
    return names;
}

// Every sound that any line of the sources plays.
Names soundsInSources()
{
    const QRegularExpression call(QStringLiteral("play\\(\\s*platform::Effect::(\\w+)\\)"));
    Names names { std::string(platform::kMusic) };
    QDirIterator files(QString::fromStdString(test::sourceFolder() + "/src"),
        { QStringLiteral("*.cpp") }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        auto matches = call.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext()) {
            names.insert(matches.next().captured(1).toStdString());
        }
    }
    return names;
}

} // namespace

// Goes everywhere the game can show something and notes which images the records name: the lit face
// of a button is a record too, long before it is seen.
class AskedFor : public test::PlayedGame {
protected:
    void note()
    {
        for (const std::string& key : table().keys()) {
            if (const std::string& name = object(key)->imageName(); !name.empty()) {
                m_images.insert(name);
            }
        }
    }

    void titlePage(bool endlessUnlocked)
    {
        game().preferences().setRecord(progress::playerRecordKey(progress::kDefaultPlayerName),
            { { std::string(progress::kLevelKey), std::int64_t { 5 } },
                { std::string(progress::kStageKey), std::int64_t { 7 } },
                { std::string(progress::kScoreKey), std::int64_t { 850 } },
                { std::string(progress::kEndlessScoreKey), std::int64_t { 120 } } });
        game().preferences().setValue(progress::kEndlessGameUnlockedKey, endlessUnlocked);
        game().controller().flow().returnToMenu();
        wait(1.0);
        note();
    }

    void boards()
    {
        auto& flow = game().controller().flow();
        flow.newClassicGame(); // asks
        wait(1.0);
        note();
        game().controller().dialogues().dismiss();
        flow.newEndlessGame();
        flow.startEndlessGame();
        wait(3.0);
        note();
        play("YR", "YRRRR");
        click("chip-0-0");
        settle();
        for (int hint = 0; hint < 3; ++hint) {
            game().controller().hints().hintClick();
            settle();
            note();
        }
    }

    void pages()
    {
        for (const auto& [name, page] : game().game().script().pages) {
            play(at(6, 2, "YRGB", "YGGGG"));
            game().preferences().setValue(progress::kEndlessGameUnlockedKey, false);
            game().controller().pages().show(name);
            note();
            game().controller().messages().dismiss();
        }
    }

    [[nodiscard]] const Names& images() const { return m_images; }

private:
    Names m_images { "WoodBackground" }; // lies under everything, and is no record
};

TEST_F(AskedFor, TheImagesAreExactlyTheFilesThereAre)
{
    titlePage(false);
    titlePage(true);
    boards();
    pages();

    Names files = filesIn("svg");
    files.merge(filesIn("wood"));
    EXPECT_THAT(images(), ::testing::ContainerEq(files));
}

TEST(AskedForByExtras, TheImagesAreExactlyTheFilesThereAre)
{
    const auto names = present::extraPictureNames();
    EXPECT_THAT(Names(names.begin(), names.end()), ::testing::ContainerEq(filesIn("svg/extras")));
}

TEST(AskedForBySettings, TheOtherStonesAreExactlyTheFilesThereAre)
{
    const auto names = present::chipSetPictureNames();
    EXPECT_THAT(Names(names.begin(), names.end()), ::testing::ContainerEq(filesIn("svg/chips")));
}

TEST(AskedForBySources, TheSoundsAreExactlyTheFilesThereAre)
{
    EXPECT_THAT(soundsInSources(), ::testing::ContainerEq(filesIn("sounds")));
}

} // namespace veyrand::look
