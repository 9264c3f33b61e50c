#include "web/WebView.h"

#include "input/MouseTrail.h"
#include "web/Host.h"

#include <string>

namespace veyrand::web {

namespace {

// What an item shows, in the page's words.
enum class Kind { Solid, Image, Text };

} // namespace

WebView::WebView(controller::Game& game, platform::Pointer& pointer)
    : m_game(game)
    , m_pointer(pointer)
    , m_touch(game.view(), game.layers(), pointer)
{
    m_game.layers().scene().setDisplayListener([this] { askForFrame(); });
}

WebView::~WebView()
{
    m_game.layers().scene().setDisplayListener({});
}

// Changes come in bursts; the first asks for a frame and the rest find it asked for.
void WebView::askForFrame()
{
    if (!m_frameIsDue) {
        m_frameIsDue = true;
        veyrand_host_call_frame();
    }
}

void WebView::resize(platform::Size size)
{
    if (const auto at = m_pointer.position()) {
        // The canvas's upper left corner stays, and the pointer on the screen.
        m_pointer.setPosition(
            platform::Point { .x = at->x, .y = at->y + size.height - m_size.height });
    }
    m_size = size;
    m_game.controller().updateContentViewFrame(size);
    m_game.controller().windowDidResize();
    forgetPainted();
}

void WebView::forgetPainted()
{
    m_paintsAll = true;
    askForFrame();
}

void WebView::showFrame()
{
    m_frameIsDue = false;
    showCursor();
    present::DisplayList next = m_game.layers().displayList();
    m_damage.clear();
    if (m_paintsAll) {
        m_damage = { 0.0, 0.0, m_size.width, m_size.height };
    } else {
        for (const platform::RectF& rect : present::damageBetween(m_shown, next)) {
            for (const float length : { rect.x, rect.y, rect.width, rect.height }) {
                m_damage.push_back(static_cast<double>(length));
            }
        }
    }
    m_paintsAll = false;
    m_shown = std::move(next);
    if (!m_damage.empty()) {
        m_items.clear();
        for (const present::DisplayItem& item : m_shown) {
            pack(item);
        }
        constexpr std::size_t kRect = 4;
        veyrand_host_paint(m_items.data(), static_cast<int>(m_shown.size()), m_damage.data(),
            static_cast<int>(m_damage.size() / kRect));
    }
    if (m_shownFrame) {
        m_shownFrame();
    }
    if (m_game.layers().scene().isAnimating()) {
        askForFrame();
    }
}

// In the order in which painter.mjs unpacks it.
void WebView::pack(const present::DisplayItem& item)
{
    Kind kind = Kind::Solid;
    double name = 0.0;
    auto mirror = present::Mirror::None;
    board::Color color;
    if (const auto* solid = std::get_if<present::SolidContent>(&item.content)) {
        color = solid->color;
    } else if (const auto* image = std::get_if<present::ImageContent>(&item.content)) {
        kind = Kind::Image;
        name = numberOf(image->name);
        mirror = image->mirror;
    } else if (const auto* text = std::get_if<present::TextContent>(&item.content)) {
        kind = Kind::Text;
        name = numberOf(text->text);
        color = text->color;
    }
    m_items.push_back(static_cast<double>(kind));
    m_items.push_back(name);
    for (const float number :
        { item.rect.x, item.rect.y, item.rect.width, item.rect.height, item.clip.x, item.clip.y,
            item.clip.width, item.clip.height, item.opacity, item.glow, item.lift }) {
        m_items.push_back(static_cast<double>(number));
    }
    m_items.push_back(item.pressed ? 1.0 : 0.0);
    m_items.push_back(item.motion == present::Motion::Moving ? 1.0 : 0.0);
    for (const double channel : { color.red, color.green, color.blue, color.alpha }) {
        m_items.push_back(channel);
    }
    m_items.push_back(static_cast<double>(mirror));
}

double WebView::numberOf(const std::string& text)
{
    // A score that goes on rising must not fill the memory: the page hears of new names anew.
    constexpr std::size_t kMostNames = 4000;
    if (m_numbers.size() >= kMostNames) {
        m_numbers.clear();
    }
    const auto [entry, isNew] = m_numbers.try_emplace(text, static_cast<double>(m_numbers.size()));
    if (isNew) {
        veyrand_host_name(static_cast<int>(entry->second), text.c_str());
    }
    return entry->second;
}

void WebView::showCursor()
{
    const input::Cursor cursor = m_game.controller().answers().cursor();
    if (cursor != m_cursor) {
        m_cursor = cursor;
        veyrand_host_cursor(std::string(input::nameOf(cursor)).c_str());
    }
}

// The game counts upwards from the lower left.
platform::Point WebView::gamePoint(platform::Point place) const
{
    return { .x = place.x, .y = m_size.height - place.y };
}

input::MouseEvent WebView::track(platform::Point place, bool hasModifier)
{
    const platform::Point location = gamePoint(place);
    m_pointer.setPosition(location);
    return { .location = location, .hasModifier = hasModifier };
}

void WebView::press(platform::Point place, bool hasModifier)
{
    const input::MouseEvent event = track(place, hasModifier);
    m_dragged = event.location;
    m_game.view().mouseDown(event);
    showCursor();
}

void WebView::move(platform::Point place, bool isHeld, bool hasModifier)
{
    const input::MouseEvent event = track(place, hasModifier);
    if (isHeld) {
        followTo(event);
    } else {
        m_game.view().mouseMoved();
    }
    showCursor();
}

// The whole way to where the event saw the pointer.
void WebView::followTo(const input::MouseEvent& event)
{
    const auto height = static_cast<double>(m_game.layers().backgroundLayer().rectInRoot().height);
    for (const platform::Point& place : input::trail(
             m_dragged.value_or(event.location), event.location, input::kLargestStep * height)) {
        m_pointer.setPosition(place);
        m_game.view().mouseDragged({ .location = place, .hasModifier = event.hasModifier });
    }
    m_dragged = event.location;
}

void WebView::release(platform::Point place, bool hasModifier)
{
    const input::MouseEvent event = track(place, hasModifier);
    // A flick may end without a word of where it went.
    if (m_dragged && !(*m_dragged == event.location)) {
        followTo(event);
    }
    m_dragged.reset();
    m_game.view().mouseUp(event);
    showCursor();
}

void WebView::rightPress(platform::Point place, bool hasModifier)
{
    m_game.view().rightMouseDown(track(place, hasModifier));
    showCursor();
}

void WebView::leave()
{
    m_pointer.setPosition(std::nullopt);
    m_game.view().pointerLeft();
}

void WebView::cancelGesture()
{
    m_dragged.reset();
    m_game.view().cancelGesture();
}

} // namespace veyrand::web
