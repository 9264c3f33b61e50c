#include "input/HitAreas.h"

#include <utility>

namespace veyrand::input {

namespace {

bool contains(const platform::RectF& rect, std::optional<platform::Point> pointer)
{
    return pointer
        && rect.contains(
            { .x = static_cast<float>(pointer->x), .y = static_cast<float>(pointer->y) });
}

} // namespace

void HitAreas::install(
    std::string key, const platform::RectF& rect, std::optional<platform::Point> pointer)
{
    m_areas.push_back({ std::move(key), rect, contains(rect, pointer) });
}

std::vector<std::string> HitAreas::keys() const
{
    std::vector<std::string> keys;
    for (const Area& area : m_areas) {
        keys.push_back(area.key);
    }
    return keys;
}

void HitAreas::takeAsEntered(std::optional<platform::Point> pointer)
{
    for (Area& area : m_areas) {
        area.entered = area.entered || contains(area.rect, pointer);
    }
}

HitAreas::Crossed HitAreas::pointerMoved(std::optional<platform::Point> pointer)
{
    Crossed crossed;
    for (Area& area : m_areas) {
        const bool inside = contains(area.rect, pointer);
        if (inside != area.entered) {
            (inside ? crossed.entered : crossed.left).push_back(area.key);
            area.entered = inside;
        }
    }
    return crossed;
}

} // namespace veyrand::input
