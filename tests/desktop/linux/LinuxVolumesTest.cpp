#include "desktop/linux/LinuxVolumes.h"

#include "desktop/linux/LinuxInstallation.h"
#include "platform/VolumesContract.h"
#include "support/ScratchFolder.h"

namespace veyrand::platform {

namespace fs = std::filesystem;
using desktop::linux::AppImage;
using desktop::linux::LinuxVolumes;

namespace {

// A machine of files: a mount table and the devices' entries, as the kernel would show them.
class FakeMachine {
public:
    FakeMachine()
    {
        fs::create_directories(m_folder.at("plain/bin"));
        fs::create_directories(m_folder.at("image/bin"));
        mount("254:0", m_folder.at("plain"), "/dev/vda");
    }

    void mount(const std::string& device, const std::string& point, const std::string& source)
    {
        m_table += "30 27 " + device + " / " + point + " rw - ext4 " + source + " rw\n";
        m_folder.write(m_folder.at("mountinfo"), m_table);
    }
    // A whole loop device, or a partition of one, backed by the file.
    void addLoop(const std::string& device, const std::string& backing, const std::string& name,
        const std::string& partition = {})
    {
        const std::string loop = m_folder.at("sys/devices/" + name);
        m_folder.write(loop + "/loop/backing_file", backing + '\n');
        m_folder.write(loop + "/uevent", "MAJOR=7\nDEVNAME=" + name + '\n');
        std::string entry = loop;
        if (!partition.empty()) {
            entry += '/' + partition;
            m_folder.write(entry + "/uevent", "DEVTYPE=partition\nPARTN=1\n");
        }
        link(entry, "dev/block/" + device);
        link(entry, "class/block/" + fs::path(entry).filename().string());
    }
    void addDisk(const std::string& device, const std::string& name)
    {
        m_folder.write(m_folder.at("sys/devices/" + name + "/uevent"), "DEVTYPE=disk\n");
        link(m_folder.at("sys/devices/" + name), "dev/block/" + device);
    }

    [[nodiscard]] LinuxVolumes volumes(const AppImage& appImage = {}) const
    {
        return { appImage,
            { .mountTable = m_folder.at("mountinfo"), .devices = m_folder.at("sys") } };
    }
    [[nodiscard]] std::optional<std::string> image(
        const std::string& path, const AppImage& appImage = {}) const
    {
        const auto properties = volumes(appImage).propertiesForPath(path);
        return properties ? properties->text(VolumeProperties::kImageFilePathKey) : std::nullopt;
    }
    [[nodiscard]] std::string at(const std::string& name) const { return m_folder.at(name); }

private:
    void link(const std::string& entry, const std::string& place) const
    {
        const fs::path path = m_folder.at("sys/" + place);
        fs::create_directories(path.parent_path());
        fs::create_directory_symlink(entry, path);
    }

    test::ScratchFolder m_folder;
    std::string m_table;
};

class LinuxVolumesHarness {
public:
    LinuxVolumesHarness()
    {
        m_machine.addDisk("254:0", "vda");
        m_machine.mount("7:0", imagePoint(), "/dev/loop0");
        m_machine.addLoop("7:0", image(), "loop0");
    }
    const Volumes& volumes() { return m_volumes; }
    std::string plainPoint() { return m_machine.at("plain"); }
    std::string imagePoint() { return m_machine.at("image"); }
    static std::string image() { return "/home/ada/My Downloads/Veyrand.img"; }
    static std::string pathBelow(const std::string& point) { return point + "/bin"; }
    std::string nowhere() { return m_machine.at("image/missing"); }

private:
    FakeMachine m_machine;
    LinuxVolumes m_volumes = m_machine.volumes();
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, VolumesContract, LinuxVolumesHarness);

TEST(LinuxVolumes, TheDevicesEntryIsReadAsItStands)
{
    FakeMachine machine;
    machine.addDisk("254:0", "vda");
    const auto properties = machine.volumes().propertiesForPath(machine.at("plain"));
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ(properties->deviceInfo, (VolumeProperties::Texts { { "DEVTYPE", "disk" } }));
}

TEST(LinuxVolumes, APartitionOfAnImageTellsTheImage)
{
    FakeMachine machine;
    machine.mount("259:0", machine.at("image"), "/dev/loop1p1");
    machine.addLoop("259:0", "/home/ada/disk.img", "loop1", "loop1p1");
    EXPECT_EQ(machine.image(machine.at("image")), "/home/ada/disk.img");
}

TEST(LinuxVolumes, ADeviceWithAMadeUpNumberIsFoundByItsName)
{
    FakeMachine machine;
    machine.mount("0:55", machine.at("image"), "/dev/loop2");
    machine.addLoop("7:2", "/home/ada/btrfs.img", "loop2");
    EXPECT_EQ(machine.image(machine.at("image")), "/home/ada/btrfs.img");
}

TEST(LinuxVolumes, AnEncryptedVolumeIsNotFollowedDownToItsImage)
{
    FakeMachine machine;
    machine.mount("253:0", machine.at("image"), "/dev/mapper/home-ada");
    machine.addLoop("7:0", "/home/ada.home", "loop0");
    machine.addDisk("253:0", "dm-0");
    EXPECT_EQ(machine.image(machine.at("image")), std::nullopt);
}

// A live system runs from an image as a whole; there is nothing to install from it.
TEST(LinuxVolumes, AnImageThatIsTheSystemItselfDoesNotCount)
{
    FakeMachine machine;
    machine.addLoop("7:0", "/run/live/filesystem.squashfs", "loop0");
    machine.mount("7:0", "/", "/dev/loop0");
    const auto properties = machine.volumes().propertiesForPath("/");
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ(properties->text(VolumeProperties::kMountPointKey), "/");
    EXPECT_EQ(properties->text(VolumeProperties::kImageFilePathKey), std::nullopt);
}

TEST(LinuxVolumes, ALinkIsFollowedToTheVolumeItLeadsTo)
{
    FakeMachine machine;
    machine.mount("7:0", machine.at("image"), "/dev/loop0");
    machine.addLoop("7:0", "/home/ada/a.img", "loop0");
    fs::create_directory_symlink(machine.at("image/bin"), machine.at("plain/link"));
    EXPECT_EQ(machine.image(machine.at("plain/link")), "/home/ada/a.img");
}

TEST(LinuxVolumes, WithoutAMountTableNothingIsKnownButNothingBreaks)
{
    const LinuxVolumes volumes({}, { .mountTable = "/missing", .devices = "/missing" });
    EXPECT_EQ(volumes.propertiesForPath("/"), VolumeProperties {});
}

TEST(LinuxVolumes, TheRealTableKnowsTheRoot)
{
    const auto properties = LinuxVolumes().propertiesForPath("/");
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ(properties->text(VolumeProperties::kMountPointKey), "/");
    EXPECT_EQ(properties->text(VolumeProperties::kImageFilePathKey), std::nullopt);
}

TEST(LinuxVolumes, AnAppImageIsTheImageOfWhatIsInItAndOfItself)
{
    FakeMachine machine;
    machine.mount("0:60", machine.at("image"), "Veyrand.AppImage");
    const AppImage appImage { .file = machine.at("plain/bin"), .mountPoint = machine.at("image") };
    EXPECT_EQ(machine.image(machine.at("image/bin"), appImage), appImage.file);
    EXPECT_EQ(machine.image(appImage.file, appImage), appImage.file);
    EXPECT_EQ(machine.image(machine.at("plain"), appImage), std::nullopt);
    const auto properties = machine.volumes(appImage).propertiesForPath(appImage.file);
    ASSERT_TRUE(properties.has_value());
    EXPECT_EQ(properties->text(VolumeProperties::kMountPointKey), appImage.mountPoint);
}

TEST(AppImage, CountsOnlyForAProgramThatIsInIt)
{
    ::setenv("APPIMAGE", "/home/ada/Files.AppImage", 1);
    ::setenv("APPDIR", "/tmp/.mount_Files", 1);
    EXPECT_EQ(AppImage::of("/tmp/.mount_Files/usr/bin/veyrand").file, "/home/ada/Files.AppImage");
    EXPECT_EQ(AppImage::of("/tmp/.mount_Files2/usr/bin/veyrand").file, "");
    EXPECT_EQ(AppImage::of("/usr/games/veyrand").file, "");
    ::unsetenv("APPDIR");
    EXPECT_EQ(AppImage::of("/usr/games/veyrand").file, "");
    ::unsetenv("APPIMAGE");
    EXPECT_EQ(AppImage::of("/usr/games/veyrand").file, "");
}

TEST(Bundle, IsTheFolderThatHoldsTheProgramAndItsData)
{
    const test::ScratchFolder folder;
    folder.write(folder.at("Veyrand/bin/veyrand"), "");
    EXPECT_EQ(desktop::linux::bundleOf(folder.at("Veyrand/bin/veyrand"), {}).path, "");
    fs::create_directories(folder.at("Veyrand/share/veyrand"));
    const auto bundle = desktop::linux::bundleOf(folder.at("Veyrand/bin/veyrand"), {});
    EXPECT_EQ(bundle.path, folder.at("Veyrand"));
    EXPECT_EQ(bundle.name, "Veyrand");
}

TEST(Bundle, HoldsWhatAnInstallationMakesAndNothingElse)
{
    const test::ScratchFolder folder;
    for (const char* file : { "bin/veyrand", "bin/other", "lost+found/x", "notes.txt",
             "share/veyrand/data", "share/other/data", "share/doc/veyrand/copyright",
             "share/icons/hicolor/48x48/apps/" VEYRAND_ID ".png",
             "share/icons/hicolor/48x48/apps/other.png" }) {
        folder.write(folder.at(std::string("Label 7/") + file), "");
    }
    const auto bundle = desktop::linux::bundleOf(folder.at("Label 7/bin/veyrand"), {});
    EXPECT_EQ(bundle.path, folder.at("Label 7"));
    EXPECT_EQ(bundle.installedName, "Veyrand");
    EXPECT_EQ(bundle.parts,
        (std::vector<std::string> { "bin/veyrand", "share/veyrand", "share/doc/veyrand",
            "share/icons/hicolor/48x48/apps/" VEYRAND_ID ".png" }));
}

TEST(Bundle, MakesRoomForItselfOnlyWhereAnotherCopyIsOrNothing)
{
    const test::ScratchFolder folder;
    folder.write(folder.at("image/bin/veyrand"), "");
    folder.write(folder.at("image/share/veyrand/data"), "");
    const auto bundle = desktop::linux::bundleOf(folder.at("image/bin/veyrand"), {});
    const auto mayReplace = [&](const char* name) { return bundle.mayReplace(folder.at(name)); };

    EXPECT_TRUE(mayReplace("nothing"));
    EXPECT_TRUE(mayReplace("image"));
    folder.write(folder.at("image/share/veyrand/older"), "");
    EXPECT_TRUE(mayReplace("image"));

    folder.write(folder.at("file"), "");
    EXPECT_FALSE(mayReplace("file"));
    folder.write(folder.at("theirs/readme"), "");
    EXPECT_FALSE(mayReplace("theirs"));
    fs::create_directory_symlink(folder.at("image"), folder.at("link"));
    EXPECT_FALSE(mayReplace("link"));
    fs::create_symlink("/no/such/place", folder.at("dangling"));
    EXPECT_FALSE(mayReplace("dangling"));
    folder.write(folder.at("image/diary.txt"), "");
    EXPECT_FALSE(mayReplace("image"));
    fs::remove(folder.at("image/diary.txt"));
    folder.write(folder.at("image/share/theirs/file"), "");
    EXPECT_FALSE(mayReplace("image"));
}

TEST(Bundle, AnAppImageMakesRoomForItselfOnlyWhereAnotherIsOrNothing)
{
    const test::ScratchFolder folder;
    const AppImage appImage { .file = folder.at("V-x86_64"), .mountPoint = "/tmp/.mount_V" };
    const auto bundle = desktop::linux::bundleOf("/tmp/.mount_V/usr/bin/veyrand", appImage);
    EXPECT_EQ(bundle.installedName, "Veyrand.AppImage");
    EXPECT_TRUE(bundle.parts.empty());
    const auto mayReplace = [&](const char* name) { return bundle.mayReplace(folder.at(name)); };

    EXPECT_TRUE(mayReplace("nothing"));
    folder.write(folder.at("older"),
        std::string("\x7f"
                    "ELF\x02\x01\x01\0"
                    "AI\x02...",
            14));
    EXPECT_TRUE(mayReplace("older"));
    folder.write(folder.at("program"),
        std::string("\x7f"
                    "ELF\x02\x01\x01\0\0\0\0...",
            14));
    EXPECT_FALSE(mayReplace("program"));
    folder.write(folder.at("text"), "AI");
    EXPECT_FALSE(mayReplace("text"));
    folder.write(folder.at("folder/bin/veyrand"), "");
    EXPECT_FALSE(mayReplace("folder"));
    fs::create_symlink(folder.at("older"), folder.at("link"));
    EXPECT_FALSE(mayReplace("link"));
}

TEST(Bundle, IsNotWhatThePackageManagerHasFilled)
{
    for (const char* program :
        { "/usr/games/veyrand", "/usr/local/bin/veyrand", "/bin/veyrand", "" }) {
        EXPECT_EQ(desktop::linux::bundleOf(program, {}).path, "") << program;
    }
}

TEST(Bundle, IsTheAppImageForAProgramInOne)
{
    const AppImage appImage { .file = "/home/ada/V.AppImage", .mountPoint = "/tmp/.mount_V" };
    EXPECT_EQ(
        desktop::linux::bundleOf("/tmp/.mount_V/usr/bin/veyrand", appImage).path, appImage.file);
}

TEST(RunningProgram, IsThisTest)
{
    EXPECT_EQ(fs::path(desktop::linux::runningProgram()).filename(), "desktop_linux_tests");
    EXPECT_FALSE(desktop::linux::currentUser().loginName.empty());
    EXPECT_EQ(desktop::linux::currentUser().homeFolder.front(), '/');
}

} // namespace veyrand::platform
