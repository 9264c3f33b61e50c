#include "install/M3InstallController.h"

#include "platform/MemoryPreferences.h"
#include "platform/fakes/FixedVolumes.h"
#include "platform/fakes/MemoryFiles.h"
#include "platform/fakes/NotedAlerts.h"
#include "platform/fakes/PlainTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::install {

using platform::Alert;
using platform::AlertAnswer;
using platform::VolumeProperties;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr const char* kKey = "M3DontAskInstallAgain";
constexpr AlertAnswer kInstall { .button = AlertAnswer::Button::Default };
constexpr AlertAnswer kCancel { .button = AlertAnswer::Button::Alternate };

// Every text in capitals, to see that none goes untranslated.
class LoudTexts final : public platform::Texts {
public:
    [[nodiscard]] std::string localized(const char* context, const char* text) const override
    {
        EXPECT_STREQ(context, "M3InstallController");
        std::string loud = text;
        for (char& letter : loud) {
            letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        }
        return loud;
    }
};

// An application on a mounted image, and a machine with room for it.
class Installer : public ::testing::Test {
protected:
    Installer()
    {
        m_files.write("/media/Veyrand/Seven Moves/bin/game", "new");
        m_files.write("/media/Veyrand/Seven Moves/share/data", "new");
        m_files.makeFolder("/Applications");
        m_files.makeFolder("/home/ada");
        mountImage("/home/ada/Downloads/Veyrand.img");
    }

    void mountImage(const std::string& image)
    {
        VolumeProperties properties;
        properties.setText(VolumeProperties::kMountPointKey, "/media/Veyrand");
        properties.setText(VolumeProperties::kImageFilePathKey, image);
        m_volumes.mount(properties);
    }
    void mountPlainDisk()
    {
        VolumeProperties properties;
        properties.setText(VolumeProperties::kMountPointKey, "/media/Veyrand");
        m_volumes.mount(properties);
    }

    Installation installation()
    {
        return { .volumes = m_volumes,
            .files = m_files,
            .alerts = m_alerts,
            .preferences = m_preferences,
            .texts = m_texts,
            .bundle = m_bundle,
            .user = { .loginName = "ada", .homeFolder = "/home/ada" } };
    }

    // Quits: an alert may be open afterwards.
    void quit()
    {
        m_installation = std::make_unique<Installation>(installation());
        m_controller = std::make_unique<M3InstallController>(*m_installation);
        m_done = 0;
        m_controller->displayInstaller([this] { ++m_done; });
    }
    // Quits and answers all questions the same way.
    void quitAndAnswer(const AlertAnswer& answer)
    {
        quit();
        ASSERT_TRUE(m_alerts.isOpen());
        m_alerts.answer(answer);
        if (m_alerts.isOpen()) {
            m_report = m_alerts.alert();
            m_alerts.close();
        }
        EXPECT_EQ(m_done, 1);
        EXPECT_FALSE(m_alerts.isOpen());
    }
    bool asks()
    {
        quit();
        const bool asked = m_alerts.isOpen();
        EXPECT_EQ(m_done, asked ? 0 : 1);
        if (asked) {
            m_alerts.answer(kCancel);
        }
        EXPECT_EQ(m_done, 1);
        return asked;
    }
    [[nodiscard]] std::vector<std::string> filesBelow(const std::string& folder)
    {
        std::vector<std::string> found;
        for (const std::string& path : m_files.files()) {
            if (path.compare(0, folder.size() + 1, folder + '/') == 0) {
                found.push_back(path.substr(folder.size() + 1));
            }
        }
        return found;
    }

    platform::FixedVolumes m_volumes;
    platform::MemoryFiles m_files;
    platform::NotedAlerts m_alerts;
    platform::MemoryPreferences m_preferences;
    platform::PlainTexts m_texts;
    Bundle m_bundle { .path = "/media/Veyrand/Seven Moves", .name = "Seven" };
    Alert m_report; // the last one
    int m_done = 0;

private:
    std::unique_ptr<Installation> m_installation;
    std::unique_ptr<M3InstallController> m_controller;
};

} // namespace

TEST_F(Installer, FromANormalFolderThereIsNoQuestionAtQuit)
{
    mountPlainDisk();
    EXPECT_FALSE(asks());
    EXPECT_EQ(m_preferences.value(kKey), std::nullopt);
}

TEST_F(Installer, FromAVolumeThatCannotBeQueriedThereIsNoQuestion)
{
    m_bundle.path = "/elsewhere/Seven Moves";
    EXPECT_FALSE(asks());
}

TEST_F(Installer, WithoutABundleThereIsNothingToInstall)
{
    VolumeProperties root;
    root.setText(VolumeProperties::kMountPointKey, "/");
    root.setText(VolumeProperties::kImageFilePathKey, "/image");
    m_volumes.mount(root);
    m_bundle.path.clear();
    EXPECT_FALSE(asks());
}

TEST_F(Installer, FromADiskImageItAsks)
{
    EXPECT_TRUE(asks());
}

TEST_F(Installer, TheQuestionIsPreparedAtOnceAndWordedAsItShouldBe)
{
    const Installation world = installation();
    const M3InstallController controller(world);
    const Alert& alert = controller.alert();
    EXPECT_EQ(alert.message, "Seven is running from a Disk Image!");
    EXPECT_EQ(alert.informativeText,
        "Veyrand may not be properly installed.  Would you like to install Seven in your "
        "Applications folder before quitting?");
    EXPECT_EQ(alert.defaultButton, "Install in Applications");
    EXPECT_EQ(alert.alternateButton, "Cancel");
    EXPECT_EQ(alert.suppressionBox, Alert::SuppressionBox::Shown);
    EXPECT_FALSE(m_alerts.isOpen());
}

TEST_F(Installer, ANameWithAPlaceholderInItIsLeftAsItIs)
{
    m_bundle.name = "%@";
    const Installation world = installation();
    EXPECT_EQ(M3InstallController(world).alert().message, "%@ is running from a Disk Image!");
    m_files.remove("/Applications");
    quitAndAnswer(kInstall);
    EXPECT_EQ(m_report.informativeText, "%@ was installed in /home/ada/Applications.");
}

TEST_F(Installer, EveryTextCanBeTranslated)
{
    const LoudTexts loud;
    const Installation world { .volumes = m_volumes,
        .files = m_files,
        .alerts = m_alerts,
        .preferences = m_preferences,
        .texts = loud,
        .bundle = m_bundle,
        .user = { .loginName = "ada", .homeFolder = "/home/ada" } };
    M3InstallController controller(world);
    EXPECT_EQ(controller.alert().message, "Seven IS RUNNING FROM A DISK IMAGE!");
    EXPECT_EQ(controller.alert().alternateButton, "CANCEL");
    const auto reportOfInstalling = [&] {
        controller.installApp([] {});
        const Alert report = m_alerts.alert();
        m_alerts.close();
        return report;
    };
    EXPECT_EQ(reportOfInstalling().message, "Seven INSTALLED SUCCESSFULLY!");
    m_files.protect("/Applications");
    EXPECT_EQ(
        reportOfInstalling().informativeText, "Seven WAS INSTALLED IN /home/ada/Applications.");
    m_files.protect("/home/ada");
    EXPECT_EQ(reportOfInstalling().message, "COULD NOT INSTALL Seven!");
}

// A user's home can be an encrypted image of just this name.
TEST_F(Installer, FromTheUsersOwnHomeImageThereIsNoQuestion)
{
    mountImage("/Users/.ada/ada.sparseimage");
    EXPECT_FALSE(asks());
    mountImage("/Users/.bob/bob.sparseimage");
    EXPECT_TRUE(asks());
    mountImage("/Users/.ada/bob.sparseimage");
    EXPECT_TRUE(asks());
}

TEST_F(Installer, AfterTheBoxWasTickedOnceItNeverAsksAgain)
{
    quitAndAnswer({ .button = AlertAnswer::Button::Alternate, .suppressed = true });
    EXPECT_TRUE(m_preferences.boolForKey(kKey));
    EXPECT_FALSE(asks());
    mountImage("/another.img");
    EXPECT_FALSE(asks());
}

TEST_F(Installer, TheBoxCountsWithTheInstallationToo)
{
    quitAndAnswer({ .button = AlertAnswer::Button::Default, .suppressed = true });
    EXPECT_TRUE(m_preferences.boolForKey(kKey));
    EXPECT_FALSE(asks());
}

TEST_F(Installer, TheBoxCountsEvenWhenInstallingFails)
{
    m_files.protect("/Applications");
    m_files.protect("/home/ada");
    quitAndAnswer({ .button = AlertAnswer::Button::Default, .suppressed = true });
    EXPECT_TRUE(m_preferences.boolForKey(kKey));
}

TEST_F(Installer, WithoutTheBoxItAsksEachTime)
{
    quitAndAnswer(kCancel);
    EXPECT_EQ(m_preferences.value(kKey), std::nullopt);
    EXPECT_TRUE(asks());
}

TEST_F(Installer, TheFlagSetByHandIsHeeded)
{
    m_preferences.setValue(kKey, false);
    EXPECT_TRUE(asks());
    m_preferences.setValue(kKey, true);
    EXPECT_FALSE(asks());
}

TEST_F(Installer, CancelCopiesNothingAndSaysNothing)
{
    quitAndAnswer(kCancel);
    EXPECT_THAT(filesBelow("/Applications"), IsEmpty());
    EXPECT_EQ(m_report.message, "");
}

TEST_F(Installer, InstallsInTheSystemsFolder)
{
    quitAndAnswer(kInstall);
    EXPECT_THAT(
        filesBelow("/Applications"), ElementsAre("Seven Moves/bin/game", "Seven Moves/share/data"));
    EXPECT_THAT(filesBelow("/home/ada"), IsEmpty());
    EXPECT_EQ(m_report.message, "Seven installed successfully!");
    EXPECT_EQ(m_report.informativeText, "Seven was installed in your Applications folder.");
    EXPECT_EQ(m_report.defaultButton, "Quit");
    EXPECT_EQ(m_report.alternateButton, "");
    EXPECT_EQ(m_report.suppressionBox, Alert::SuppressionBox::Hidden);
}

TEST_F(Installer, TheEndWaitsForTheReportToBeRead)
{
    quit();
    m_alerts.answer(kInstall);
    ASSERT_TRUE(m_alerts.isOpen());
    EXPECT_EQ(m_done, 0);
    m_alerts.close();
    EXPECT_EQ(m_done, 1);
}

TEST_F(Installer, AnExistingCopyIsReplacedWithoutAsking)
{
    m_files.write("/Applications/Seven Moves/bin/game", "old");
    m_files.write("/Applications/Seven Moves/bin/obsolete", "old");
    quitAndAnswer(kInstall);
    EXPECT_THAT(
        filesBelow("/Applications"), ElementsAre("Seven Moves/bin/game", "Seven Moves/share/data"));
    EXPECT_EQ(m_files.read("/Applications/Seven Moves/bin/game"), "new");
}

TEST_F(Installer, AFolderNamedByChanceGetsANameOfItsOwn)
{
    m_bundle.installedName = "Veyrand";
    m_files.write("/Applications/Seven Moves/diary", "hers");
    quitAndAnswer(kInstall);
    EXPECT_THAT(filesBelow("/Applications"),
        ElementsAre("Seven Moves/diary", "Veyrand/bin/game", "Veyrand/share/data"));
}

TEST_F(Installer, OnlyTheApplicationsPartsOfAFolderAreCopied)
{
    m_bundle.parts = { "bin/game", "share/data" };
    m_files.write("/media/Veyrand/Seven Moves/share/another", "theirs");
    m_files.write("/media/Veyrand/Seven Moves/diary", "theirs");
    quitAndAnswer(kInstall);
    EXPECT_THAT(
        filesBelow("/Applications"), ElementsAre("Seven Moves/bin/game", "Seven Moves/share/data"));
    m_files.remove("/Applications");
    quitAndAnswer(kInstall);
    EXPECT_FALSE(m_files.exists("/Applications"));
    EXPECT_EQ(m_report.informativeText, "Seven was installed in /home/ada/Applications.");
}

TEST_F(Installer, WhereAPartIsMissingNothingIsInstalled)
{
    m_bundle.parts = { "bin/game", "share/missing" };
    quitAndAnswer(kInstall);
    EXPECT_THAT(filesBelow("/Applications"), IsEmpty());
    EXPECT_EQ(m_report.message, "Could not install Seven!");
}

TEST_F(Installer, WhatIsAStrangersStaysAndTheNextFolderIsTried)
{
    m_bundle.mayReplace = [this](const std::string& path) {
        return !m_files.exists(path) || m_files.exists(path + "/bin/game");
    };
    m_files.write("/Applications/Seven Moves/diary", "hers");
    quitAndAnswer(kInstall);
    EXPECT_THAT(filesBelow("/Applications"), ElementsAre("Seven Moves/diary"));
    EXPECT_EQ(m_report.informativeText, "Seven was installed in /home/ada/Applications.");
    quitAndAnswer(kInstall); // ours makes room
    EXPECT_EQ(m_report.informativeText, "Seven was installed in /home/ada/Applications.");

    m_files.remove("/home/ada/Applications");
    m_files.write("/home/ada/Applications/Seven Moves", "a file of hers");
    quitAndAnswer(kInstall);
    EXPECT_EQ(m_report.message, "Could not install Seven!");
    EXPECT_THAT(filesBelow("/home/ada/Applications"), ElementsAre("Seven Moves"));
}

TEST_F(Installer, WithoutASystemFolderTheUsersOwnIsMade)
{
    m_files.remove("/Applications");
    quitAndAnswer(kInstall);
    EXPECT_FALSE(m_files.exists("/Applications"));
    EXPECT_THAT(filesBelow("/home/ada/Applications"),
        ElementsAre("Seven Moves/bin/game", "Seven Moves/share/data"));
    EXPECT_EQ(m_report.message, "Seven installed successfully!");
    EXPECT_EQ(m_report.informativeText, "Seven was installed in /home/ada/Applications.");
    EXPECT_EQ(m_report.defaultButton, "Quit");
}

TEST_F(Installer, AnExistingCopyInTheUsersOwnFolderIsReplacedToo)
{
    m_files.protect("/Applications");
    m_files.write("/home/ada/Applications/Seven Moves/bin/game", "old");
    quitAndAnswer(kInstall);
    EXPECT_EQ(m_files.read("/home/ada/Applications/Seven Moves/bin/game"), "new");
}

TEST_F(Installer, WhenBothFoldersRefuseItSaysSo)
{
    m_files.protect("/Applications");
    m_files.protect("/home/ada");
    quitAndAnswer(kInstall);
    EXPECT_EQ(m_report.message, "Could not install Seven!");
    EXPECT_EQ(m_report.informativeText, "An error occurred while installing.");
    EXPECT_EQ(m_report.defaultButton, "Quit");
}

TEST_F(Installer, ACopyThatBreaksOffLeavesTheOldOnesAndNoRest)
{
    m_files.write("/Applications/Seven Moves/bin/game", "old");
    m_files.write("/home/ada/Applications/Seven Moves/bin/game", "old");
    m_files.breakAt("/media/Veyrand/Seven Moves/share/data");
    quitAndAnswer(kInstall);
    EXPECT_EQ(m_report.message, "Could not install Seven!");
    EXPECT_THAT(filesBelow("/Applications"), ElementsAre("Seven Moves/bin/game"));
    EXPECT_THAT(filesBelow("/home/ada/Applications"), ElementsAre("Seven Moves/bin/game"));
    EXPECT_EQ(m_files.read("/Applications/Seven Moves/bin/game"), "old");
    EXPECT_EQ(m_files.read("/home/ada/Applications/Seven Moves/bin/game"), "old");
}

TEST_F(Installer, AReplacementThatFailsLeavesTheOldCopyAndFallsBack)
{
    m_files.write("/Applications/Seven Moves/bin/game", "old");
    m_files.refuseReplacement();
    quitAndAnswer(kInstall);
    EXPECT_THAT(filesBelow("/Applications"), ElementsAre("Seven Moves/bin/game"));
    EXPECT_EQ(m_files.read("/Applications/Seven Moves/bin/game"), "old");
    EXPECT_EQ(m_report.informativeText, "Seven was installed in /home/ada/Applications.");
}

TEST_F(Installer, TheRestOfAnEarlierAttemptIsNoObstacle)
{
    m_files.write("/Applications/.Seven Moves.installing/bin/half", "rest");
    quitAndAnswer(kInstall);
    EXPECT_THAT(
        filesBelow("/Applications"), ElementsAre("Seven Moves/bin/game", "Seven Moves/share/data"));
}

TEST_F(Installer, ASingleFileIsABundleToo)
{
    m_files.write("/media/Veyrand/Seven.AppImage", "all of it");
    m_bundle.path = "/media/Veyrand/Seven.AppImage";
    quitAndAnswer(kInstall);
    EXPECT_EQ(m_files.read("/Applications/Seven.AppImage"), "all of it");
}

// Copying it onto itself would be the end of it.
TEST_F(Installer, WhatIsAnImageItselfAndInstalledAlreadyIsNotOffered)
{
    for (const char* folder : { "/Applications", "/home/ada/Applications" }) {
        m_bundle.path = std::string(folder) + "/Seven.AppImage";
        VolumeProperties properties;
        properties.setText(VolumeProperties::kMountPointKey, "/");
        properties.setText(VolumeProperties::kImageFilePathKey, m_bundle.path);
        m_volumes.mount(properties);
        EXPECT_FALSE(asks()) << folder;
    }
    m_bundle.path = "/home/ada/Seven.AppImage";
    EXPECT_TRUE(asks());
}

TEST_F(Installer, ASlashAtTheEndOfTheBundlesPathIsNoPartOfItsName)
{
    m_bundle.path = "/media/Veyrand/Seven Moves/";
    m_files.write("/media/Veyrand/Seven Moves//x", "new"); // how this path reads to the fake
    quitAndAnswer(kInstall);
    EXPECT_EQ(filesBelow("/Applications/Seven Moves").empty(), false);
}

} // namespace veyrand::install
