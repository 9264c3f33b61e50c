#include "app/SystemInstallation.h"
#include "desktop/linux/LinuxInstallation.h"
#include "desktop/linux/LinuxVolumes.h"
#include "desktop/linux/PosixFiles.h"

namespace veyrand::app {

SystemInstallation::SystemInstallation(platform::Preferences& preferences)
    : m_files(std::make_unique<desktop::linux::PosixFiles>())
    , m_alerts(std::make_unique<desktop::qt::QtAlerts>())
{
    const std::string program = desktop::linux::runningProgram();
    const auto appImage = desktop::linux::AppImage::of(program);
    m_volumes = std::make_unique<desktop::linux::LinuxVolumes>(appImage);
    m_installation
        = std::make_unique<install::Installation>(install::Installation { .volumes = *m_volumes,
            .files = *m_files,
            .alerts = *m_alerts,
            .preferences = preferences,
            .texts = m_texts,
            .bundle = desktop::linux::bundleOf(program, appImage),
            .user = desktop::linux::currentUser() });
}

} // namespace veyrand::app
