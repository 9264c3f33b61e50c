#pragma once

#include "platform/TextMetrics.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>

namespace veyrand::desktop::qt {

// The game's one font, Linux Biolinum, measured without hinting at a large size and scaled, so that
// words keep their width against each other at every size. Falls back to the desktop's font, saying
// so.
class GameFont final : public platform::TextMetrics {
public:
    GameFont();

    [[nodiscard]] platform::Size preferredFrameSize(std::string_view text) const override;

    // The font with an em of kMeasuringSize pixels, and its ascent in ems.
    static constexpr double kMeasuringSize = 1000.0;
    [[nodiscard]] const QFont& font() const { return m_font; }
    [[nodiscard]] double ascent() const { return m_metrics.ascent() / kMeasuringSize; }
    [[nodiscard]] double lineHeight() const;

private:
    QFont m_font;
    QFontMetricsF m_metrics;
};

} // namespace veyrand::desktop::qt
