#pragma once

#include <QWidget>

namespace veyrand::app {

// Says what the program is, which versions of what it runs on, and under which licences. The game
// goes on behind it; a second call while it is open brings it to the front.
void showAboutBox(QWidget& parent);

} // namespace veyrand::app
