#pragma once

#include "desktop/linux/AppImage.h"
#include "platform/Volumes.h"

namespace veyrand::desktop::linux {

// Volumes as the kernel tells of them: the mount table says where a path lies, and the device's
// entry below /sys which file a loop device is backed by. That file is the disk image. An AppImage
// mounts itself without a device, so it has to be known from outside.
class LinuxVolumes final : public platform::Volumes {
public:
    // Where to read; tests have places of their own.
    struct Sources {
        std::string mountTable = "/proc/self/mountinfo";
        std::string devices = "/sys"; // the folder of dev/block and class/block
    };

    explicit LinuxVolumes(AppImage appImage = {}) // none
        : LinuxVolumes(std::move(appImage), Sources {})
    {
    }
    LinuxVolumes(AppImage appImage, Sources sources)
        : m_appImage(std::move(appImage))
        , m_sources(std::move(sources))
    {
    }

    [[nodiscard]] std::optional<platform::VolumeProperties> propertiesForPath(
        const std::string& path) const override;

private:
    AppImage m_appImage;
    Sources m_sources;
};

} // namespace veyrand::desktop::linux
