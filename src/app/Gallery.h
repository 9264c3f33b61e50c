#pragma once

#include <QString>

namespace veyrand::app {

// Leaves a picture of every page in the folder, named after the page's operation, and of the title
// page in its four states, both dialogues and both boards. Off the screen and in virtual time.
// Returns an exit status and says on standard output what it leaves.
int paintGallery(const QString& dataFolder, const QString& pictureFolder);

} // namespace veyrand::app
