#pragma once

#include "platform/qt/GameFont.h"
#include "present/DisplayList.h"

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QSvgRenderer>

#include <map>
#include <memory>

namespace veyrand::platform::qt {

// The pictures that layers are made of, drawn once for each size in device pixels and kept. Vector
// art is drawn straight at the size asked for; a picture that is missing or damaged is reported
// once, by file, and shown as a plain disc.
class ImageStore {
public:
    ImageStore(QString folder, const GameFont& font)
        : m_folder(std::move(folder))
        , m_font(font)
    {
    }

    // The named picture stretched to exactly the size.
    const QPixmap& image(const std::string& name, QSize size);
    // The named picture at some size already drawn that is no smaller, if there is one, for a layer
    // whose size changes from frame to frame; otherwise at the size.
    const QPixmap& imageAtLeast(const std::string& name, QSize size);
    // The picture's light, blurred by the radius, to be added over it; it reaches twice the radius
    // past every edge. Device pixels.
    const QPixmap& glow(const std::string& name, QSize size, int radius);
    // Forgets what was drawn for sizes that are no longer asked for; the sources stay.
    void forgetSizes();
    // One line of text as high as the size.
    const QPixmap& text(const present::TextContent& text, QSize size);

private:
    [[nodiscard]] QImage draw(const std::string& name, QSize size);
    [[nodiscard]] QImage drawSource(const QString& file, QSize size);

    QString m_folder;
    const GameFont& m_font;
    std::map<std::pair<std::string, std::pair<int, int>>, QPixmap> m_images;
    QHash<QString, QPixmap> m_glows;
    QHash<QString, QPixmap> m_texts;
    std::map<QString, std::unique_ptr<QSvgRenderer>> m_vectors;
    QHash<QString, QImage> m_photographs;
};

} // namespace veyrand::platform::qt
