#pragma once

#include <QColor>

#include <array>

namespace veyrand::look {

// A colour's channels in linear light, 0 to 1.
using Light = std::array<double, 3>;

Light lightOf(QRgb pixel);

// Relative luminance, and the contrast of two of them, from 1 to 21, as the rules for readable web
// pages define them.
double luminance(const Light& light);
double contrast(double luminanceA, double luminanceB);

enum class Sight { Normal, Protanopia, Deuteranopia, Tritanopia };

// What the eye makes of the light (Machado, Oliveira and Fernandes 2009, the complete deficiency).
Light seen(const Light& light, Sight sight);

// CIE L*a*b*, in which a distance of 1 is about the least difference that can be seen.
struct Lab {
    double lightness = 0.0;
    double a = 0.0;
    double b = 0.0;
};
Lab labOf(const Light& light);
double difference(const Lab& one, const Lab& other); // CIE76

} // namespace veyrand::look
