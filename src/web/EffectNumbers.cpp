#include "web/EffectNumbers.h"

#include "language/Json.h"
#include "present/DisplayList.h"
#include "present/EffectTable.h"

#include <array>
#include <cstdio>

namespace veyrand::web {

namespace {

using language::Json;
namespace effects = present::effects;

constexpr double kDensest = 255.0;

Json asJson(const effects::SetOff& style)
{
    constexpr std::size_t kDigits = 8; // a sign, six of them, and the end
    std::array<char, kDigits> color {};
    std::snprintf(color.data(), color.size(), "#%06X", static_cast<unsigned>(style.color));
    return { { "color", color.data() }, { "radius", style.radius }, { "right", style.right },
        { "down", style.down }, { "gain", style.gain }, { "opacity", style.opacity } };
}

} // namespace

std::string effectNumbers()
{
    Json light = Json::array();
    for (const effects::Stop& stop : effects::kLight) {
        light.push_back(Json::array({ stop.place, stop.density / kDensest }));
    }
    return Json {
        { "gatheredX", effects::kGatheredX }, { "gatheredY", effects::kGatheredY },
        { "gatheredReach", effects::kGatheredReach }, { "light", light },
        { "haloOutside", effects::kHaloOutside },
        { "darkness", effects::kShadowDarkness / kDensest }, { "fallRight", effects::kFallRight },
        { "fallDown", effects::kFallDown }, { "pressDepths", effects::kPressDepths },
        { "shade", effects::kPressShade / kDensest }, { "edgeShadow", effects::kEdgeShadow },
        { "textReach", present::kTextReach },
        { "lightLetters", asJson(effects::kUnderLightLetters) },
        { "darkLetters", asJson(effects::kRoundDarkLetters) }
    }.dump();
}

} // namespace veyrand::web
