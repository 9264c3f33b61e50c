#include "desktop/qt/RecentPixmaps.h"

namespace veyrand::desktop::qt {

qsizetype RecentPixmaps::bytesOf(const QPixmap& pixmap)
{
    constexpr qsizetype kBitsPerByte = 8;
    return qsizetype { pixmap.width() } * pixmap.height() * pixmap.depth() / kBitsPerByte;
}

void RecentPixmaps::dropWhatIsTooMuch()
{
    while (m_bytes > kMostBytes && count() > kFewest) {
        m_bytes -= bytesOf(m_pixmaps.back().second);
        m_places.remove(m_pixmaps.back().first);
        m_pixmaps.pop_back();
    }
}

void RecentPixmaps::clear()
{
    m_places.clear();
    m_pixmaps.clear();
    m_bytes = 0;
}

} // namespace veyrand::desktop::qt
