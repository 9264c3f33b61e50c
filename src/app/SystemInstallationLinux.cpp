#include "app/SystemInstallation.h"
#include "platform/linux/LinuxInstallation.h"
#include "platform/linux/LinuxVolumes.h"
#include "platform/linux/PosixFiles.h"

namespace veyrand::app {

SystemInstallation::SystemInstallation(platform::Preferences& preferences)
    : m_files(std::make_unique<platform::linux::PosixFiles>())
    , m_alerts(std::make_unique<platform::qt::QtAlerts>())
{
    const std::string program = platform::linux::runningProgram();
    const auto appImage = platform::linux::AppImage::of(program);
    m_volumes = std::make_unique<platform::linux::LinuxVolumes>(appImage);
    m_installation
        = std::make_unique<install::Installation>(install::Installation { .volumes = *m_volumes,
            .files = *m_files,
            .alerts = *m_alerts,
            .preferences = preferences,
            .texts = m_texts,
            .bundle = platform::linux::bundleOf(program, appImage),
            .user = platform::linux::currentUser() });
}

} // namespace veyrand::app
