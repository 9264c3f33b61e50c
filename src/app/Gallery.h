#pragma once

#include <QSize>
#include <QString>

namespace veyrand::app {

// Leaves a picture of every page in the folder, named after the page's operation, and of the title
// page in its four states, both dialogues, both boards, and a board under the pointer and in the
// midst of a drag, all of the size. Off the screen and in virtual time. Returns an exit status and
// says on standard output what it leaves.
int paintGallery(const QString& dataFolder, const QString& pictureFolder, QSize size);

} // namespace veyrand::app
