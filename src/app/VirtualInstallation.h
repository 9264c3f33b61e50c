#pragma once

#include "install/Installation.h"
#include "platform/MemoryPreferences.h"
#include "platform/fakes/FixedVolumes.h"
#include "platform/fakes/MemoryFiles.h"
#include "platform/fakes/NotedAlerts.h"
#include "platform/fakes/PlainTexts.h"

namespace veyrand::app {

// What a virtual game would be installed from and to. Nothing is mounted until somebody mounts it,
// so by itself it asks nothing at its end.
class VirtualInstallation {
public:
    static constexpr const char* kBundle = "/media/Veyrand/Veyrand";

    explicit VirtualInstallation(platform::Preferences& preferences)
        : m_installation { .volumes = volumes,
            .files = files,
            .alerts = alerts,
            .preferences = preferences,
            .texts = m_texts,
            .bundle = { .path = kBundle, .name = "Veyrand" },
            .user = { .loginName = "ada", .homeFolder = "/home/ada" } }
    {
    }

    [[nodiscard]] const install::Installation& installation() const { return m_installation; }

    platform::FixedVolumes volumes;
    platform::MemoryFiles files;
    platform::NotedAlerts alerts;

private:
    platform::PlainTexts m_texts;
    install::Installation m_installation;
};

} // namespace veyrand::app
