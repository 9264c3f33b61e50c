#pragma once

#include <QString>

#include <string>

namespace veyrand::app {

// Runs the game in a window until it is closed, and begins with the puzzle of the code, unless it
// is empty. Returns an exit status.
int runGame(const QString& dataFolder, const std::string& puzzleCode);

// Shows the game that the journal holds in a window of its own, until it is closed. Nothing of the
// player's is touched. Returns an exit status.
int showJournal(const QString& dataFolder, const QString& file);

} // namespace veyrand::app
