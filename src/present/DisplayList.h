#pragma once

#include "board/TextStyle.h"
#include "platform/Geometry.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace veyrand::present {

struct SolidContent {
    board::Color color;
    friend bool operator==(const SolidContent&, const SolidContent&) = default;
};

enum class Mirror { None, LeftAndRight, TopAndBottom };

struct ImageContent {
    std::string name;
    Mirror mirror = Mirror::None; // which sides have changed places
    friend bool operator==(const ImageContent&, const ImageContent&) = default;
};

struct TextContent {
    std::string text;
    board::Color color;
    friend bool operator==(const TextContent&, const TextContent&) = default;
};

using Content = std::variant<SolidContent, ImageContent, TextContent>;

// How far past its rectangle a text may reach with what sets it off from its ground, as a share of
// its line's height; and a bloom and a shadow, as a multiple of the radius and of the lift.
inline constexpr float kTextReach = 0.15F;
inline constexpr float kGlowReach = 2.0F;
inline constexpr float kShadowReach = 2.0F;

enum class Motion { Resting, Moving };

// One layer as it is shown at one moment. Rectangles are in the view's points, origin lower left.
struct DisplayItem {
    std::uint64_t layer = 0; // the same layer has the same number in every list
    Content content;
    platform::RectF rect; // the content fills it; a text is as high as one line
    platform::RectF clip;
    float opacity = 1.0F;
    float glow = 0.0F; // radius of the bloom, in points; 0 for none
    float lift = 0.0F; // height above what lies behind, which sees its shadow, in points
    bool pressed = false; // a button that is being held down
    Motion motion = Motion::Resting; // resting items may be snapped to whole pixels
    friend bool operator==(const DisplayItem&, const DisplayItem&) = default;
};

// Everything to be painted, back to front.
using DisplayList = std::vector<DisplayItem>;

// The parts of the view (points) in which two lists may look different: nothing outside them needs
// to be painted again.
std::vector<platform::RectF> damageBetween(const DisplayList& before, const DisplayList& after);

} // namespace veyrand::present
