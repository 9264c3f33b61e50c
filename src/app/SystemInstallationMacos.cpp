#include "app/SystemInstallation.h"
#include "platform/macos/MacInstallation.h"

namespace veyrand::app {

// Written for macOS and compiled only there; it has never been run.
SystemInstallation::SystemInstallation(platform::Preferences& preferences)
    : m_volumes(platform::macos::systemVolumes())
    , m_files(platform::macos::systemFiles())
    , m_alerts(platform::macos::systemAlerts())
    , m_installation(
          std::make_unique<install::Installation>(install::Installation { .volumes = *m_volumes,
              .files = *m_files,
              .alerts = *m_alerts,
              .preferences = preferences,
              .texts = m_texts,
              .bundle = platform::macos::applicationBundle(),
              .user = platform::macos::currentUser() }))
{
}

} // namespace veyrand::app
