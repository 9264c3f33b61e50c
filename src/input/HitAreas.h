#pragma once

#include "platform/Geometry.h"

#include <optional>
#include <string>
#include <vector>

namespace veyrand::input {

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

    // Which areas the pointer has left, and then entered, by the keys of their elements.
    struct Crossed {
        std::vector<std::string> left;
        std::vector<std::string> entered;
    };
    [[nodiscard]] Crossed pointerMoved(std::optional<platform::Point> pointer);

private:
    struct Area {
        std::string key;
        platform::RectF rect;
        bool entered;
    };

    std::vector<Area> m_areas;
};

} // namespace veyrand::input
