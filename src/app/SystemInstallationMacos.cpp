#include "app/SystemInstallation.h"
#include "desktop/macos/MacInstallation.h"

namespace veyrand::app {

// Written for macOS and compiled only there; it has never been run.
SystemInstallation::SystemInstallation(platform::Preferences& preferences)
    : m_volumes(desktop::macos::systemVolumes())
    , m_files(desktop::macos::systemFiles())
    , m_alerts(desktop::macos::systemAlerts())
    , m_installation(
          std::make_unique<install::Installation>(install::Installation { .volumes = *m_volumes,
              .files = *m_files,
              .alerts = *m_alerts,
              .preferences = preferences,
              .texts = m_texts,
              .bundle = desktop::macos::applicationBundle(),
              .user = desktop::macos::currentUser() }))
{
}

} // namespace veyrand::app
