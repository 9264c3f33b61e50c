#include "app/WindowPlace.h"

#include <algorithm>

namespace veyrand::app {

namespace {

constexpr std::string_view kWindowKey = "Window";
constexpr std::string_view kX = "x";
constexpr std::string_view kY = "y";
constexpr std::string_view kWidth = "width";
constexpr std::string_view kHeight = "height";
constexpr std::string_view kZoomed = "zoomed";

// Larger than any desktop; what lies outside was not written by this program.
constexpr std::int64_t kFarthest = 100'000;

int area(const QRect& rect)
{
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

} // namespace

std::optional<WindowPlace> savedPlace(const platform::Preferences& preferences)
{
    const auto record = preferences.record(kWindowKey);
    if (!record) {
        return std::nullopt;
    }
    const auto number = [&record](std::string_view key) {
        const std::int64_t value = platform::integerForKey(*record, key);
        return static_cast<int>(std::clamp(value, -kFarthest, kFarthest));
    };
    const QRect geometry(number(kX), number(kY), number(kWidth), number(kHeight));
    if (geometry.isEmpty()) {
        return std::nullopt;
    }
    return WindowPlace { geometry, platform::boolForKey(*record, kZoomed) };
}

void savePlace(platform::Preferences& preferences, const WindowPlace& place)
{
    if (savedPlace(preferences) == place) {
        return; // nothing to write
    }
    const auto value = [](int number) { return std::int64_t { number }; };
    preferences.setRecord(kWindowKey,
        { { std::string(kX), value(place.geometry.x()) },
            { std::string(kY), value(place.geometry.y()) },
            { std::string(kWidth), value(place.geometry.width()) },
            { std::string(kHeight), value(place.geometry.height()) },
            { std::string(kZoomed), place.zoomed } });
}

QRect fittedTo(const QList<QRect>& screens, QRect wanted)
{
    if (screens.isEmpty()) {
        return wanted;
    }
    const QRect& screen = *std::max_element(screens.begin(), screens.end(),
        [&wanted](const QRect& a, const QRect& b) { return area(a & wanted) < area(b & wanted); });
    wanted.setSize(wanted.size().boundedTo(screen.size()));
    wanted.moveLeft(std::clamp(wanted.left(), screen.left(), screen.right() - wanted.width() + 1));
    wanted.moveTop(std::clamp(wanted.top(), screen.top(), screen.bottom() - wanted.height() + 1));
    return wanted;
}

} // namespace veyrand::app
