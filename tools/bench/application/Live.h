#pragma once

#include <QString>

#include <vector>

namespace veyrand::bench {

// What the player sees of time: a game in a window, with its music playing, by the real clock.

// The times between the frames of a line of twelve chips that slides in, on a display that shows so
// many a second, in milliseconds.
std::vector<double> measureFrameIntervals(const QString& dataFolder, double rate);

// From the press on a chip to the first pixel that is another in the window, in milliseconds.
std::vector<double> measureAnswerTimes(const QString& dataFolder);

} // namespace veyrand::bench
