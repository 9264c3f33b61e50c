#pragma once

#include <functional>
#include <string>

namespace veyrand::headless {

class HeadlessGame;

using TakePicture = std::function<void(const std::string& name)>;

// Shows the pages that lie over the board one after another, as a player some way into the Classic
// game finds them, and calls the function for each, with a name for its picture. The game's record
// and results are that player's from then on.
void showSheets(HeadlessGame& game, const TakePicture& take);

// The same pages at their ends: with nothing to show, and with all there can be.
void showSheetsAtTheirEnds(HeadlessGame& game, const TakePicture& take);

} // namespace veyrand::headless
