#pragma once

#include "platform/Preferences.h"

#include <QList>
#include <QRect>

#include <optional>

namespace veyrand::app {

// Where the window lies when it has its own size, in the desktop's points and without its frame,
// and whether it is zoomed. Full-screen mode is not remembered: who starts a game expects a window.
struct WindowPlace {
    QRect geometry;
    bool zoomed = false;
    friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

// What was saved, if anything sensible was.
std::optional<WindowPlace> savedPlace(const platform::Preferences& preferences);
void savePlace(platform::Preferences& preferences, const WindowPlace& place);

// The wanted rectangle, moved and shrunk as little as it takes to lie within the screen that shows
// most of it: screens come and go between two starts. The first screen counts when none shows any.
QRect fittedTo(const QList<QRect>& screens, QRect wanted);

} // namespace veyrand::app
