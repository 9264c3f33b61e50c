#include "desktop/qt/Dither.h"

#include <QRgba64>

#include <algorithm>
#include <cstdint>

namespace veyrand::desktop::qt {

namespace {

constexpr unsigned kStep = 257; // of 16 bits in one of 8

// Without a pattern that the eye could find; below one step.
unsigned grain(int x, int y)
{
    std::uint32_t value
        = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
    value ^= value >> 15U;
    value *= 0x2C1B3C6DU;
    value ^= value >> 12U;
    return (value & 255U) * kStep / 256U;
}

QRgb dithered(QRgba64 pixel, unsigned noise)
{
    const auto opacity = (pixel.alpha() + kStep / 2) / kStep;
    const auto channel = [noise, opacity](unsigned value) {
        return static_cast<int>(std::min((value + noise) / kStep, opacity));
    };
    return qRgba(channel(pixel.red()), channel(pixel.green()), channel(pixel.blue()),
        static_cast<int>(opacity));
}

} // namespace

QImage dithered(const QImage& fine)
{
    QImage result(fine.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < fine.height(); ++y) {
        const auto* const from = reinterpret_cast<const QRgba64*>(fine.constScanLine(y));
        auto* const to = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < fine.width(); ++x) {
            to[x] = dithered(from[x], grain(x, y));
        }
    }
    return result;
}

} // namespace veyrand::desktop::qt
