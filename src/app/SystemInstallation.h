#pragma once

#include "desktop/qt/QtAlerts.h"
#include "desktop/qt/QtTexts.h"
#include "install/Installation.h"

#include <memory>

namespace veyrand::app {

// What the installer works with on this system; the build chooses the adapters. Where there are
// none, nothing ever runs from an image, and so nothing is asked.
class SystemInstallation {
public:
    explicit SystemInstallation(platform::Preferences& preferences);

    [[nodiscard]] const install::Installation& installation() const { return *m_installation; }

private:
    desktop::qt::QtTexts m_texts;
    std::unique_ptr<platform::Volumes> m_volumes;
    std::unique_ptr<platform::Files> m_files;
    std::unique_ptr<platform::Alerts> m_alerts;
    std::unique_ptr<install::Installation> m_installation;
};

} // namespace veyrand::app
