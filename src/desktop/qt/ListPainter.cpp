#include "desktop/qt/ListPainter.h"

#include <cmath>

namespace veyrand::desktop::qt {

namespace {

QRectF toPixels(const platform::RectF& rect, const ListPainter::Surface& surface)
{
    const double ratio = surface.pixelRatio;
    const double top
        = surface.height - static_cast<double>(rect.y) - static_cast<double>(rect.height);
    return { static_cast<double>(rect.x) * ratio, top * ratio,
        static_cast<double>(rect.width) * ratio, static_cast<double>(rect.height) * ratio };
}

QSize wholeSize(const QRectF& pixels)
{
    return { std::max(1, static_cast<int>(std::lround(pixels.width()))),
        std::max(1, static_cast<int>(std::lround(pixels.height()))) };
}

int wholeLength(float points, const ListPainter::Surface& surface)
{
    return static_cast<int>(std::lround(static_cast<double>(points) * surface.pixelRatio));
}

// The top left corner that keeps a picture of the whole size centred where it belongs. Half-way
// between two pixels it takes the lower, whatever the last digits of a long sum say: the same board
// must not look different in two windows that only got to their size in different ways.
QPoint wholeCorner(const QRectF& pixels, QSize size)
{
    constexpr double kHalfWay = 0.001;
    const QPointF centre = pixels.center();
    return { static_cast<int>(std::lround(centre.x() - size.width() / 2.0 - kHalfWay)),
        static_cast<int>(std::lround(centre.y() - size.height() / 2.0 - kHalfWay)) };
}

// Paints with the sides changed about the middle of where it is painted.
template <class Paint>
void paintMirrored(
    QPainter& painter, present::Mirror mirror, const QRectF& pixels, const Paint& paint)
{
    if (mirror == present::Mirror::None) {
        paint();
        return;
    }
    const QSize size = wholeSize(pixels);
    const QPointF middle
        = QPointF(wholeCorner(pixels, size)) + QPointF(size.width(), size.height()) / 2.0;
    const bool across = mirror == present::Mirror::LeftAndRight;
    painter.save();
    painter.translate(middle);
    painter.scale(across ? -1.0 : 1.0, across ? 1.0 : -1.0);
    painter.translate(-middle);
    paint();
    painter.restore();
}

// Clipping to many parts costs more than painting what lies between them.
QRegion simplified(const QRegion& region)
{
    constexpr int kMostParts = 32;
    return region.rectCount() > kMostParts ? QRegion(region.boundingRect()) : region;
}

} // namespace

void ListPainter::paint(QPainter& painter, const present::DisplayList& list, const Surface& surface)
{
    // What begins to fade in changes no pixel yet, and its picture need not be drawn for that: the
    // first frame of the game waits for none but the wood.
    constexpr float kHalfAStep = 0.5F / 255.0F;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const present::DisplayItem& item : list) {
        if (item.opacity > kHalfAStep) {
            paintItem(painter, item, surface);
        }
    }
    painter.setOpacity(1.0);
}

void ListPainter::paintItem(
    QPainter& painter, const present::DisplayItem& item, const Surface& surface)
{
    const QRectF pixels = toPixels(item.rect, surface);
    // Chips that fall off the board must not show in the margins beside it.
    const QRectF clip = toPixels(item.clip, surface);
    const bool clipped = !clip.contains(pixels);
    if (clipped) {
        painter.save();
        painter.setClipRect(clip.toAlignedRect(), Qt::IntersectClip);
    }
    painter.setOpacity(static_cast<double>(item.opacity));
    if (const auto* solid = std::get_if<present::SolidContent>(&item.content)) {
        painter.fillRect(pixels.toAlignedRect(),
            QColor::fromRgbF(static_cast<float>(solid->color.red),
                static_cast<float>(solid->color.green), static_cast<float>(solid->color.blue),
                static_cast<float>(solid->color.alpha)));
    } else if (const auto* image = std::get_if<present::ImageContent>(&item.content)) {
        paintMirrored(painter, image->mirror, pixels,
            [&] { paintImage(painter, image->name, pixels, item, surface); });
    } else if (const auto* text = std::get_if<present::TextContent>(&item.content)) {
        const int margin = ImageStore::textMargin(pixels.size());
        painter.drawPixmap(pixels.topLeft().toPoint() - QPoint(margin, margin),
            m_images.text(*text, pixels.size()));
    }
    if (clipped) {
        painter.restore();
    }
}

void ListPainter::paintImage(QPainter& painter, const std::string& name, const QRectF& pixels,
    const present::DisplayItem& item, const Surface& surface)
{
    const QSize size = wholeSize(pixels);
    const QPoint corner = wholeCorner(pixels, size);
    const bool moving = item.motion == present::Motion::Moving;
    if (const int height = wholeLength(item.lift, surface); height > 0) {
        painter.drawPixmap(
            corner - QPoint(2 * height, 2 * height), m_images.shadow(name, size, height));
    }
    const QPixmap& picture = item.pressed ? m_images.pressed(name, size)
        : moving                          ? m_images.imageAtLeast(name, size)
                                          : m_images.image(name, size);
    if (picture.size() == size) {
        painter.drawPixmap(corner, picture);
    } else {
        painter.drawPixmap(pixels, picture, QRectF(picture.rect()));
    }
    if (const int radius = wholeLength(item.glow, surface); radius > 0) {
        const QPainter::CompositionMode usual = painter.compositionMode();
        painter.setCompositionMode(QPainter::CompositionMode_Plus);
        painter.drawPixmap(
            corner - QPoint(2 * radius, 2 * radius), m_images.glow(name, size, radius));
        painter.setCompositionMode(usual);
    }
}

QRegion ListPainter::damagedPixels(
    const present::DisplayList& before, const present::DisplayList& after, const Surface& surface)
{
    QRegion region;
    for (const platform::RectF& rect : present::damageBetween(before, after)) {
        // Rounded to whole pixels a corner is off by half a one, a size by half a one, and twice a
        // height or a radius by a whole one.
        constexpr int kMore = 2;
        region += toPixels(rect, surface).toAlignedRect().adjusted(-kMore, -kMore, kMore, kMore);
    }
    return simplified(region);
}

} // namespace veyrand::desktop::qt
