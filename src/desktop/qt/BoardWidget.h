#pragma once

#include "desktop/qt/FramePace.h"
#include "desktop/qt/ListPainter.h"
#include "input/Cursor.h"
#include "input/Touch.h"
#include "platform/Pointer.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QTouchEvent>
#include <QWidget>

#include <functional>
#include <optional>
#include <string>

namespace veyrand::desktop::qt {

// The window's content: shows the layer tree and hands the left button's events to the game view.
// It paints only what has changed, a frame at a time while something animates, and does nothing at
// all while nothing does.
class BoardWidget final : public QWidget {
public:
    struct KeyPress {
        std::string keys; // as menus spell it: "Ctrl+Right"
        bool isRepeated = false; // it is held down
    };
    struct Parts {
        present::BoardLayers& layers;
        input::GameView& view;
        platform::Pointer& pointer;
        ImageStore& images;
        // Called with the new size (points) whenever the widget has one.
        std::function<void(platform::Size)> resized;
        // What the pointer looks like now; an arrow always when nobody says.
        std::function<input::Cursor()> cursor {};
        // A key that no menu has: true if the game has a use for it.
        std::function<bool(const KeyPress&)> key {};
        // Frames a second; those of the window's screen when nobody says.
        std::function<double()> refreshRate {};
    };
    explicit BoardWidget(Parts parts, QWidget* parent = nullptr);
    BoardWidget(const BoardWidget&) = delete;
    BoardWidget& operator=(const BoardWidget&) = delete;
    ~BoardWidget() override;

    // Takes the layers' present look as the one to show and returns the part of the widget (in its
    // own points) that has to be painted again for it.
    QRegion nextFrame();

    // Called on every change of what is shown, so often that the listener should only take note.
    void setChangeListener(std::function<void()> listener) { m_changed = std::move(listener); }

    // How many frames have been painted, and whether the next is already on its way.
    [[nodiscard]] int framesPainted() const { return m_framesPainted; }
    [[nodiscard]] bool isFrameDue() const { return m_frameTimer.isActive(); }

    // The button that is held will not be let go over the board.
    void cancelGesture() { m_parts.view.cancelGesture(); }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void scheduleFrame();
    void showFrame();
    [[nodiscard]] double seconds() const;
    [[nodiscard]] double refreshRate() const;
    [[nodiscard]] ListPainter::Surface surface() const;
    [[nodiscard]] platform::Point gamePoint(QPointF position) const;
    [[nodiscard]] input::MouseEvent track(const QMouseEvent& event);
    bool touch(const QTouchEvent& event);
    void findPointerAgain();
    void followTo(const QMouseEvent& event);
    void showCursor();

    Parts m_parts;
    ListPainter m_painter;
    input::Touch m_touch;
    present::DisplayList m_shown;
    QTimer m_frameTimer;
    QElapsedTimer m_clock;
    FramePace m_pace;
    bool m_moving = false; // the last frame asked for another
    std::function<void()> m_changed;
    std::optional<QPointF> m_pointerOnDesktop;
    std::optional<platform::Point> m_dragged; // where the held button was last seen
    input::Cursor m_cursor = input::Cursor::Arrow;
    int m_framesPainted = 0;
};

} // namespace veyrand::desktop::qt
