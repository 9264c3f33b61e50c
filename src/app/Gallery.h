#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <string>
#include <vector>

namespace veyrand::app {

// Leaves a picture of every page in the folder, named after the page's operation, and of the title
// page in its four states, both dialogues, both boards, a board under the pointer and in the midst
// of a drag, and the pages that lie over the board, all of the size and in the language; those of
// the pages over the board at four other sizes too. Off the screen and in virtual time. Returns an
// exit status and says on standard output what it leaves.
int paintGallery(const QString& dataFolder, const QString& pictureFolder, QSize size,
    const std::string& language);

// What the pictures of a gallery are called, in the order in which it paints them.
[[nodiscard]] std::vector<std::string> namesOfGallery(const QString& dataFolder);

struct PageToShow {
    QString dataFolder;
    QString languagesFolder {}; // empty: the one among the data
    std::string language;
    std::string page; // the name of its operation
    QSize size;
};

struct ShownPage {
    QImage picture; // null where there is no such page
    QString faults; // of the data, a line each with file and reason
};

// The page where it is at home in the Classic game.
[[nodiscard]] ShownPage pictureOfPage(const PageToShow& wanted);

} // namespace veyrand::app
