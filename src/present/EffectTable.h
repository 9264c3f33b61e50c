#pragma once

#include <array>
#include <cstdint>

// The numbers of what pictures do with light, for whoever paints the display list. Lengths are
// multiples of the radius, the height or the em they belong to; densities are shares of 255.
namespace veyrand::present::effects {

struct Stop {
    double place;
    int density;
};

// Light in glass gathers opposite to where it comes from: at the lower right of the picture, by
// shares of its width and height, as far as a share of the longer of the two.
inline constexpr double kGatheredX = 0.58;
inline constexpr double kGatheredY = 0.62;
inline constexpr double kGatheredReach = 0.62;
inline constexpr std::array kLight { Stop { 0.0, 150 }, Stop { 0.6, 95 }, Stop { 1.0, 50 } };
// How much of the halo is kept off the picture itself.
inline constexpr double kHaloOutside = 0.85;

// The light comes from the upper left, so a shadow falls to the lower right.
inline constexpr int kShadowDarkness = 140;
inline constexpr double kFallRight = 0.4;
inline constexpr double kFallDown = 0.8;

// A button that is pushed in, by one part of so many of its height.
inline constexpr int kPressDepths = 24;
inline constexpr int kPressShade = 26;
inline constexpr double kEdgeShadow = 0.6;

// What sets letters off from any ground: a shadow under light ones, a pale halo round dark ones.
struct SetOff {
    std::uint32_t color; // 0xRRGGBB
    double radius; // of the blur
    double right; // the fall
    double down;
    double gain; // of the density, so that thin strokes throw as good a shadow as thick ones
    double opacity;
};
inline constexpr SetOff kUnderLightLetters { 0x041218, 0.034, 0.010, 0.020, 1.5, 0.55 };
inline constexpr SetOff kRoundDarkLetters { 0xD9FAF6, 0.050, 0.0, 0.0, 2.4, 0.72 };

} // namespace veyrand::present::effects
