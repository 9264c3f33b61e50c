#pragma once

#include <QString>

namespace veyrand::app {

// Runs the game in a window until it is closed. Returns an exit status.
int runGame(const QString& dataFolder);

// Shows the game that the journal holds in a window of its own, until it is closed. Nothing of the
// player's is touched. Returns an exit status.
int showJournal(const QString& dataFolder, const QString& file);

} // namespace veyrand::app
