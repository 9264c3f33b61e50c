#pragma once

#include "install/M3InstallController.h"

#include <functional>
#include <memory>
#include <utility>

namespace veyrand::app {

// Makes the offer to install the game where there is reason for one, and calls the function when
// everything is answered, which may be at once. The installation must live until then.
inline void offerInstallation(const install::Installation& installation, std::function<void()> done)
{
    const auto installer = std::make_shared<install::M3InstallController>(installation);
    // It lives in its own continuation, for there is no saying when the player answers.
    installer->displayInstaller([installer, done = std::move(done)] { done(); });
}

} // namespace veyrand::app
