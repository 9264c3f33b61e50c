#include "desktop/qt/Logging.h"

namespace veyrand::desktop::qt {

Q_LOGGING_CATEGORY(lcGame, "veyrand.game")
Q_LOGGING_CATEGORY(lcAnalysis, "veyrand.analysis")
Q_LOGGING_CATEGORY(lcTiming, "veyrand.timing", QtInfoMsg)

void QtLog::write(std::string_view line)
{
    qCInfo(lcAnalysis).noquote() << QString::fromUtf8(
        line.data(), static_cast<qsizetype>(line.size()));
}

} // namespace veyrand::desktop::qt
