#include "platform/qt/ImageStore.h"

#include "platform/qt/Logging.h"

#include <QDir>
#include <QFileInfo>
#include <QGraphicsBlurEffect>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QPainterPath>

namespace veyrand::platform::qt {

namespace {

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

// What stands for a picture that cannot be had: plain enough to be seen as a fault, round enough to
// play.
QImage standIn(QSize size)
{
    QImage image = blank(size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0xA9, 0xAF, 0xB2));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(image.rect());
    return image;
}

QImage blurred(const QPixmap& source, int radius)
{
    const int reach = 2 * radius;
    QImage result = blank(source.size() + QSize(2 * reach, 2 * reach));
    QGraphicsScene scene;
    auto* const item = scene.addPixmap(source);
    auto* const effect = new QGraphicsBlurEffect; // owned by the item from here on
    effect->setBlurRadius(radius);
    item->setGraphicsEffect(effect);
    QPainter painter(&result);
    scene.render(&painter, QRectF(), QRectF(QPointF(-reach, -reach), QSizeF(result.size())));
    return result;
}

QColor toQColor(const board::Color& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
        static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

} // namespace

const QPixmap& ImageStore::image(const std::string& name, QSize size)
{
    const auto key = std::make_pair(name, std::make_pair(size.width(), size.height()));
    const auto found = m_images.find(key);
    if (found != m_images.end()) {
        return found->second;
    }
    return m_images.emplace(key, QPixmap::fromImage(draw(name, size))).first->second;
}

const QPixmap& ImageStore::imageAtLeast(const std::string& name, QSize size)
{
    const auto from = m_images.lower_bound({ name, { size.width(), size.height() } });
    if (from != m_images.end() && from->first.first == name
        && from->second.height() >= size.height()) {
        return from->second;
    }
    return image(name, size);
}

const QPixmap& ImageStore::glow(const std::string& name, QSize size, int radius)
{
    const QString key = QStringLiteral("%1 %2x%3 %4")
                            .arg(QString::fromStdString(name))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(radius);
    auto found = m_glows.find(key);
    if (found == m_glows.end()) {
        found = m_glows.insert(key, QPixmap::fromImage(blurred(image(name, size), radius)));
    }
    return *found;
}

const QPixmap& ImageStore::text(const present::TextContent& text, QSize size)
{
    const QColor color = toQColor(text.color);
    const QString string = QString::fromStdString(text.text);
    const QString key
        = string + QLatin1Char('\n') + color.name(QColor::HexArgb) + QString::number(size.height());
    auto found = m_texts.find(key);
    if (found == m_texts.end()) {
        QImage image = blank(size);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const double em = size.height() / m_font.lineHeight();
        painter.translate(0.0, m_font.ascent() * em);
        painter.scale(em / GameFont::kMeasuringSize, em / GameFont::kMeasuringSize);
        QPainterPath outlines;
        outlines.addText(0.0, 0.0, m_font.font(), string);
        painter.fillPath(outlines, color);
        painter.end();
        found = m_texts.insert(key, QPixmap::fromImage(image));
    }
    return *found;
}

void ImageStore::forgetSizes()
{
    m_images.clear();
    m_glows.clear();
    m_texts.clear();
}

QImage ImageStore::draw(const std::string& name, QSize size)
{
    const QString base = QDir(m_folder).filePath(QString::fromStdString(name));
    for (const char* suffix : { ".svg", ".jpg", ".png" }) {
        const QString file = base + QLatin1String(suffix);
        if (QFileInfo::exists(file)) {
            QImage image = drawSource(file, size);
            if (!image.isNull()) {
                return image;
            }
            qCWarning(lcGame).noquote() << file << "is not a picture that can be read";
            return standIn(size);
        }
    }
    qCWarning(lcGame).noquote() << "There is no picture" << base + QLatin1String(".svg");
    return standIn(size);
}

QImage ImageStore::drawSource(const QString& file, QSize size)
{
    if (!file.endsWith(QLatin1String(".svg"))) {
        auto photograph = m_photographs.find(file);
        if (photograph == m_photographs.end()) {
            photograph = m_photographs.insert(file, QImage(file));
        }
        return photograph->scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    }
    auto& renderer = m_vectors[file];
    if (!renderer) {
        renderer = std::make_unique<QSvgRenderer>(file);
    }
    if (!renderer->isValid()) {
        return {};
    }
    QImage image = blank(size);
    QPainter painter(&image);
    renderer->setAspectRatioMode(Qt::IgnoreAspectRatio);
    renderer->render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    return image;
}

} // namespace veyrand::platform::qt
