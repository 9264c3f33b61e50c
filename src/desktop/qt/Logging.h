#pragma once

#include "platform/Log.h"

#include <QLoggingCategory>

namespace veyrand::desktop::qt {

// What the game reports: QT_LOGGING_RULES="veyrand.*=true" shows all of it.
Q_DECLARE_LOGGING_CATEGORY(lcGame)
// What the designers' analysis tools print.
Q_DECLARE_LOGGING_CATEGORY(lcAnalysis)
// When what happened, for whoever measures.
Q_DECLARE_LOGGING_CATEGORY(lcTiming)

class QtLog final : public platform::Log {
public:
    void write(std::string_view line) override;
};

} // namespace veyrand::desktop::qt
