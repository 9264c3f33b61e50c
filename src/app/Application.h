#pragma once

#include <QString>

#include <string>

namespace veyrand::app {

// Runs the game in a window until it is closed, and begins with the puzzle, unless it is
// empty: a code, a link, or the name of a file that holds one. Returns an exit status.
int runGame(const QString& dataFolder, const std::string& puzzle);

// Shows the game that the journal holds in a window of its own, until it is closed. Nothing of the
// player's is touched. Returns an exit status.
int showJournal(const QString& dataFolder, const QString& file);

} // namespace veyrand::app
