#pragma once

#include "input/DragImage.h"
#include "input/Foreground.h"
#include "input/Hover.h"
#include "input/InputBlock.h"
#include "input/Onlooker.h"
#include "input/Overlay.h"

namespace veyrand::input {

// Turns presses, moves and releases into the game's gestures: a click on a chip, a drag of a chip
// onto another, a click on a delete button or any other button, and a click anywhere while a
// message is up. Hands them to the game with row and column read from the element's key, and blocks
// further input while the answer's animation runs. It remembers keys, never layers, so that the
// board may change under it.
class GameView final : public board::ButtonTracking {
public:
    struct Parts {
        board::GameData& gameData;
        present::BoardLayers& layers;
        platform::RunLoop& runLoop;
        const platform::Pointer& pointer;
        const platform::SoundEffects& effects;
    };
    // How presses are taken that would otherwise do nothing.
    struct Habits {
        // The last press that fell into a block is played when the block ends, if it is a move
        // then.
        bool rememberPress = false;
        // A chip that is let go over itself counts as clicked.
        bool forgivingClicks = false;
        // A right click, a long press, or a click on a chip that can only be dragged lifts the chip
        // off its place; the next click drops it.
        bool liftByClick = false;
    };
    explicit GameView(const Parts& parts);

    void setGestureTarget(GestureTarget& target) { m_target = &target; }
    void setOnlooker(Onlooker* onlooker) { m_onlooker = onlooker; }
    // What lies before the board; null for nothing.
    void setForeground(Foreground* foreground) { m_foreground = foreground; }
    // Whether it would take a press there, in view points.
    [[nodiscard]] bool isCovered(platform::Point location) const;
    // What the player has chosen; asked whenever it matters.
    void setHabits(std::function<Habits()> habits) { m_habits = std::move(habits); }
    // Called whenever the mouse or a finger is used.
    void setPointerListener(std::function<void()> listener) { m_pointerUsed = std::move(listener); }

    // Events of the left button, in the order in which they happen; and the pointer's free
    // movement.
    void mouseDown(const MouseEvent& event);
    void mouseDragged(const MouseEvent& event);
    void mouseUp(const MouseEvent& event);
    void mouseMoved();
    void rightMouseDown(const MouseEvent& event);
    // The pointer is outside; the button may be held there.
    void pointerLeft() { followPointer(); }
    // The release will not come, or would mean nothing: the window has gone, another has the
    // pointer, a box wants an answer first. A chip in the hand goes back, and the press was none.
    void cancelGesture();

    // A press and release on an element, without a pointer: by a key, by a reader.
    void activate(const std::string& key);
    // The chip is taken up without a pointer and carried over another; false when it may not be.
    bool liftByKey(const std::string& key);
    void carryTo(const std::string& key); // nothing happens when none is lifted
    void drop(const std::string& key);

    [[nodiscard]] Overlay overlay() const { return m_overlay; }
    // What is lifted goes back before a page is read or a question answered.
    void setOverlay(Overlay overlay);
    [[nodiscard]] bool messageWindow() const { return m_overlay == Overlay::Page; }
    [[nodiscard]] bool tutorialWindow() const { return m_overlay == Overlay::Note; }

    [[nodiscard]] InputBlock& block() { return m_block; }
    [[nodiscard]] Hover& hover() { return m_hover; }

    // The element under the pointer; the one under the held button while the press may still become
    // a click; and the one a drag began on. Empty when there is none.
    [[nodiscard]] std::string keyUnderPointer() const;
    [[nodiscard]] std::optional<platform::PointF> pointerPlace() const; // in the view's points
    [[nodiscard]] std::string keyHeld() const;
    [[nodiscard]] std::string keyDragged() const;
    // The chip that is in the hand with no button held.
    [[nodiscard]] std::string keyLifted() const;

    void establishButtonTracking() override;
    // After the window changed size or mode: tracks what is on the screen now.
    void reestablishTracking();
    // After what lies under a resting pointer has changed.
    void turnOnAllHovers();

private:
    // How a chip came into the hand other than by a drag.
    enum class Lift { None, ByKey, ByPointer };
    struct Drag {
        std::string originKey;
        std::weak_ptr<board::GameObject> originChip;
    };

    [[nodiscard]] present::GameObjectLayer* chipLayerHit(platform::Point location) const;
    [[nodiscard]] std::string keyHit(platform::Point location) const; // empty when none
    [[nodiscard]] platform::Point onBoard(platform::Point location) const; // in game heights
    [[nodiscard]] platform::PointF onBackground(platform::Point location) const;
    [[nodiscard]] bool hasMoved(platform::Point location) const;
    [[nodiscard]] present::GameObjectLayer* originLayer() const;
    void holdDown(const std::string& key);
    void letGo();
    void tryToStartDrag(platform::Point location);
    void startLayerDrag(const std::string& key, platform::Point position);
    void carry(platform::Point location);
    void endDrag(const MouseEvent& event, const std::string& droppedOn);
    bool lift(const std::string& key, Lift how);
    [[nodiscard]] bool liftsByClick(const std::string& key) const;
    [[nodiscard]] bool isTarget(const std::string& key) const;
    void awaitLongPress(const MouseEvent& event);
    void settleLift(const MouseEvent& event);
    void putBack();
    void stayLifted();
    void tellPointerUsed();
    void takeBackDrag();
    void abandonDrag();
    void finishGesture();
    void mouseClick(const MouseEvent& event, const std::string& key);
    bool dropOnKey(const MouseEvent& event, const std::string& from, const std::string& to);
    void blockEnded();
    void followPointer();
    void tellHandsChanged() const;
    bool losePress(const std::string& key, bool hasModifier);
    void rememberPress(const MouseEvent& release);
    void playRememberedPress();
    void missedDrop(const MouseEvent& event, const std::string& from, const std::string& to);
    [[nodiscard]] double paced(double seconds) const;

    board::GameData& m_gameData;
    present::BoardLayers& m_layers;
    GestureTarget* m_target = nullptr;
    Onlooker* m_onlooker = nullptr;
    Foreground* m_foreground = nullptr;
    bool m_foregroundHasPress = false;
    std::function<Habits()> m_habits;
    std::function<void()> m_pointerUsed;
    platform::RunLoop& m_runLoop;
    const platform::Pointer& m_pointer;
    InputBlock m_block;
    Hover m_hover;
    DragImage m_dragImage;
    platform::Point m_position; // of the last press
    std::optional<platform::Point> m_lost; // a press into a block, while it is held
    std::string m_remembered; // the chip of such a press, let go where it was pressed
    std::string m_lastPressed;
    double m_lastPressTime = -1.0;
    std::optional<Drag> m_drag;
    Lift m_lift = Lift::None;
    bool m_liftIsFresh = false; // by the press that still goes on
    bool m_isTouch = false; // the last press
    unsigned m_presses = 0; // counts them, so that a late call knows its own
    std::optional<platform::Point> m_pointerSeen; // where the pointer was last heard of
    std::string m_heldKey; // of the button that looks pressed
    Hover::Button m_held = Hover::Button::Up;
    bool m_click = false; // a press that may become a click or a drag
    bool m_blockDrag = false; // this press may not become a drag
    Overlay m_overlay = Overlay::None;
};

} // namespace veyrand::input
