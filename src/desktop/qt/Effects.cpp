#include "desktop/qt/Effects.h"

#include "desktop/qt/Blur.h"
#include "present/EffectTable.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace veyrand::desktop::qt {

namespace effects = present::effects;

namespace {

QImage withMargin(const QImage& picture, int margin)
{
    QImage image = blank(picture.size() + QSize(2 * margin, 2 * margin));
    QPainter(&image).drawImage(margin, margin, picture);
    return image;
}

// The image's shape in one colour.
QImage inColor(QImage image, const QColor& color)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

// Makes the faint parts of a soft shape denser, so that thin strokes throw as good a shadow as
// thick ones. The image has one colour, so every channel grows alike.
QImage denser(QImage image, double gain)
{
    for (int y = 0; y < image.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(row[x]);
            if (alpha == 0) {
                continue;
            }
            const double factor = std::min(gain, 255.0 / alpha);
            const auto grown
                = [factor](int channel) { return static_cast<int>(std::floor(channel * factor)); };
            row[x] = qRgba(
                grown(qRed(row[x])), grown(qGreen(row[x])), grown(qBlue(row[x])), grown(alpha));
        }
    }
    return image;
}

const effects::SetOff& setOffFor(const QColor& color)
{
    constexpr float kRed = 0.2126F;
    constexpr float kGreen = 0.7152F;
    constexpr float kBlue = 0.0722F;
    const float lightness = kRed * color.redF() + kGreen * color.greenF() + kBlue * color.blueF();
    return lightness > 0.5F ? effects::kUnderLightLetters : effects::kRoundDarkLetters;
}

} // namespace

QImage blank(QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage glowOf(const QImage& picture, int radius)
{
    const int margin = kBlurReach * radius;
    const QImage body = withMargin(picture, margin);

    QImage inner = body;
    {
        const QRectF rect(QPointF(margin, margin), QSizeF(picture.size()));
        const QPointF gathered = rect.topLeft()
            + QPointF(rect.width() * effects::kGatheredX, rect.height() * effects::kGatheredY);
        QRadialGradient light(
            gathered, std::max(rect.width(), rect.height()) * effects::kGatheredReach);
        for (const effects::Stop& stop : effects::kLight) {
            light.setColorAt(stop.place, QColor(0, 0, 0, stop.density));
        }
        QPainter painter(&inner);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(inner.rect(), light);
    }

    QImage glow = blurred(body, radius);
    {
        QPainter painter(&glow);
        // A halo is seen round the picture; on it there is the light within.
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        painter.setOpacity(effects::kHaloOutside);
        painter.drawImage(0, 0, body);
        painter.setOpacity(1.0);
        painter.setCompositionMode(QPainter::CompositionMode_Plus);
        painter.drawImage(0, 0, inner);
    }
    return glow;
}

QImage shadowOf(const QImage& picture, int height)
{
    const QColor darkness(0, 0, 0, effects::kShadowDarkness);
    const QPointF fall(
        std::round(effects::kFallRight * height), std::round(effects::kFallDown * height));
    const QImage body = withMargin(picture, 2 * height);
    const QImage soft = blurred(inColor(body, darkness), std::max(1, height / 2));
    QImage shadow = blank(body.size());
    QPainter painter(&shadow);
    painter.drawImage(fall, soft);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawImage(0, 0, body);
    return shadow;
}

QImage pressedOf(const QImage& picture, int depth)
{
    const QColor shade(0, 0, 0, 26);
    const int margin = kBlurReach * depth;
    QImage board(
        picture.size() + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    board.fill(Qt::black);
    {
        QPainter painter(&board);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        painter.drawImage(margin, margin, picture);
    }
    QImage pressed = picture;
    QPainter painter(&pressed);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(pressed.rect(), shade);
    painter.setOpacity(effects::kEdgeShadow);
    painter.drawImage(depth - margin, depth - margin, blurred(board, depth));
    return pressed;
}

QImage setOff(const QImage& letters, const QColor& color, double em)
{
    const effects::SetOff& style = setOffFor(color);
    const int radius = std::max(1, static_cast<int>(std::lround(style.radius * em)));
    const QImage ground
        = denser(blurred(inColor(letters, QColor::fromRgb(style.color)), radius), style.gain);
    QImage result = blank(letters.size());
    QPainter painter(&result);
    painter.setOpacity(style.opacity * color.alphaF());
    painter.drawImage(QPointF(std::round(style.right * em), std::round(style.down * em)), ground);
    painter.setOpacity(1.0);
    painter.drawImage(0, 0, letters);
    return result;
}

} // namespace veyrand::desktop::qt
