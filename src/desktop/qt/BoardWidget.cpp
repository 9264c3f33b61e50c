#include "desktop/qt/BoardWidget.h"

#include "desktop/qt/Logging.h"
#include "input/MouseTrail.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScreen>
#include <QTouchEvent>

#include <cmath>

namespace veyrand::desktop::qt {

namespace {

Qt::CursorShape shapeOf(input::Cursor cursor)
{
    switch (cursor) {
    case input::Cursor::Pointing:
        return Qt::PointingHandCursor;
    case input::Cursor::Open:
        return Qt::OpenHandCursor;
    case input::Cursor::Closed:
        return Qt::ClosedHandCursor;
    case input::Cursor::Arrow:
        break;
    }
    return Qt::ArrowCursor;
}

} // namespace

BoardWidget::BoardWidget(Parts parts, QWidget* parent)
    : QWidget(parent)
    , m_parts(std::move(parts))
    , m_painter(m_parts.images)
    , m_touch(m_parts.view, m_parts.layers, m_parts.pointer)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_AcceptTouchEvents);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent); // every pixel is painted: black lies behind everything
    setMinimumSize(480, 300);
    m_clock.start();
    m_frameTimer.setSingleShot(true);
    m_frameTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_frameTimer, &QTimer::timeout, this, [this] { showFrame(); });
    m_parts.layers.scene().setDisplayListener([this] { scheduleFrame(); });
}

BoardWidget::~BoardWidget()
{
    m_parts.layers.scene().setDisplayListener({});
}

QSize BoardWidget::sizeHint() const
{
    return { 1280, 800 };
}

// Changes come in bursts; the first asks for a frame and the rest find it asked for.
void BoardWidget::scheduleFrame()
{
    if (m_changed) {
        m_changed();
    }
    if (!m_frameTimer.isActive()) {
        m_frameTimer.start(0);
    }
}

void BoardWidget::showFrame()
{
    const double shown = seconds();
    update(nextFrame());
    if (window()->isMinimized()) {
        m_frameTimer.stop(); // the first picture after it starts it again
    } else if (m_parts.layers.scene().isAnimating()) {
        constexpr double kMillisecondsPerSecond = 1000.0;
        if (!m_moving) {
            m_pace.begin(shown);
        }
        const double wait = m_pace.untilNext(seconds(), refreshRate());
        m_frameTimer.start(static_cast<int>(std::lround(wait * kMillisecondsPerSecond)));
    }
    m_moving = m_frameTimer.isActive();
}

// Asked for each frame: the window may be on another screen by now, or the screen in another mode.
double BoardWidget::refreshRate() const
{
    if (m_parts.refreshRate) {
        return m_parts.refreshRate();
    }
    return screen() != nullptr ? screen()->refreshRate() : 0.0;
}

double BoardWidget::seconds() const
{
    constexpr double kNanosecondsPerSecond = 1e9;
    return static_cast<double>(m_clock.nsecsElapsed()) / kNanosecondsPerSecond;
}

void BoardWidget::showCursor()
{
    const input::Cursor cursor = m_parts.cursor ? m_parts.cursor() : input::Cursor::Arrow;
    if (cursor != m_cursor) {
        m_cursor = cursor;
        setCursor(shapeOf(cursor));
    }
}

QRegion BoardWidget::nextFrame()
{
    showCursor();
    present::DisplayList next = m_parts.layers.displayList();
    const QRegion pixels = ListPainter::damagedPixels(m_shown, next, surface());
    m_shown = std::move(next);
    if (devicePixelRatioF() == 1.0) {
        return pixels & rect();
    }
    QRegion points;
    for (const QRect& part : pixels) {
        const double ratio = devicePixelRatioF();
        points += QRectF(
            part.x() / ratio, part.y() / ratio, part.width() / ratio, part.height() / ratio)
                      .toAlignedRect();
    }
    return points & rect();
}

void BoardWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.scale(1.0 / devicePixelRatioF(), 1.0 / devicePixelRatioF());
    m_painter.paint(painter, m_shown, surface());
    if (!m_moving && m_parts.layers.scene().isAnimating()) {
        scheduleFrame(); // nothing was shown while the window lay in the taskbar
    }
    if (++m_framesPainted == 1) {
        qCDebug(lcTiming) << "first frame";
    }
}

void BoardWidget::resizeEvent(QResizeEvent* event)
{
    findPointerAgain();
    m_parts.resized({ .width = static_cast<double>(event->size().width()),
        .height = static_cast<double>(event->size().height()) });
    // Every picture is needed at another size now; those of the old one would only fill memory.
    m_parts.images.forgetSizes();
    // The window shows everything anew at the new size, at once.
    nextFrame();
    update();
}

void BoardWidget::mousePressEvent(QMouseEvent* event)
{
    const input::MouseEvent press = track(*event);
    if (event->button() == Qt::LeftButton) {
        m_dragged = press.location;
        m_parts.view.mouseDown(press);
    } else if (event->button() == Qt::RightButton) {
        m_parts.view.rightMouseDown(press);
    }
    showCursor();
}

// The second press of a quick pair is a press like any other.
void BoardWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        followTo(*event);
    } else {
        static_cast<void>(track(*event));
        m_parts.view.mouseMoved();
    }
    showCursor();
}

// The held button's whole way to where the event saw it.
void BoardWidget::followTo(const QMouseEvent& event)
{
    const input::MouseEvent last = track(event);
    const auto height = static_cast<double>(m_parts.layers.backgroundLayer().rectInRoot().height);
    for (const platform::Point& place : input::trail(
             m_dragged.value_or(last.location), last.location, input::kLargestStep * height)) {
        m_parts.pointer.setPosition(place);
        m_parts.view.mouseDragged({ .location = place, .hasModifier = last.hasModifier });
    }
    m_dragged = last.location;
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const input::MouseEvent release = track(*event);
    if (event->button() == Qt::LeftButton) {
        // A flick may end without a word of where it went.
        if (m_dragged && !(*m_dragged == release.location)) {
            followTo(*event);
        }
        m_dragged.reset();
        m_parts.view.mouseUp(release);
    }
    showCursor();
}

void BoardWidget::leaveEvent(QEvent* event)
{
    m_pointerOnDesktop.reset();
    m_parts.pointer.setPosition(std::nullopt);
    m_parts.view.pointerLeft();
    QWidget::leaveEvent(event);
}

bool BoardWidget::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
    case QEvent::UngrabMouse:
        cancelGesture();
        break;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return touch(*static_cast<QTouchEvent*>(event));
    default:
        break;
    }
    return QWidget::event(event);
}

// The first finger plays; what others do is not looked at.
bool BoardWidget::touch(const QTouchEvent& event)
{
    if (event.type() == QEvent::TouchCancel) {
        m_touch.cancelled();
        return true;
    }
    if (event.points().isEmpty()) {
        return true;
    }
    const QEventPoint& finger = event.points().first();
    const platform::Point place = gamePoint(mapFromGlobal(finger.globalPosition()));
    switch (finger.state()) {
    case QEventPoint::Pressed:
        m_touch.began(place);
        break;
    case QEventPoint::Updated:
        m_touch.moved(place);
        break;
    case QEventPoint::Released:
        m_touch.ended(place);
        break;
    default:
        break;
    }
    return true;
}

void BoardWidget::keyPressEvent(QKeyEvent* event)
{
    const QKeyCombination keys(
        event->modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event->key()));
    const KeyPress press { .keys
        = QKeySequence(keys).toString(QKeySequence::PortableText).toStdString(),
        .isRepeated = event->isAutoRepeat() };
    if (!m_parts.key || !m_parts.key(press)) {
        QWidget::keyPressEvent(event);
    }
}

// Tab goes round on the board; the menus have Alt.
bool BoardWidget::focusNextPrevChild(bool /*next*/)
{
    return false;
}

ListPainter::Surface BoardWidget::surface() const
{
    return { .height = static_cast<double>(height()), .pixelRatio = devicePixelRatioF() };
}

// The game counts upwards from the lower left.
platform::Point BoardWidget::gamePoint(QPointF position) const
{
    return { .x = position.x(), .y = static_cast<double>(height()) - position.y() };
}

// The widget has moved or grown under a pointer that rests, and no event tells of it.
void BoardWidget::findPointerAgain()
{
    if (m_pointerOnDesktop) {
        m_parts.pointer.setPosition(gamePoint(mapFromGlobal(*m_pointerOnDesktop)));
    }
}

input::MouseEvent BoardWidget::track(const QMouseEvent& event)
{
    const platform::Point location = gamePoint(event.position());
    m_pointerOnDesktop = event.globalPosition();
    m_parts.pointer.setPosition(location);
    const bool modified
        = (event.modifiers()
              & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        != Qt::NoModifier;
    return { .location = location, .hasModifier = modified };
}

} // namespace veyrand::desktop::qt
