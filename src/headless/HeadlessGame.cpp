#include "headless/HeadlessGame.h"

#include "board/Times.h"
#include "headless/SmallSteps.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"

#include <utility>

namespace veyrand::headless {

using platform::Point;

namespace {

class NoResources final : public platform::Resources {
public:
    [[nodiscard]] std::optional<std::string> dataNamed(
        std::string_view /*name*/, std::string_view /*type*/) const override
    {
        return std::nullopt;
    }
};

const platform::Resources& noResources()
{
    static const NoResources kNone;
    return kNone;
}

} // namespace

platform::Preferences& prepared(
    platform::Preferences& preferences, const platform::Preferences::Contents& contents)
{
    preferences.registerDefaults(progress::registeredDefaults());
    for (const auto& [key, value] : contents.values) {
        preferences.setValue(key, value);
    }
    for (const auto& [key, record] : contents.records) {
        preferences.setRecord(key, record);
    }
    return preferences;
}

HeadlessGame::HeadlessGame(const Options& options)
    : m_preferences(
        prepared(options.store != nullptr ? *options.store : m_memory, options.preferences))
    , m_random(options.seed)
    , m_resources(options.resources != nullptr ? *options.resources : noResources())
    , m_calendar(options.today)
    , m_alerts(options.alerts != nullptr ? *options.alerts : m_ownAlerts)
    , m_menu(m_preferences)
    , m_currentGame(m_preferences, m_random, m_resources)
    , m_gameData(options.screen)
    , m_game({ .runLoop = m_runLoop,
                 .preferences = m_preferences,
                 .resources = m_resources,
                 .sounds = m_sounds,
                 .pointer = m_pointer,
                 .textMetrics = options.textMetrics != nullptr ? *options.textMetrics : m_letters,
                 .log = m_log,
                 .quit = m_quit,
                 .overlay = m_overlay,
                 .window = m_window,
                 .alerts = m_alerts,
                 .offerInstallation = options.offerInstallation,
                 .journal = options.journal,
                 .motionWish = options.motionWish,
                 .calendar = &m_calendar,
                 .clipboard = &m_clipboard,
                 .exchange = &m_exchange },
          m_currentGame, m_gameData)
    , m_touch(m_game.view(), m_game.layers(), m_pointer)
    , m_resizer([this](platform::Size size) { resize(size); })
    , m_viewSize(options.view)
{
    m_menu.connectTo(controller());
    controller().updateContentViewFrame(
        m_viewSize); // a view has its size before it is launched into
    m_window.setModeListener([this, screen = options.screen, own = options.view] {
        m_resizer(m_window.isZoomed() || m_window.isInFullScreenMode() ? screen : own);
    });
}

void HeadlessGame::launch()
{
    controller().awake(m_viewSize);
}

void HeadlessGame::play(const progress::CurrentGame::Puzzle& puzzle)
{
    m_currentGame.loadPlayer(progress::currentPlayer(m_preferences), puzzle.mode);
    m_currentGame.placePuzzle(puzzle);
    controller().flow().layOutPuzzle();
    controller().kept().begin();
}

void HeadlessGame::move(Point place)
{
    if (!m_held) {
        moveTo(place);
        m_game.view().mouseMoved();
        return;
    }
    for (const Point step : smallSteps(m_place, place)) {
        m_game.view().mouseDragged(moveTo(step));
    }
}

void HeadlessGame::press(Point place, Modifier modifier)
{
    move(place);
    m_modifier = modifier;
    m_held = true;
    m_game.view().mouseDown(moveTo(place));
}

void HeadlessGame::release(Point place)
{
    move(place);
    m_held = false;
    m_game.view().mouseUp(moveTo(place));
    m_modifier = Modifier::None;
}

void HeadlessGame::click(Point place)
{
    press(place);
    release(place);
}

void HeadlessGame::touch(Point place)
{
    m_touch.began(inView(place));
    m_touch.ended(inView(place));
}

void HeadlessGame::touchDrag(Point from, Point to)
{
    m_touch.began(inView(from));
    for (const Point step : smallSteps(from, to)) {
        m_touch.moved(inView(step));
    }
    m_touch.ended(inView(to));
}

void HeadlessGame::longPress(Point place)
{
    m_touch.began(inView(place));
    wait(board::times::kLongPress);
    m_touch.ended(inView(place));
}

void HeadlessGame::rightClick(Point place)
{
    move(place);
    m_game.view().rightMouseDown(moveTo(place));
}

void HeadlessGame::key(std::string_view keys)
{
    if (!m_menu.triggerKeys(keys)) {
        controller().key(keys);
    }
}

void HeadlessGame::listen()
{
    controller().speaker().setListener(
        [this](const std::string& sentence) { m_announced.push_back(sentence); });
}

std::vector<std::string> HeadlessGame::takeAnnouncements()
{
    controller().speaker().flush();
    return std::exchange(m_announced, {});
}

void HeadlessGame::leave()
{
    m_pointer.setPosition(std::nullopt);
    m_game.view().pointerLeft();
}

void HeadlessGame::resize(platform::Size size)
{
    const double taller = size.height - m_viewSize.height;
    m_viewSize = size;
    if (const auto at = m_pointer.position()) {
        // The view's upper left corner stays, and the pointer on the desktop.
        m_pointer.setPosition(Point { .x = at->x, .y = at->y + taller });
    }
    controller().updateContentViewFrame(size);
    controller().windowDidResize();
}

std::optional<Point> HeadlessGame::centreOf(const std::string& key)
{
    const auto record = m_gameData.gameObjects().objectForKey(key);
    return record ? std::optional(Point { .x = record->x(), .y = record->y() }) : std::nullopt;
}

Point HeadlessGame::inView(Point place)
{
    const platform::RectF area = m_game.layers().backgroundLayer().rectInRoot();
    const auto scale = static_cast<double>(area.height);
    return { .x = static_cast<double>(area.x) + place.x * scale,
        .y = static_cast<double>(area.y) + place.y * scale };
}

input::MouseEvent HeadlessGame::moveTo(Point place)
{
    m_place = place;
    const Point location = inView(place);
    m_pointer.setPosition(location);
    return { .location = location, .hasModifier = m_modifier == Modifier::Held };
}

} // namespace veyrand::headless
