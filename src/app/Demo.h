#pragma once

#include <QString>

namespace veyrand::app {

// Plays the first puzzles by themselves, off the screen and in virtual time, and leaves pictures of
// it in the folder. Returns an exit status and says on standard output what it leaves.
int playDemonstration(const QString& dataFolder, const QString& pictureFolder);

} // namespace veyrand::app
