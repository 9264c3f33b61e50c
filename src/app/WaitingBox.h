#pragma once

#include <QString>

namespace veyrand::app {

// Tells the player something where there is no window any more, or none yet, and returns when it
// has been read. Nothing is shown on a platform without a screen, where nobody could read it.
void tellAndWait(const QString& message);

} // namespace veyrand::app
