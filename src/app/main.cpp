#include "app/Application.h"
#include "app/Demo.h"
#include "app/Gallery.h"
#include "app/UncaughtGuard.h"
#include "app/WaitingBox.h"
#include "desktop/qt/DataFolder.h"

#include <QApplication>
#include <QTextStream>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <optional>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// Status for a command line that cannot be followed.
constexpr int kBadArguments = 2;

// Where to leave pictures, if that is all that is wanted.
struct Pictures {
    std::optional<std::string> demoFolder;
    std::optional<std::string> galleryFolder;
    std::vector<int> gallerySize { 1440, 900 };

    [[nodiscard]] bool wanted() const { return demoFolder || galleryFolder; }
};

int run(const Pictures& pictures, const std::optional<std::string>& journal)
{
    const QString dataFolder = veyrand::desktop::qt::findDataFolder();
    if (dataFolder.isEmpty()) {
        const QString message = QStringLiteral("The game's data cannot be found: no share/veyrand "
                                               "beside %1 and VEYRAND_DATA names no folder")
                                    .arg(QCoreApplication::applicationDirPath());
        QTextStream(stderr) << message << Qt::endl;
        if (!pictures.wanted() && !journal) {
            veyrand::app::tellAndWait(message);
        }
        return 1;
    }
    if (pictures.demoFolder) {
        return veyrand::app::playDemonstration(
            dataFolder, QString::fromStdString(*pictures.demoFolder));
    }
    if (pictures.galleryFolder) {
        return veyrand::app::paintGallery(dataFolder,
            QString::fromStdString(*pictures.galleryFolder),
            { pictures.gallerySize.at(0), pictures.gallerySize.at(1) });
    }
    QApplication::setWindowIcon(veyrand::desktop::qt::applicationIcon(dataFolder));
    return journal ? veyrand::app::showJournal(dataFolder, QString::fromStdString(*journal))
                   : veyrand::app::runGame(dataFolder);
}

// Pictures and sounds are taken and given back in large pieces. Left to itself the C library keeps
// the room of those that have gone, for more to come, and nothing comes in a game at rest; and it
// keeps a heap for each thread, of which only one has much to do here.
void giveBackLargeMemory()
{
#ifdef __GLIBC__
    constexpr int kLarge = 256 * 1024; // bytes
    mallopt(M_MMAP_THRESHOLD, kLarge);
    mallopt(M_ARENA_MAX, 1);
#endif
}

int start(int argc, char** argv)
{
    CLI::App options("Veyrand, a puzzle game of rewrite moves", "veyrand");
    options.set_version_flag("--version", "veyrand " VEYRAND_VERSION);
    Pictures pictures;
    CLI::Option* const demo
        = options
              .add_option("--demo", pictures.demoFolder,
                  "Play by itself, off the screen, and leave pictures in the folder DIR")
              ->expected(0, 1)
              ->default_str("veyrand-demo")
              ->type_name("DIR");
    CLI::Option* const gallery
        = options
              .add_option("--gallery", pictures.galleryFolder,
                  "Leave a picture of every page, the title page, the dialogues and the boards in "
                  "DIR")
              ->type_name("DIR")
              ->excludes(demo);
    options.add_option("--size", pictures.gallerySize, "The size of the gallery's pictures")
        ->delimiter('x')
        ->expected(2)
        ->check(CLI::Range(320, 7680))
        ->type_name("WIDTHxHEIGHT")
        ->default_str("1440x900")
        ->needs(gallery);
    std::optional<std::string> journal;
    options
        .add_option(
            "--replay", journal, "Show the game that the journal FILE holds, as it was played")
        ->type_name("FILE")
        ->excludes(demo)
        ->excludes(gallery);
    try {
        options.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return options.exit(error) == 0 ? 0 : kBadArguments;
    }
    if (pictures.wanted() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const veyrand::app::GuardedApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Veyrand"));
    QApplication::setApplicationVersion(QStringLiteral(VEYRAND_VERSION));
    QApplication::setDesktopFileName(QStringLiteral(VEYRAND_ID)); // whose icon the desktop shows
    return run(pictures, journal);
}

} // namespace

int main(int argc, char* argv[])
{
    giveBackLargeMemory();
    try {
        return start(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "veyrand cannot go on: %s\n", error.what());
        return 1;
    }
}
