#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace veyrand::platform {

// What is known of the volume a path lies on: texts under the keys below, each there only when it
// could be found out, and the properties that the system keeps of the device.
struct VolumeProperties {
    static constexpr std::string_view kMountPointKey = "NSWorkspace_QVmntonname";
    static constexpr std::string_view kFileSystemTypeKey = "NSWorkspace_QVfstypename";
    static constexpr std::string_view kSourceDeviceKey = "NSWorkspace_QVmntfromname";
    // Only for a volume that is a mounted disk image: the path of the image file.
    static constexpr std::string_view kImageFilePathKey = "NSWorkspace_QVimagefilepath";
    static constexpr std::string_view kDeviceInfoKey = "NSWorkspace_QVdeviceinfo";

    using Texts = std::map<std::string, std::string, std::less<>>;

    Texts texts;
    std::optional<Texts> deviceInfo; // what stands under kDeviceInfoKey

    [[nodiscard]] std::optional<std::string> text(std::string_view key) const
    {
        const auto found = texts.find(key);
        return found != texts.end() ? std::optional(found->second) : std::nullopt;
    }
    void setText(std::string_view key, std::string value)
    {
        texts.insert_or_assign(std::string(key), std::move(value));
    }
    bool operator==(const VolumeProperties&) const = default;
};

// The mounted volumes of the machine.
class Volumes {
public:
    Volumes() = default;
    Volumes(const Volumes&) = delete;
    Volumes& operator=(const Volumes&) = delete;
    virtual ~Volumes() = default;

    // Nothing when the file system of the path cannot be queried, for one because no such path
    // exists.
    [[nodiscard]] virtual std::optional<VolumeProperties> propertiesForPath(
        const std::string& path) const = 0;
};

} // namespace veyrand::platform
