#include "desktop/qt/GameFont.h"

#include "desktop/qt/Logging.h"

#include <QFontDatabase>

namespace veyrand::desktop::qt {

namespace {

QFont gameFont()
{
    const QString family = QStringLiteral("Linux Biolinum O");
    QFont font;
    if (QFontDatabase::hasFamily(family)) {
        font.setFamily(family);
    } else {
        qCWarning(lcGame).noquote()
            << "The font" << family << "is not installed (package fonts-linuxlibertine);"
            << "texts are shown in" << font.family();
    }
    font.setPixelSize(static_cast<int>(GameFont::kMeasuringSize));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

GameFont::GameFont()
    : m_font(gameFont())
    , m_metrics(m_font)
{
}

double GameFont::lineHeight() const
{
    return (m_metrics.ascent() + m_metrics.descent()) / kMeasuringSize;
}

platform::Size GameFont::preferredFrameSize(std::string_view text) const
{
    const QString string = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return { .width = m_metrics.horizontalAdvance(string) / kMeasuringSize,
        .height = lineHeight() };
}

} // namespace veyrand::desktop::qt
