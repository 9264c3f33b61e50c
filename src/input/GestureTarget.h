#pragma once

#include "platform/Geometry.h"
#include "play/Gesture.h"

#include <optional>
#include <string>
#include <vector>

namespace veyrand::input {

// A press, move or release of the left button, in the view's points with the origin at the lower
// left.
struct MouseEvent {
    platform::Point location;
    bool hasModifier = false; // Shift, Control, Option (Alt) or Command
    bool isTouch = false; // a finger: it hides what lies under it, and has no hover
};

// What the game view asks of the game: the answers to its gestures, and what it may track. Rows and
// columns are zero-based; row 0 is the start line.
class GestureTarget {
public:
    GestureTarget() = default;
    GestureTarget(const GestureTarget&) = delete;
    GestureTarget& operator=(const GestureTarget&) = delete;
    virtual ~GestureTarget() = default;

    virtual void mouseClick(const MouseEvent& event, unsigned row, unsigned column) = 0;
    // True if a move was made.
    virtual bool mouseDrag(const MouseEvent& event, unsigned fromRow, unsigned fromColumn,
        unsigned toRow, unsigned toColumn)
        = 0;
    virtual void deleteClick(unsigned row) = 0;
    virtual void buttonClick(const std::string& key) = 0;
    virtual void messageWindowClick() = 0;
    // Whether a click there would be a move now.
    [[nodiscard]] virtual bool isMove(unsigned row, unsigned column) const = 0;

    // Every click and every drop that is a move now.
    [[nodiscard]] virtual std::vector<play::Gesture> actions() const = 0;

    // The only row whose chips may be dragged; none while there is no line.
    [[nodiscard]] virtual std::optional<unsigned> rowToDrag() const = 0;
    // The columns on which a chip of the row may be dropped; nothing when the row cannot be played.
    [[nodiscard]] virtual std::optional<std::vector<unsigned>> areasToTrack(
        unsigned row, unsigned column) const = 0;
    [[nodiscard]] virtual unsigned lineCount() const = 0;
    [[nodiscard]] virtual unsigned lengthOfRow(unsigned row) const = 0;

    [[nodiscard]] virtual bool isEndlessGame() const = 0;
};

} // namespace veyrand::input
