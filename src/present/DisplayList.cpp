#include "present/DisplayList.h"

#include <algorithm>
#include <unordered_map>

namespace veyrand::present {

namespace {

using platform::RectF;

RectF intersection(const RectF& a, const RectF& b)
{
    const float left = std::max(a.x, b.x);
    const float bottom = std::max(a.y, b.y);
    return { .x = left,
        .y = bottom,
        .width = std::min(a.x + a.width, b.x + b.width) - left,
        .height = std::min(a.y + a.height, b.y + b.height) - bottom };
}

// Whoever paints clips only what leaves its clip; what is near enough to its edge may go either
// way.
bool isWithin(const RectF& clip, const RectF& rect)
{
    constexpr float kNear = 0.01F; // points
    return rect.x > clip.x - kNear && rect.y > clip.y - kNear
        && rect.x + rect.width < clip.x + clip.width + kNear
        && rect.y + rect.height < clip.y + clip.height + kNear;
}

// Everything the item may touch: what surrounds it reaches past its rectangle.
RectF extent(const DisplayItem& item)
{
    const bool isText = std::holds_alternative<TextContent>(item.content);
    const float reach = std::max({ kGlowReach * item.glow, kShadowReach * item.lift,
        isText ? kTextReach * item.rect.height : 0.0F });
    const RectF whole { .x = item.rect.x - reach,
        .y = item.rect.y - reach,
        .width = item.rect.width + 2.0F * reach,
        .height = item.rect.height + 2.0F * reach };
    return isWithin(item.clip, item.rect) ? whole : intersection(whole, item.clip);
}

void damage(const DisplayItem& item, std::vector<RectF>& rects)
{
    const RectF rect = extent(item);
    if (item.opacity > 0.0F && !rect.isEmpty()) {
        rects.push_back(rect);
    }
}

} // namespace

std::vector<RectF> damageBetween(const DisplayList& before, const DisplayList& after)
{
    std::unordered_map<std::uint64_t, std::size_t> places;
    places.reserve(before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        places.emplace(before[i].layer, i);
    }

    std::vector<RectF> rects;
    std::size_t furthest = 0;
    for (const DisplayItem& item : after) {
        const auto place = places.find(item.layer);
        if (place == places.end()) {
            damage(item, rects);
            continue;
        }
        const DisplayItem& old = before[place->second];
        // An item that stood further forward than one painted before it now has changed places with
        // it.
        const bool movedBack = place->second < furthest;
        furthest = std::max(furthest, place->second);
        if (movedBack || !(old == item)) {
            damage(old, rects);
            damage(item, rects);
        }
        places.erase(place);
    }
    for (const auto& [layer, index] : places) {
        damage(before[index], rects);
    }
    return rects;
}

} // namespace veyrand::present
