#include "app/Application.h"
#include "app/Demo.h"
#include "app/Gallery.h"
#include "app/PagePreview.h"
#include "app/UncaughtGuard.h"
#include "app/WaitingBox.h"
#include "desktop/qt/DataFolder.h"
#include "language/Choice.h"

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
    std::vector<int> size { 1440, 900 };
    std::optional<std::string> page; // to be shown while a translator works on it
    std::string languagesFolder {};
    std::string language { "en" };

    [[nodiscard]] bool wanted() const { return demoFolder || galleryFolder; }
    [[nodiscard]] QSize shape() const { return { size.at(0), size.at(1) }; }
};

int run(
    const Pictures& pictures, const std::optional<std::string>& journal, const std::string& puzzle)
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
            QString::fromStdString(*pictures.galleryFolder), pictures.shape(), pictures.language);
    }
    if (pictures.page) {
        return veyrand::app::showPage({ .dataFolder = dataFolder,
            .languagesFolder = QString::fromStdString(pictures.languagesFolder),
            .language = pictures.language,
            .page = *pictures.page,
            .size = pictures.shape() });
    }
    QApplication::setWindowIcon(veyrand::desktop::qt::applicationIcon(dataFolder));
    return journal ? veyrand::app::showJournal(dataFolder, QString::fromStdString(*journal))
                   : veyrand::app::runGame(dataFolder, puzzle);
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

std::string languageCodes()
{
    std::string list;
    for (const std::string& code : veyrand::language::knownCodes()) {
        list += (list.empty() ? "" : ", ") + code;
    }
    return list;
}

void addPictureOptions(CLI::App& options, Pictures& pictures, std::optional<std::string>& journal)
{
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
    CLI::Option* const replay
        = options
              .add_option("--replay", journal,
                  "Show the game that the journal FILE holds, as it was played")
              ->type_name("FILE")
              ->excludes(demo)
              ->excludes(gallery);
    options
        .add_option("--page", pictures.page,
            "Show the page NAME, and show it anew whenever its language's files are saved")
        ->type_name("NAME")
        ->excludes(demo)
        ->excludes(gallery)
        ->excludes(replay);
}

// How the pictures of a gallery, or of a page, are to be.
void addLooks(CLI::App& options, Pictures& pictures)
{
    CLI::Option* const gallery = options.get_option("--gallery");
    CLI::Option* const page = options.get_option("--page");
    options
        .add_option("--languages", pictures.languagesFolder,
            "Read the languages of the page from DIR instead of the game's data")
        ->type_name("DIR")
        ->check(CLI::ExistingDirectory)
        ->needs(page);
    CLI::Option* const size
        = options
              .add_option("--size", pictures.size, "The size of the gallery's pictures, or page")
              ->delimiter('x')
              ->expected(2)
              ->check(CLI::Range(320, 7680))
              ->type_name("WIDTHxHEIGHT")
              ->default_str("1440x900");
    CLI::Option* const language
        = options
              .add_option("--language", pictures.language,
                  "The language of the gallery's pictures, or page: " + languageCodes())
              ->check(CLI::IsMember(veyrand::language::knownCodes()))
              ->type_name("CODE")
              ->default_str("en");
    options.callback([gallery, page, size, language] {
        for (const CLI::Option* const option : { size, language }) {
            if (*option && !*gallery && !*page) {
                throw CLI::RequiresError(option->get_name(), "--gallery or --page");
            }
        }
    });
}

int start(int argc, char** argv)
{
    CLI::App options("Veyrand, a puzzle game of rewrite moves", "veyrand");
    options.set_version_flag("--version", "veyrand " VEYRAND_VERSION);
    Pictures pictures;
    std::optional<std::string> journal;
    addPictureOptions(options, pictures, journal);
    addLooks(options, pictures);
    std::string puzzle;
    options
        .add_option("CODE", puzzle,
            "Open the puzzle of this code, of a veyrand: link, or of a file that holds either")
        ->excludes("--demo")
        ->excludes("--gallery")
        ->excludes("--replay")
        ->excludes("--page");
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
    return run(pictures, journal, puzzle);
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
