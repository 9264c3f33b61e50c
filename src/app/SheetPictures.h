#pragma once

#include <functional>
#include <string>

namespace veyrand::app {

class VirtualGame;

// Shows the sheets one after another, as a player some way into the Classic game finds them, and
// calls the function for each, with a name for its picture.
void showSheets(VirtualGame& game, const std::function<void(const std::string&)>& take);

} // namespace veyrand::app
