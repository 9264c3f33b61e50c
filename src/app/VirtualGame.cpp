#include "app/VirtualGame.h"

#include "app/InstallOffer.h"
#include "app/MenuActions.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>

#include <cmath>

namespace veyrand::app {

using platform::Point;

namespace {

constexpr double kLargestStep = 0.02; // game heights

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

} // namespace

VirtualGame::VirtualGame(const Options& options)
    : m_preferences(
        prepared(options.store != nullptr ? *options.store : m_memory, options.preferences))
    , m_random(options.seed)
    , m_resources(options.dataFolder)
    , m_screen(options.screen)
    , m_installation(m_preferences)
    , m_images(options.dataFolder + QStringLiteral("/images"), m_font)
    , m_menu(m_preferences)
    , m_currentGame(m_preferences, m_random, m_resources)
    , m_gameData(m_screen)
    , m_game(std::make_unique<controller::Game>(
          controller::GamePorts { .runLoop = m_runLoop,
              .preferences = m_preferences,
              .resources = m_resources,
              .sounds = m_sounds,
              .pointer = m_pointer,
              .textMetrics = m_font,
              .menu = m_menu,
              .log = m_log,
              .quit = m_quit,
              .overlay = m_overlay,
              .window = m_window,
              .offerInstallation =
                  [this](std::function<void()> done) {
                      offerInstallation(m_installation.installation(), std::move(done));
                  },
              .journal = options.journal },
          m_currentGame, m_gameData))
{
    m_menu.connectActions(menuActions(controller(), [this] { ++m_timesAbout; }));
    m_widget = std::make_unique<desktop::qt::BoardWidget>(
        desktop::qt::BoardWidget::Parts { .layers = m_game->layers(),
            .view = m_game->view(),
            .pointer = m_pointer,
            .images = m_images,
            .resized =
                [this](platform::Size size) {
                    controller().updateContentViewFrame(size);
                    controller().windowDidResize();
                },
            .cursor = [this] { return controller().answers().cursor(); },
            .closePage = [this] { return controller().closePage(); } });
    m_widget->setAttribute(Qt::WA_DontShowOnScreen);
    m_widget->resize(options.window);
    m_widget->show();
    const QSize screen(
        static_cast<int>(options.screen.width), static_cast<int>(options.screen.height));
    m_window.setModeListener([this, screen, own = options.window] {
        resize(m_window.isZoomed() || m_window.isInFullScreenMode() ? screen : own);
    });
}

void VirtualGame::launch()
{
    controller().awake({ .width = static_cast<double>(m_widget->width()),
        .height = static_cast<double>(m_widget->height()) });
}

void VirtualGame::play(const progress::CurrentGame::Puzzle& puzzle)
{
    m_currentGame.loadPlayer(progress::currentPlayer(m_preferences), puzzle.mode);
    m_currentGame.placePuzzle(puzzle);
    controller().flow().layOutPuzzle();
    controller().kept().begin();
}

void VirtualGame::move(Point place)
{
    if (m_held == Qt::NoButton) {
        sendMouse(QEvent::MouseMove, place, Qt::NoButton);
        return;
    }
    const Point start = m_place;
    const double distance = std::hypot(place.x - start.x, place.y - start.y);
    const int steps = std::max(1, static_cast<int>(std::ceil(distance / kLargestStep)));
    for (int step = 1; step <= steps; ++step) {
        const double share = static_cast<double>(step) / steps;
        sendMouse(QEvent::MouseMove,
            step == steps ? place
                          : Point { .x = start.x + (place.x - start.x) * share,
                              .y = start.y + (place.y - start.y) * share },
            Qt::NoButton);
    }
}

void VirtualGame::press(Point place, Qt::KeyboardModifiers modifiers)
{
    move(place);
    m_modifiers = modifiers;
    m_held = Qt::LeftButton;
    sendMouse(QEvent::MouseButtonPress, place, Qt::LeftButton);
}

void VirtualGame::release(Point place)
{
    move(place);
    m_held = Qt::NoButton;
    sendMouse(QEvent::MouseButtonRelease, place, Qt::LeftButton);
    m_modifiers = Qt::NoModifier;
}

void VirtualGame::click(Point place)
{
    press(place);
    release(place);
}

void VirtualGame::key(const QString& sequence)
{
    const QKeySequence keys(sequence);
    for (QAction* const action : m_menu.actions()) {
        if (action->shortcuts().contains(keys)) {
            action->trigger(); // as the desktop does before the widget hears of it
            return;
        }
    }
    for (int i = 0; i < keys.count(); ++i) {
        const QKeyCombination combination = keys[static_cast<uint>(i)];
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, combination.key(), combination.keyboardModifiers());
            QApplication::sendEvent(m_widget.get(), &event);
        }
    }
}

void VirtualGame::resize(QSize size)
{
    m_widget->resize(size);
    QApplication::sendPostedEvents(m_widget.get());
}

std::optional<Point> VirtualGame::centreOf(const std::string& key)
{
    const auto record = m_gameData.gameObjects().objectForKey(key);
    return record ? std::optional(Point { .x = record->x(), .y = record->y() }) : std::nullopt;
}

QImage VirtualGame::picture()
{
    const double ratio = m_widget->devicePixelRatioF();
    QImage image((QSizeF(m_widget->size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    m_widget->nextFrame();
    m_widget->render(&image);
    return image;
}

QPointF VirtualGame::toWidget(Point place)
{
    const platform::RectF area = m_game->layers().backgroundLayer().rectInRoot();
    const auto scale = static_cast<double>(area.height);
    return { static_cast<double>(area.x) + place.x * scale,
        static_cast<double>(m_widget->height()) - static_cast<double>(area.y) - place.y * scale };
}

void VirtualGame::sendMouse(QEvent::Type type, Point place, Qt::MouseButton button)
{
    m_place = place;
    const QPointF position = toWidget(place);
    QMouseEvent event(type, position, m_widget->mapToGlobal(position), button, m_held, m_modifiers);
    QApplication::sendEvent(m_widget.get(), &event);
}

} // namespace veyrand::app
