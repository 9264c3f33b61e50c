#include "desktop/linux/LinuxVolumes.h"

#include "desktop/linux/MountTable.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/statfs.h>

namespace veyrand::desktop::linux {

namespace fs = std::filesystem;

namespace {

std::string read(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(stream), {} };
}

// A live system has its root on an image, and a package manager may keep programs in some: what is
// mounted there is installed already.
bool belongsToTheSystem(const std::string& mountPoint)
{
    constexpr std::array<std::string_view, 3> kSystemFolders { "/usr", "/snap", "/var/lib/snapd" };
    return mountPoint == "/"
        || std::any_of(kSystemFolders.begin(), kSystemFolders.end(),
            [&](std::string_view folder) { return isWithin(mountPoint, folder); });
}

// The entry of the device below /sys, or "" when the file system is on none. Some types, btrfs for
// one, show a made-up number in the mount table; their device goes by its name.
std::string deviceEntry(const Mount& mount, const std::string& devices)
{
    std::error_code ignored;
    for (const std::string& entry : { devices + "/dev/block/" + mount.device,
             devices + "/class/block/" + fs::path(mount.source).filename().string() }) {
        if (fs::exists(entry + "/uevent", ignored)) {
            return entry;
        }
    }
    return {};
}

// The entry is a list of "NAME=value" lines.
platform::VolumeProperties::Texts deviceProperties(const std::string& entry)
{
    platform::VolumeProperties::Texts properties;
    std::ifstream lines(entry + "/uevent");
    for (std::string line; std::getline(lines, line);) {
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos) {
            properties.insert_or_assign(line.substr(0, equals), line.substr(equals + 1));
        }
    }
    return properties;
}

// The image behind a loop device or a partition of one. An encrypted volume on top of a loop device
// is not followed down to its file: that is how home folders are kept in images, and whatever runs
// from there is where it belongs.
std::string backingFile(const std::string& entry)
{
    std::string file = read(entry + "/loop/backing_file");
    if (file.empty()) {
        file = read(entry + "/../loop/backing_file"); // the entry is a link: its parent, not ours
    }
    return file.substr(0, file.find('\n'));
}

} // namespace

std::optional<platform::VolumeProperties> LinuxVolumes::propertiesForPath(
    const std::string& path) const
{
    struct statfs statistics { };
    if (statfs(path.c_str(), &statistics) != 0) {
        return std::nullopt;
    }
    std::error_code ignored;
    const std::string place
        = m_appImage.holds(path) ? m_appImage.mountPoint : fs::canonical(path, ignored).string();
    platform::VolumeProperties properties;
    const auto mount = mountOf(place, parseMountTable(read(m_sources.mountTable)));
    if (mount) {
        properties.setText(platform::VolumeProperties::kMountPointKey, mount->point);
        properties.setText(platform::VolumeProperties::kFileSystemTypeKey, mount->type);
        properties.setText(platform::VolumeProperties::kSourceDeviceKey, mount->source);
    }
    const std::string device = mount ? deviceEntry(*mount, m_sources.devices) : std::string();
    std::string image = m_appImage.holds(path) ? m_appImage.file : std::string();
    if (!device.empty()) {
        properties.deviceInfo = deviceProperties(device);
        if (image.empty() && !belongsToTheSystem(mount->point)) {
            image = backingFile(device);
        }
    }
    if (!image.empty()) {
        properties.setText(platform::VolumeProperties::kImageFilePathKey, std::move(image));
    }
    return properties;
}

} // namespace veyrand::desktop::linux
