#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>

#include <list>
#include <utility>

namespace veyrand::desktop::qt {

// Pixmaps by name, of which only those last asked for are kept: as many as one screen could ever
// show, and beyond that no more than a certain number of bytes. For pictures of which there is no
// end, as of a score that goes on rising.
class RecentPixmaps {
public:
    // The one of the name, made where it is not kept. It stays until that many others have been
    // asked for.
    template <class Make> const QPixmap& get(const QString& name, const Make& make)
    {
        if (const auto known = m_places.constFind(name); known != m_places.constEnd()) {
            m_pixmaps.splice(m_pixmaps.begin(), m_pixmaps, *known);
            return m_pixmaps.front().second;
        }
        m_pixmaps.emplace_front(name, make());
        m_places.insert(name, m_pixmaps.begin());
        m_bytes += bytesOf(m_pixmaps.front().second);
        dropWhatIsTooMuch();
        return m_pixmaps.front().second;
    }

    void clear();

    [[nodiscard]] qsizetype count() const { return m_places.size(); }
    [[nodiscard]] qsizetype bytes() const { return m_bytes; }

    static constexpr qsizetype kFewest = 32; // kept whatever their size
    static constexpr qsizetype kMostBytes = qsizetype { 4 } * 1024 * 1024;

private:
    using Pixmaps = std::list<std::pair<QString, QPixmap>>; // the last one asked for first

    [[nodiscard]] static qsizetype bytesOf(const QPixmap& pixmap);
    void dropWhatIsTooMuch();

    Pixmaps m_pixmaps;
    QHash<QString, Pixmaps::iterator> m_places;
    qsizetype m_bytes = 0;
};

} // namespace veyrand::desktop::qt
