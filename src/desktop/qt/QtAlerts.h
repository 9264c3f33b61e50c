#pragma once

#include "platform/Alerts.h"

namespace veyrand::desktop::qt {

// Alerts as message boxes. They are opened, not run: show returns at once, and whoever has no event
// loop left to answer in, as at quit, brings one.
class QtAlerts final : public platform::Alerts {
public:
    void show(const platform::Alert& alert, Answered answered) override;
};

} // namespace veyrand::desktop::qt
