#pragma once

#include <QString>

namespace veyrand::app {

// Runs the game in a window until it is closed. Returns an exit status.
int runGame(const QString& dataFolder);

} // namespace veyrand::app
