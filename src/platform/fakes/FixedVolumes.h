#pragma once

#include "platform/Volumes.h"

namespace veyrand::platform {

// Volumes as they are told: where nothing runs from an image, none at all; in tests, whichever they
// mount.
class FixedVolumes final : public Volumes {
public:
    // The properties must hold the mount point.
    void mount(VolumeProperties properties)
    {
        const std::string point = properties.text(VolumeProperties::kMountPointKey).value_or("/");
        m_volumes.insert_or_assign(point, std::move(properties));
    }

    // The volume whose mount point is nearest above the path.
    [[nodiscard]] std::optional<VolumeProperties> propertiesForPath(
        const std::string& path) const override
    {
        std::optional<VolumeProperties> nearest;
        std::size_t length = 0;
        for (const auto& [point, properties] : m_volumes) {
            const std::string start = point == "/" ? point : point + '/';
            if ((path + '/').compare(0, start.size(), start) == 0 && start.size() > length) {
                length = start.size();
                nearest = properties;
            }
        }
        return nearest;
    }

private:
    std::map<std::string, VolumeProperties, std::less<>> m_volumes;
};

} // namespace veyrand::platform
