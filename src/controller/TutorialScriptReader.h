#pragma once

#include "controller/TutorialScript.h"
#include "platform/Resources.h"

namespace veyrand::controller {

// Reads the files of assets/tutorial. It is strict, so that a slip of the pen is found before a
// player finds it: a field that nobody reads, a page that does not exist or a value of the wrong
// kind is an error that names file and place. What could be read is there in any case.
[[nodiscard]] TutorialScript readTutorialScript(const platform::Resources& resources);

} // namespace veyrand::controller
