#pragma once

#include "platform/Geometry.h"

#include <optional>
#include <string>
#include <vector>

namespace veyrand::input {

// Hears of the pointer crossing an area's edge. The key names the element the area was made for.
class HitAreaListener {
public:
    HitAreaListener() = default;
    HitAreaListener(const HitAreaListener&) = delete;
    HitAreaListener& operator=(const HitAreaListener&) = delete;
    virtual ~HitAreaListener() = default;

    virtual void mouseEntered(const std::string& key) = 0;
    virtual void mouseExited(const std::string& key) = 0;
};

// A set of rectangles over elements, fixed when they are made. An area made under a resting pointer
// counts as entered already: the first it says is that the pointer left. Removing areas says
// nothing.
class HitAreas {
public:
    // The rectangle is in the view's points; the pointer's position is where it rests now, if in
    // the view.
    void install(
        std::string key, const platform::RectF& rect, std::optional<platform::Point> pointer);
    void removeAll() { m_areas.clear(); }
    [[nodiscard]] std::vector<std::string> keys() const;

    // The areas under the pointer count as entered from now on, without a word.
    void takeAsEntered(std::optional<platform::Point> pointer);

    // Tells the listener which areas the pointer left and entered, in that order.
    void pointerMoved(std::optional<platform::Point> pointer, HitAreaListener& listener);

private:
    struct Area {
        std::string key;
        platform::RectF rect;
        bool entered;
    };

    std::vector<Area> m_areas;
};

} // namespace veyrand::input
