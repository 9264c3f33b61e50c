#include "app/VirtualGame.h"

#include "app/InstallOffer.h"
#include "app/PressKey.h"
#include "board/Times.h"
#include "headless/SmallSteps.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTouchEvent>

namespace veyrand::app {

using platform::Point;

VirtualGame::VirtualGame(const Options& options)
    : m_preferences(headless::prepared(
        options.store != nullptr ? *options.store : m_memory, options.preferences))
    , m_resources(options.dataFolder, options.languagesFolder)
    , m_images(options.dataFolder + QStringLiteral("/images"), m_font)
    , m_menu(m_preferences)
    , m_installation(m_preferences)
    , m_headless({ .screen = options.screen,
          .view = { .width = static_cast<double>(options.window.width()),
              .height = static_cast<double>(options.window.height()) },
          .seed = options.seed,
          .store = &m_preferences,
          .resources = &m_resources,
          .textMetrics = &m_font,
          .alerts = &m_installation.alerts,
          .offerInstallation =
              [this](std::function<void()> done) {
                  offerInstallation(m_installation.installation(), std::move(done));
              },
          .journal = options.journal })
{
    m_menu.connectTo(controller(), [this](controller::MenuItemId id) {
        m_timesAbout += id == controller::MenuItemId::About ? 1 : 0;
    });
    m_widget = std::make_unique<desktop::qt::BoardWidget>(
        desktop::qt::BoardWidget::Parts { .layers = game().layers(),
            .view = game().view(),
            .pointer = m_headless.pointer(),
            .images = m_images,
            .resized =
                [this](platform::Size size) {
                    controller().updateContentViewFrame(size);
                    controller().windowDidResize();
                },
            .cursor = [this] { return controller().answers().cursor(); },
            .key =
                [this](const desktop::qt::BoardWidget::KeyPress& press) {
                    return pressKey(controller(), press);
                } });
    m_widget->setAttribute(Qt::WA_DontShowOnScreen);
    m_widget->resize(options.window);
    m_widget->show();
    game().setLanguageListener([this, folder = options.dataFolder](const language::Texts& texts) {
        speak({ .language = m_language,
                  .menu = m_menu,
                  .images = m_images,
                  .board = m_widget.get(),
                  .dataFolder = folder },
            texts);
    });
    m_headless.setResizer([this](platform::Size size) {
        resize({ static_cast<int>(size.width), static_cast<int>(size.height) });
    });
}

void VirtualGame::launch()
{
    controller().awake({ .width = static_cast<double>(m_widget->width()),
        .height = static_cast<double>(m_widget->height()) });
}

void VirtualGame::move(Point place)
{
    if (m_held == Qt::NoButton) {
        sendMouse(QEvent::MouseMove, place, Qt::NoButton);
        return;
    }
    for (const Point step : headless::smallSteps(m_place, place)) {
        sendMouse(QEvent::MouseMove, step, Qt::NoButton);
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

void VirtualGame::touch(Point place)
{
    sendTouch(QEventPoint::Pressed, place);
    sendTouch(QEventPoint::Released, place);
}

void VirtualGame::touchDrag(Point from, Point to)
{
    sendTouch(QEventPoint::Pressed, from);
    for (const Point step : headless::smallSteps(from, to)) {
        sendTouch(QEventPoint::Updated, step);
    }
    sendTouch(QEventPoint::Released, to);
}

void VirtualGame::longPress(Point place)
{
    sendTouch(QEventPoint::Pressed, place);
    wait(board::times::kLongPress);
    sendTouch(QEventPoint::Released, place);
}

void VirtualGame::rightClick(Point place)
{
    move(place);
    sendMouse(QEvent::MouseButtonPress, place, Qt::RightButton);
    sendMouse(QEvent::MouseButtonRelease, place, Qt::RightButton);
}

void VirtualGame::sendTouch(QEventPoint::State state, Point place)
{
    const QPointF position = toWidget(place);
    const QEventPoint finger(0, state, position, QPointF(m_widget->mapToGlobal(position)));
    const QEvent::Type type = state == QEventPoint::Pressed ? QEvent::TouchBegin
        : state == QEventPoint::Released                    ? QEvent::TouchEnd
                                                            : QEvent::TouchUpdate;
    QTouchEvent event(type, &m_touchScreen, Qt::NoModifier, { finger });
    QApplication::sendEvent(m_widget.get(), &event);
}

void VirtualGame::key(const QString& sequence)
{
    const QKeySequence keys(sequence);
    for (QAction* const action : m_menu.actions()) {
        if (action->shortcuts().contains(keys) && !m_menu.leavesAlone(keys)) {
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
    const platform::RectF area = game().layers().backgroundLayer().rectInRoot();
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
