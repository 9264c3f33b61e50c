#include "app/SystemInstallation.h"
#include "platform/fakes/FixedVolumes.h"
#include "platform/fakes/MemoryFiles.h"

namespace veyrand::app {

SystemInstallation::SystemInstallation(platform::Preferences& preferences)
    : m_volumes(std::make_unique<platform::FixedVolumes>())
    , m_files(std::make_unique<platform::MemoryFiles>())
    , m_alerts(std::make_unique<desktop::qt::QtAlerts>())
    , m_installation(
          std::make_unique<install::Installation>(install::Installation { .volumes = *m_volumes,
              .files = *m_files,
              .alerts = *m_alerts,
              .preferences = preferences,
              .texts = m_texts,
              .bundle = {},
              .user = {} }))
{
}

} // namespace veyrand::app
