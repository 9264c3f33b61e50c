#pragma once

#include "platform/Alerts.h"

namespace veyrand::platform::qt {

// Alerts as message boxes. They are opened, not run: show returns at once, and whoever has no event
// loop left to answer in, as at quit, brings one.
class QtAlerts final : public Alerts {
public:
    void show(const Alert& alert, Answered answered) override;
};

} // namespace veyrand::platform::qt
