#pragma once

#include "desktop/qt/GameFont.h"
#include "desktop/qt/RecentPixmaps.h"
#include "present/DisplayList.h"

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QSvgRenderer>
#include <QTimer>

#include <map>
#include <memory>

namespace veyrand::desktop::qt {

// The pictures that layers are made of, drawn once for each size in device pixels and kept. Vector
// art is drawn straight at the size asked for; a picture that is missing or damaged is reported
// once, by file, and shown as a plain disc.
class ImageStore {
public:
    ImageStore(QString folder, const GameFont& font);

    // A picture that lies in the other folder is taken from there: those with words on them are, in
    // another language. None if empty.
    void setLanguageFolder(const QString& folder);

    // The named picture stretched to exactly the size.
    const QPixmap& image(const std::string& name, QSize size);
    // The named picture at some size already drawn that is no smaller, if there is one, for a layer
    // whose size changes from frame to frame; otherwise at the size.
    const QPixmap& imageAtLeast(const std::string& name, QSize size);
    // How many pictures are kept, each size for itself. Another number: the one above may choose
    // another picture than before.
    [[nodiscard]] std::size_t count() const { return m_images.size(); }
    // The picture's light, to be added over it, and the shadow it throws when lifted, to be laid
    // under it. They reach past every edge by twice the radius and twice the height. Device pixels.
    const QPixmap& glow(const std::string& name, QSize size, int radius);
    const QPixmap& shadow(const std::string& name, QSize size, int height);
    // The picture pushed in, as large as the picture.
    const QPixmap& pressed(const std::string& name, QSize size);
    // Forgets what was drawn for sizes that are no longer asked for; the sources stay.
    void forgetSizes();
    // One line of text as high as the size, with a margin all round for what sets it off from its
    // ground and for letters that lean out of their line. Only those last asked for are kept.
    const QPixmap& text(const present::TextContent& text, QSizeF size);
    [[nodiscard]] static int textMargin(QSizeF size); // device pixels

private:
    const QPixmap& effect(QLatin1Char kind, const std::string& name, QSize size, int reach,
        QImage (*make)(const QImage& picture, int reach));
    [[nodiscard]] QString fileOf(const QString& name) const;
    [[nodiscard]] QImage draw(const std::string& name, QSize size);
    [[nodiscard]] QImage drawSource(const QString& file, QSize size);
    [[nodiscard]] const QImage& photograph(const QString& file, QSize size);

    QString m_folder;
    QString m_languageFolder;
    const GameFont& m_font;
    std::map<std::pair<std::string, std::pair<int, int>>, QPixmap> m_images;
    QHash<QString, QPixmap> m_effects;
    RecentPixmaps m_texts;
    std::map<QString, std::unique_ptr<QSvgRenderer>> m_vectors;
    std::map<QString, QImage> m_photographs;
    QTimer m_photographsRest;
};

} // namespace veyrand::desktop::qt
