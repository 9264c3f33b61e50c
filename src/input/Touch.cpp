#include "input/Touch.h"

#include "board/Buttons.h"
#include "board/ElementKey.h"
#include "input/MouseTrail.h"

#include <cmath>

namespace veyrand::input {

using platform::Point;

namespace {

constexpr double kReach = 22.0; // points
// A finger that is so many times nearer to a removal than to a chip means the removal: on a small
// screen a chip is always within reach.
constexpr double kMuchNearer = 3.0;

double distance(Point a, Point b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

bool answersTouch(const std::string& key, Overlay overlay)
{
    const board::Button* const button = board::buttonWithLitFace(key);
    if (overlay == Overlay::Question) {
        return button != nullptr && button->screen == board::ButtonScreen::Question;
    }
    return board::isChipKey(key) || board::isDeleteKey(key)
        || (button != nullptr && button->screen != board::ButtonScreen::Question);
}

} // namespace

std::optional<Point> Touch::centreOf(const std::string& key) const
{
    const present::GameObjectLayer* const layer = m_layers.layerForKey(key);
    if (layer == nullptr) {
        return std::nullopt;
    }
    const platform::RectF rect = layer->rectInRoot();
    return Point { .x = static_cast<double>(rect.x + rect.width / 2.0F),
        .y = static_cast<double>(rect.y + rect.height / 2.0F) };
}

std::string Touch::keyReached(Point place) const
{
    if (m_view.overlay() == Overlay::Page || m_view.isCovered(place)) {
        return {};
    }
    std::string best;
    double least = 0.0;
    for (const auto& layer : m_layers.backgroundLayer().sublayers()) {
        const auto* const mirror = dynamic_cast<const present::GameObjectLayer*>(layer.get());
        const std::string key = mirror != nullptr ? mirror->gameObjectKey() : std::string();
        const auto centre = answersTouch(key, m_view.overlay()) ? centreOf(key) : std::nullopt;
        if (!centre) {
            continue;
        }
        const double away = distance(place, *centre);
        const bool isUnder = m_layers.layerForKey(key)->rectInRoot().contains(
            { .x = static_cast<float>(place.x), .y = static_cast<float>(place.y) });
        if (away > kReach && !isUnder) {
            continue;
        }
        const bool outdoes
            = board::isChipKey(key) && board::isDeleteKey(best) && away <= kMuchNearer * least;
        const bool yields
            = board::isDeleteKey(key) && board::isChipKey(best) && least <= kMuchNearer * away;
        if (best.empty() || outdoes || (!yields && away < least)) {
            best = key;
            least = away;
        }
    }
    return best;
}

Point Touch::corrected(Point place) const
{
    return { .x = place.x + m_correction.x, .y = place.y + m_correction.y };
}

void Touch::began(Point place)
{
    m_isDown = true;
    m_place = place;
    const auto centre = centreOf(keyReached(place));
    m_correction = centre ? Point { .x = centre->x - place.x, .y = centre->y - place.y } : Point {};
    m_pointer.setPosition(corrected(place));
    m_view.mouseDown({ .location = corrected(place), .isTouch = true });
}

// A finger may leap, as the mouse does.
void Touch::followTo(Point place)
{
    const auto height = static_cast<double>(m_layers.backgroundLayer().rectInRoot().height);
    for (const Point step : trail(corrected(m_place), corrected(place), kLargestStep * height)) {
        m_pointer.setPosition(step);
        m_view.mouseDragged({ .location = step, .isTouch = true });
    }
    m_place = place;
}

void Touch::moved(Point place)
{
    if (m_isDown) {
        followTo(place);
    }
}

void Touch::ended(Point place)
{
    if (!m_isDown) {
        return;
    }
    m_isDown = false;
    if (place != m_place) {
        followTo(place);
    }
    Point release = corrected(place);
    if (!m_view.keyDragged().empty()) {
        const std::string under = keyReached(release);
        release = board::isChipKey(under) ? centreOf(under).value_or(release) : release;
    }
    m_pointer.setPosition(release);
    m_view.mouseUp({ .location = release, .isTouch = true });
    lift();
}

void Touch::cancelled()
{
    if (m_isDown) {
        m_isDown = false;
        m_view.cancelGesture();
        lift();
    }
}

// Nothing is under a finger that is not there.
void Touch::lift()
{
    m_pointer.setPosition(std::nullopt);
    m_view.pointerLeft();
}

} // namespace veyrand::input
