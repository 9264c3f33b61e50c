#include "desktop/linux/LinuxInstallation.h"
#include "desktop/linux/LinuxVolumes.h"
#include "desktop/linux/PosixFiles.h"
#include "install/M3InstallController.h"
#include "platform/MemoryPreferences.h"
#include "platform/fakes/NotedAlerts.h"
#include "platform/fakes/PlainTexts.h"
#include "support/ScratchFolder.h"

#include <sys/mount.h>

namespace veyrand::platform {

namespace fs = std::filesystem;

namespace {

// A file with a small file system on it, mounted through a loop device, holding an application.
class DiskImage {
public:
    DiskImage()
    {
        m_folder.write(file(), "");
        fs::resize_file(file(), 1024 * 1024);
        fs::create_directory(point());
        m_mounted = run(std::string(VEYRAND_MKFS) + " -q '" + file() + "'")
            && run("mount -o loop '" + file() + "' '" + point() + "'");
        if (m_mounted) {
            m_folder.write(program(), "program");
            m_folder.write(point() + "/Veyrand/share/veyrand/data", "data");
        }
    }
    DiskImage(const DiskImage&) = delete;
    DiskImage& operator=(const DiskImage&) = delete;
    ~DiskImage()
    {
        if (m_mounted) {
            EXPECT_EQ(::umount2(point().c_str(), MNT_DETACH), 0);
        }
    }

    [[nodiscard]] bool isMounted() const { return m_mounted; }
    [[nodiscard]] std::string file() const { return m_folder.at("Veyrand.img"); }
    [[nodiscard]] std::string point() const { return m_folder.at("mounted here"); }
    [[nodiscard]] std::string program() const { return point() + "/Veyrand/bin/veyrand"; }
    [[nodiscard]] const test::ScratchFolder& folder() const { return m_folder; }

private:
    static bool run(const std::string& command)
    {
        return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
    }

    test::ScratchFolder m_folder;
    bool m_mounted = false;
};

} // namespace

TEST(DiskImageTest, ARealOneIsRecognisedAndTheApplicationOnItInstalled)
{
    const DiskImage image;
    if (!image.isMounted()) {
        GTEST_SKIP() << "This machine does not let this user mount an image through a loop device "
                        "(that takes root, loop devices and mkfs.ext2); the faked mount table has "
                        "to do";
    }
    const desktop::linux::LinuxVolumes volumes;
    const auto properties = volumes.propertiesForPath(image.program());
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ(properties->text(VolumeProperties::kImageFilePathKey), image.file());
    EXPECT_EQ(properties->text(VolumeProperties::kMountPointKey), image.point());
    EXPECT_EQ(properties->text(VolumeProperties::kFileSystemTypeKey), "ext2");
    ASSERT_TRUE(properties->deviceInfo.has_value());
    EXPECT_EQ(properties->deviceInfo->at("DEVTYPE"), "disk");

    desktop::linux::PosixFiles files;
    NotedAlerts alerts;
    MemoryPreferences preferences;
    const PlainTexts texts;
    const install::Installation installation { .volumes = volumes,
        .files = files,
        .alerts = alerts,
        .preferences = preferences,
        .texts = texts,
        .bundle = desktop::linux::bundleOf(image.program(), {}),
        .user = { .loginName = "ada", .homeFolder = image.folder().at("home") } };
    install::M3InstallController installer(installation);
    bool done = false;
    installer.displayInstaller([&] { done = true; });
    ASSERT_TRUE(alerts.isOpen());
    EXPECT_EQ(alerts.alert().message, "Veyrand is running from a Disk Image!");
    if (fs::exists(install::M3InstallController::kSystemFolder)) {
        GTEST_SKIP() << "There is an /Applications folder on this machine; a test leaves it alone";
    }
    alerts.answer({ .button = AlertAnswer::Button::Default });
    EXPECT_EQ(alerts.alert().message, "Veyrand installed successfully!");
    alerts.close();
    EXPECT_TRUE(done);
    const std::string installed = image.folder().at("home/Applications/Veyrand");
    EXPECT_EQ(image.folder().read(installed + "/bin/veyrand"), "program");
    EXPECT_EQ(image.folder().read(installed + "/share/veyrand/data"), "data");
    EXPECT_FALSE(fs::exists(image.folder().at("home/Applications/.Veyrand.installing")));
}

} // namespace veyrand::platform
