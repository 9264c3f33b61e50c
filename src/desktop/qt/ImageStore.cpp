#include "desktop/qt/ImageStore.h"

#include "desktop/qt/Dither.h"
#include "desktop/qt/Effects.h"
#include "desktop/qt/Logging.h"
#include "present/EffectTable.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace veyrand::desktop::qt {

namespace {

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

QColor toQColor(const board::Color& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
        static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

} // namespace

ImageStore::ImageStore(QString folder, const GameFont& font)
    : m_folder(std::move(folder))
    , m_font(font)
{
    // Unpacked photographs are of use only while the window is being resized, and as large as it.
    constexpr int kAfterResizing = 2000; // milliseconds
    m_photographsRest.setSingleShot(true);
    m_photographsRest.setTimerType(Qt::CoarseTimer);
    m_photographsRest.setInterval(kAfterResizing);
    QObject::connect(&m_photographsRest, &QTimer::timeout, &m_photographsRest,
        [this] { m_photographs.clear(); });
}

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
    return effect(QLatin1Char('g'), name, size, radius, glowOf);
}

const QPixmap& ImageStore::shadow(const std::string& name, QSize size, int height)
{
    return effect(QLatin1Char('s'), name, size, height, shadowOf);
}

const QPixmap& ImageStore::pressed(const std::string& name, QSize size)
{
    const int depth = std::max(1, size.height() / present::effects::kPressDepths);
    return effect(QLatin1Char('p'), name, size, depth, pressedOf);
}

const QPixmap& ImageStore::effect(QLatin1Char kind, const std::string& name, QSize size, int reach,
    QImage (*make)(const QImage& picture, int reach))
{
    const QString key = QStringLiteral("%1%2 %3x%4 %5")
                            .arg(kind)
                            .arg(QString::fromStdString(name))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(reach);
    auto found = m_effects.find(key);
    if (found == m_effects.end()) {
        const QImage picture = image(name, size).toImage();
        found = m_effects.insert(key, QPixmap::fromImage(make(picture, reach)));
    }
    return *found;
}

// The letters keep the exact size: rounded to whole pixels a long line would be some pixels too
// short or too long for the gaps in which pictures lie.
const QPixmap& ImageStore::text(const present::TextContent& text, QSizeF size)
{
    const QColor color = toQColor(text.color);
    const QString string = QString::fromStdString(text.text);
    const QString key = string + QLatin1Char('\n') + color.name(QColor::HexArgb)
        + QString::number(size.height(), 'f', 2);
    return m_texts.get(key, [&] {
        const int margin = textMargin(size);
        const QSize whole(
            static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())));
        QImage letters = blank(whole + QSize(2 * margin, 2 * margin));
        QPainter painter(&letters);
        painter.setRenderHint(QPainter::Antialiasing);
        const double em = size.height() / m_font.lineHeight();
        painter.translate(margin, margin + m_font.ascent() * em);
        painter.scale(em / GameFont::kMeasuringSize, em / GameFont::kMeasuringSize);
        QPainterPath outlines;
        outlines.addText(0.0, 0.0, m_font.font(), string);
        painter.fillPath(outlines, color);
        painter.end();
        return QPixmap::fromImage(setOff(letters, color, em));
    });
}

int ImageStore::textMargin(QSizeF size)
{
    return static_cast<int>(std::floor(static_cast<double>(present::kTextReach) * size.height()));
}

void ImageStore::forgetSizes()
{
    m_images.clear();
    m_effects.clear();
    m_texts.clear();
}

void ImageStore::setLanguageFolder(const QString& folder)
{
    if (folder != m_languageFolder) {
        m_languageFolder = folder;
        forgetSizes();
    }
}

// Empty where there is none.
QString ImageStore::fileOf(const QString& name) const
{
    for (const QString& folder : { m_languageFolder, m_folder }) {
        for (const char* suffix : { ".svg", ".jpg", ".png" }) {
            QString file = QDir(folder).filePath(name + QLatin1String(suffix));
            if (!folder.isEmpty() && QFileInfo::exists(file)) {
                return file;
            }
        }
    }
    return {};
}

QImage ImageStore::draw(const std::string& name, QSize size)
{
    const QString file = fileOf(QString::fromStdString(name));
    if (file.isEmpty()) {
        qCWarning(lcGame).noquote()
            << "There is no picture"
            << QDir(m_folder).filePath(QString::fromStdString(name) + QLatin1String(".svg"));
        return standIn(size);
    }
    QImage image = drawSource(file, size);
    if (image.isNull()) {
        qCWarning(lcGame).noquote() << file << "is not a picture that can be read";
        return standIn(size);
    }
    return image;
}

// The photograph at the smallest of the sizes, each half the one before, that still has every pixel
// of the size asked for. The decoder skips what it need not unpack, and a window that is being
// resized finds the photograph unpacked; the whole of it would take four times the time and the
// memory.
const QImage& ImageStore::photograph(const QString& file, QSize size)
{
    QImageReader reader(file);
    QSize unpacked = reader.size();
    while (unpacked.width() / 2 >= size.width() && unpacked.height() / 2 >= size.height()) {
        unpacked /= 2;
    }
    m_photographsRest.start();
    QImage& kept = m_photographs[file];
    if (kept.size() != unpacked) {
        reader.setScaledSize(unpacked);
        kept = reader.read();
    }
    return kept;
}

QImage ImageStore::drawSource(const QString& file, QSize size)
{
    if (!file.endsWith(QLatin1String(".svg"))) {
        return photograph(file, size)
            .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_RGB32);
    }
    auto& renderer = m_vectors[file];
    if (!renderer) {
        renderer = std::make_unique<QSvgRenderer>(file);
    }
    if (!renderer->isValid()) {
        return {};
    }
    renderer->setAspectRatioMode(Qt::IgnoreAspectRatio);
    // Only large pictures have gradients wide enough to show bands, and small ones come in numbers.
    constexpr int kLarge = 240;
    const bool large = std::min(size.width(), size.height()) >= kLarge;
    QImage image(
        size, large ? QImage::Format_RGBA64_Premultiplied : QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer->render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    painter.end();
    return large ? dithered(image) : image;
}

} // namespace veyrand::desktop::qt
