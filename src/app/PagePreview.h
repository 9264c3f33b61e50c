#pragma once

#include "app/Gallery.h"

namespace veyrand::app {

// Shows the page in a window until that is closed, anew whenever a file of its language is saved,
// with what is wrong with the files below it. Returns an exit status.
int showPage(const PageToShow& wanted);

} // namespace veyrand::app
