#include "look/Colour.h"

#include <algorithm>
#include <cmath>

namespace veyrand::look {

namespace {

using Matrix = std::array<std::array<double, 3>, 3>;

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

Light times(const Matrix& matrix, const Light& light)
{
    Light result {};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            result.at(row) += matrix.at(row).at(column) * light.at(column);
        }
    }
    return result;
}

constexpr Matrix kProtanopia { { { 0.152286, 1.052583, -0.204868 },
    { 0.114503, 0.786281, 0.099216 }, { -0.003882, -0.048116, 1.051998 } } };
constexpr Matrix kDeuteranopia { { { 0.367322, 0.860646, -0.227968 },
    { 0.280085, 0.672501, 0.047413 }, { -0.011820, 0.042940, 0.968881 } } };
constexpr Matrix kTritanopia { { { 1.255528, -0.076749, -0.178779 },
    { -0.078411, 0.930809, 0.147602 }, { 0.004733, 0.691367, 0.303900 } } };
constexpr Matrix kToXyz { { { 0.4124, 0.3576, 0.1805 }, { 0.2126, 0.7152, 0.0722 },
    { 0.0193, 0.1192, 0.9505 } } };
constexpr Light kWhite { 0.95047, 1.0, 1.08883 };

} // namespace

Light lightOf(QRgb pixel)
{
    return { linear(qRed(pixel)), linear(qGreen(pixel)), linear(qBlue(pixel)) };
}

double luminance(const Light& light)
{
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

double contrast(double luminanceA, double luminanceB)
{
    constexpr double kFlare = 0.05;
    return (std::max(luminanceA, luminanceB) + kFlare)
        / (std::min(luminanceA, luminanceB) + kFlare);
}

Light seen(const Light& light, Sight sight)
{
    if (sight == Sight::Normal) {
        return light;
    }
    Light result = times(sight == Sight::Protanopia ? kProtanopia
            : sight == Sight::Deuteranopia          ? kDeuteranopia
                                                    : kTritanopia,
        light);
    for (double& channel : result) {
        channel = std::clamp(channel, 0.0, 1.0);
    }
    return result;
}

Lab labOf(const Light& light)
{
    Light xyz = times(kToXyz, light);
    for (std::size_t i = 0; i < xyz.size(); ++i) {
        const double share = xyz.at(i) / kWhite.at(i);
        xyz.at(i) = share > 0.008856 ? std::cbrt(share) : 7.787 * share + 16.0 / 116.0;
    }
    return { 116.0 * xyz[1] - 16.0, 500.0 * (xyz[0] - xyz[1]), 200.0 * (xyz[1] - xyz[2]) };
}

double difference(const Lab& one, const Lab& other)
{
    return std::hypot(one.lightness - other.lightness, one.a - other.a, one.b - other.b);
}

} // namespace veyrand::look
