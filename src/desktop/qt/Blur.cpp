#include "desktop/qt/Blur.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace veyrand::desktop::qt {

namespace {

constexpr int kPasses = 3;
constexpr std::size_t kChannels = 4;

using Sums = std::array<int, kChannels>;

Sums channels(QRgb pixel)
{
    return { qRed(pixel), qGreen(pixel), qBlue(pixel), qAlpha(pixel) };
}

// One row or column: every pixel becomes the mean of its neighbours, transparent past both ends.
void blurLine(std::vector<QRgb>& line, std::vector<QRgb>& result, int reach)
{
    const int length = static_cast<int>(line.size());
    const int width = 2 * reach + 1;
    Sums sums {};
    const auto add = [&](int at, int sign) {
        if (at < 0 || at >= length) {
            return;
        }
        const Sums pixel = channels(line[static_cast<std::size_t>(at)]);
        for (std::size_t channel = 0; channel < kChannels; ++channel) {
            sums.at(channel) += sign * pixel.at(channel);
        }
    };
    for (int at = 0; at < reach; ++at) {
        add(at, 1);
    }
    const int half = width / 2;
    for (int at = 0; at < length; ++at) {
        add(at + reach, 1);
        add(at - reach - 1, -1);
        result[static_cast<std::size_t>(at)] = qRgba((sums[0] + half) / width,
            (sums[1] + half) / width, (sums[2] + half) / width, (sums[3] + half) / width);
    }
    line.swap(result);
}

void blurLine(std::vector<QRgb>& line, std::vector<QRgb>& spare, int radius, int passes)
{
    for (int pass = 0; pass < passes; ++pass) {
        // The passes' reaches add up to no more than the blur may spread.
        const int reach = (kBlurReach * radius + pass) / passes;
        if (reach > 0) {
            blurLine(line, spare, reach);
        }
    }
}

} // namespace

QImage blurred(const QImage& image, int radius)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const int width = result.width();
    const int height = result.height();
    std::vector<QRgb> line(static_cast<std::size_t>(width));
    std::vector<QRgb> spare(line.size());
    for (int y = 0; y < height; ++y) {
        auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
        std::copy_n(row, width, line.begin());
        blurLine(line, spare, radius, kPasses);
        std::copy(line.begin(), line.end(), row);
    }
    line.resize(static_cast<std::size_t>(height));
    spare.resize(line.size());
    const auto stride = static_cast<std::size_t>(result.bytesPerLine()) / sizeof(QRgb);
    auto* const pixels = reinterpret_cast<QRgb*>(result.bits());
    for (int x = 0; x < width; ++x) {
        for (std::size_t y = 0; y < line.size(); ++y) {
            line[y] = pixels[y * stride + static_cast<std::size_t>(x)];
        }
        blurLine(line, spare, radius, kPasses);
        for (std::size_t y = 0; y < line.size(); ++y) {
            pixels[y * stride + static_cast<std::size_t>(x)] = line[y];
        }
    }
    return result;
}

} // namespace veyrand::desktop::qt
