#include "app/Application.h"

#include "app/AboutBox.h"
#include "app/InstallOffer.h"
#include "app/MainWindow.h"
#include "app/Notices.h"
#include "app/PressKey.h"
#include "app/SystemInstallation.h"
#include "app/SystemMotionWish.h"
#include "app/UncaughtGuard.h"
#include "app/WaitingBox.h"
#include "app/Words.h"
#include "controller/Game.h"
#include "controller/ReplayShow.h"
#include "desktop/posix/PosixDisk.h"
#include "desktop/posix/UserJournal.h"
#include "desktop/qt/BoardReader.h"
#include "desktop/qt/DataFolder.h"
#include "desktop/qt/FilePreferences.h"
#include "desktop/qt/Logging.h"
#include "desktop/qt/OpenAlSounds.h"
#include "desktop/qt/QtFileExchange.h"
#include "desktop/qt/QtOverlayWindow.h"
#include "desktop/qt/QtRunLoop.h"
#include "desktop/qt/QtWindow.h"
#include "desktop/qt/SettingsWindow.h"
#include "desktop/qt/SystemPorts.h"
#include "play/PuzzleCode.h"
#include "play/Recording.h"
#include "progress/Misunderstood.h"
#include "progress/PlayerKeys.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <cerrno>
#include <memory>
#include <optional>
#include <system_error>

namespace veyrand::app {

namespace {

// What is there, or has what no code has: a slash or a dot.
bool isFileName(const std::string& puzzle, const QFileInfo& file)
{
    const bool isThere = file.exists() && !file.isDir();
    return isThere || play::codeInLink(puzzle).find_first_of("/.") != std::string_view::npos;
}

// The real ports and the one game on them, in the order in which they need each other.
class Application {
public:
    // Whether what is played is the player's own, and kept.
    enum class Games { Kept, Shown };

    Application(const QString& dataFolder, const QString& preferences, Games games)
        : m_preferences(preferences, progress::misunderstood)
        , m_journal(
              games == Games::Kept ? std::make_unique<desktop::posix::UserJournal>() : nullptr)
        , m_exchange(m_preferences)
        , m_sounds(dataFolder + QStringLiteral("/sounds"))
        , m_resources(dataFolder)
        , m_installation(m_preferences)
        , m_images(dataFolder + QStringLiteral("/images"), m_font)
        , m_overlay(m_images)
        , m_motionWish(systemMotionWish())
        , m_menu(withDefaults(m_preferences))
        , m_currentGame(progress::CurrentGame::sharedInstance(m_preferences, m_random, m_resources))
        , m_game({ .runLoop = m_runLoop,
                     .preferences = m_preferences,
                     .resources = m_resources,
                     .sounds = m_sounds,
                     .pointer = m_pointer,
                     .textMetrics = m_font,
                     .log = m_log,
                     .quit = m_quit,
                     .overlay = m_overlay,
                     .window = m_windowModes,
                     .alerts = m_installation.installation().alerts,
                     .offerInstallation =
                         [this](std::function<void()> done) {
                             offerInstallation(m_installation.installation(), std::move(done));
                         },
                     .journal = journal(),
                     .desktopLanguages = desktopLanguages(),
                     .motionWish = m_motionWish.get(),
                     .calendar = &m_calendar,
                     .clipboard = &m_clipboard,
                     .exchange = &m_exchange },
              m_currentGame, board::GameData::sharedGameData(desktop::qt::mainScreenSize()))
        , m_board({ .layers = m_game.layers(),
              .view = m_game.view(),
              .pointer = m_pointer,
              .images = m_images,
              .resized = [this](platform::Size size) { resized(size); },
              .cursor = [this] { return m_game.controller().answers().cursor(); },
              .key =
                  [this](const desktop::qt::BoardWidget::KeyPress& press) {
                      return pressKey(m_game.controller(), press);
                  } })
        , m_reader(m_board, m_game.layers(), m_game.controller())
        , m_window(m_menu, m_board)
    {
        m_overlay.setMainWindow(m_window);
        m_windowModes.setMainWindow(m_window);
        m_game.setLanguageListener([this, dataFolder](const language::Texts& texts) {
            speak({ .language = m_language,
                      .menu = m_menu,
                      .images = m_images,
                      .board = &m_board,
                      .dataFolder = dataFolder },
                texts);
            if (m_window.isVisible()) {
                tellWhatStaysEnglish();
            }
        });
        m_window.setClosingListener([this] { savePlaceOfWindow(); });
        m_menu.connectTo(m_game.controller(), [this](controller::MenuItemId id) {
            if (id == controller::MenuItemId::About) {
                showAboutBox(m_window);
            } else if (id == controller::MenuItemId::Settings) {
                showSettings();
            }
        });
    }

    // What keeps the game from being played; empty when nothing does.
    [[nodiscard]] std::string fault() const
    {
        return m_currentGame.catalogueErrors() + m_game.script().errors
            + m_game.texts().englishFaults();
    }

    void show()
    {
        m_window.open(savedPlace(m_preferences));
        m_game.controller().awake({ .width = static_cast<double>(m_board.width()),
            .height = static_cast<double>(m_board.height()) });
        if (m_preferences.isHeldElsewhere()) {
            askAboutSecondCopy(m_window, [this] { m_quit.terminate(); });
        }
        tellWhatStaysEnglish();
        m_preferences.setReporter(
            [this](const QString& message) { showTrouble(m_window, message); });
        m_game.controller().kept().setRecordTest(
            [this] { return m_preferences.saveWhatFailed().isEmpty(); });
        m_game.controller().kept().setReporter([this](const std::string& message) {
            showTrouble(m_window, QString::fromStdString(message));
        });
    }

    // Instead of a game: the list of actions, in a window that answers to no press.
    void show(const QString& name, std::vector<play::Action> actions)
    {
        using controller::MenuItemId;
        m_menu.connectTo(
            { MenuItemId::Quit, MenuItemId::Leave, MenuItemId::FullScreen }, [this](MenuItemId id) {
                if (id == MenuItemId::FullScreen) {
                    m_game.controller().toggleFullscreen();
                } else {
                    m_window.close();
                }
            });
        m_board.setEnabled(false);
        m_window.setFocus(); // or the menu bar would have it, and keep Esc for itself
        m_window.setWindowTitle(QStringLiteral("%1 \u2013 Veyrand").arg(name));
        m_window.open({});
        m_show.emplace(m_game.controller(), std::move(actions));
        m_show->start();
    }

    // A puzzle's code, or the name of a file that holds one.
    void open(const std::string& puzzle)
    {
        constexpr std::size_t kMostBytes = 4096;
        const QFileInfo file(QDir::cleanPath(QString::fromStdString(puzzle)));
        const std::string name = file.fileName().toStdString();
        auto& practice = m_game.controller().practice();
        if (!isFileName(puzzle, file)) {
            return practice.openOrTell(puzzle);
        }
        const auto [bytes, fault]
            = desktop::posix::PosixDisk().read(file.absoluteFilePath().toStdString(), kMostBytes);
        if (!bytes) {
            const std::string why = fault.empty() ? std::generic_category().message(ENOENT) : fault;
            return practice.tell(m_game.controller().context().texts.text(
                "transfer.notRead", { { "file", name }, { "why", why } }));
        }
        if (const std::string noPuzzle = practice.open(*bytes); !noPuzzle.empty()) {
            practice.tell(name + ": " + noPuzzle);
        }
    }

    // The application's own loop has ended by now, and what is asked here still needs one to be
    // answered in.
    void terminate()
    {
        m_window.hide();
        m_sounds.stopLoop();
        if (const std::string words = m_game.controller().kept().lastWords(); !words.empty()) {
            showLastTrouble(m_window, QString::fromStdString(words));
        }
        QEventLoop lastQuestions;
        bool isDone = false;
        m_game.controller().applicationWillTerminate([&] {
            isDone = true;
            lastQuestions.quit();
        });
        if (!isDone) {
            lastQuestions.exec();
        }
    }

    // The box in which a failed save was told may be long gone.
    void tellWhatIsNotSaved()
    {
        if (const QString trouble = m_preferences.saveWhatFailed(); !trouble.isEmpty()) {
            tellAndWait(trouble);
        }
    }

    // Nothing is asked at such an end, and nothing more is trusted.
    void giveUp(const std::string& reason)
    {
        m_window.hide();
        m_sounds.stopLoop();
        const QString message = QCoreApplication::translate("Notices", "Veyrand cannot go on: %1.")
                                    .arg(QString::fromStdString(reason));
        QTextStream(stderr) << message << Qt::endl;
        tellAndWait(message);
    }

private:
    static platform::Preferences& withDefaults(platform::Preferences& preferences)
    {
        preferences.registerDefaults(progress::registeredDefaults());
        return preferences;
    }

    void tellWhatStaysEnglish()
    {
        if (const std::string& faults = m_game.texts().faults(); !faults.empty()) {
            showTrouble(m_window,
                QCoreApplication::translate("Notices", "Some texts are shown in English:")
                    + QLatin1Char('\n') + QString::fromStdString(faults).trimmed());
        }
    }

    [[nodiscard]] platform::Journal* journal()
    {
        return m_journal && !m_preferences.isHeldElsewhere() ? m_journal->journal() : nullptr;
    }

    void resized(platform::Size size)
    {
        m_game.controller().updateContentViewFrame(size);
        m_game.controller().windowDidResize();
    }

    void showSettings()
    {
        desktop::qt::showSettingsWindow({ .preferences = m_preferences,
                                            .clock = m_runLoop,
                                            .changed = [this] { m_game.settingsChanged(); },
                                            .playEffect =
                                                [this] {
                                                    m_game.controller().context().effects.play(
                                                        platform::Effect::Marble);
                                                } },
            m_window);
    }

    void savePlaceOfWindow()
    {
        savePlace(m_preferences,
            { .geometry = m_window.ownGeometry(),
                .zoomed = m_game.controller().fullScreen().staysZoomed() });
    }

    desktop::qt::QtRunLoop m_runLoop;
    desktop::qt::FilePreferences m_preferences;
    std::unique_ptr<desktop::posix::UserJournal> m_journal; // null when nothing is kept
    desktop::qt::QtFileExchange m_exchange;
    desktop::qt::OpenAlSounds m_sounds;
    desktop::qt::SystemRandom m_random;
    desktop::qt::FileResources m_resources;
    SystemInstallation m_installation;
    desktop::qt::QtQuit m_quit;
    desktop::qt::QtLog m_log;
    desktop::qt::SystemCalendar m_calendar;
    desktop::qt::SystemClipboard m_clipboard;
    platform::Pointer m_pointer;
    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images;
    desktop::qt::QtOverlayWindow m_overlay;
    std::unique_ptr<platform::MotionWish> m_motionWish;
    desktop::qt::QtWindow m_windowModes;
    desktop::qt::QtLanguage m_language;
    desktop::qt::GameMenu m_menu;
    progress::CurrentGame& m_currentGame;
    controller::Game m_game;
    desktop::qt::BoardWidget m_board;
    desktop::qt::BoardReader m_reader;
    MainWindow m_window;
    std::optional<controller::ReplayShow> m_show;
};

// What the game can be told of a file that holds a journal.
play::Recording recordingIn(const QString& file)
{
    desktop::posix::PosixDisk disk;
    auto contents = disk.read(file.toStdString(), platform::Journal::kMostBytes);
    if (!contents.bytes) {
        return { {}, contents.fault.empty() ? "there is no such file" : std::move(contents.fault) };
    }
    return play::readRecording(*contents.bytes);
}

} // namespace

int showJournal(const QString& dataFolder, const QString& file)
{
    play::Recording recording = recordingIn(file);
    if (!recording.fault.empty()) {
        QTextStream(stderr)
            << QStringLiteral("veyrand: %1: %2").arg(file, QString::fromStdString(recording.fault))
            << Qt::endl;
        return EXIT_FAILURE;
    }
    std::vector<play::Action> actions;
    for (play::JournalEntry& entry : recording.entries) {
        actions.push_back(std::move(entry.action));
    }
    // The player's settings, but a record of its own.
    const QTemporaryDir folder;
    const QString preferences = folder.filePath(QStringLiteral("preferences.json"));
    QFile::copy(desktop::qt::FilePreferences::usualFile(), preferences);
    Application application(dataFolder, preferences, Application::Games::Shown);
    if (const std::string fault = application.fault(); !fault.empty()) {
        QTextStream(stderr) << QString::fromStdString(fault) << Qt::endl;
        return EXIT_FAILURE;
    }
    application.show(QFileInfo(file).fileName(), std::move(actions));
    const int status = GuardedApplication::failure() ? EXIT_FAILURE : QApplication::exec();
    if (const auto reason = GuardedApplication::failure()) {
        application.giveUp(*reason);
    }
    return status;
}

int runGame(const QString& dataFolder, const std::string& puzzle)
{
    Application application(
        dataFolder, desktop::qt::FilePreferences::usualFile(), Application::Games::Kept);
    if (const std::string fault = application.fault(); !fault.empty()) {
        const QString message = QStringLiteral("The game cannot be played: %1/%2")
                                    .arg(dataFolder, QString::fromStdString(fault).trimmed());
        QTextStream(stderr) << message << Qt::endl;
        tellAndWait(message);
        return 1;
    }
    application.show();
    if (!puzzle.empty()) {
        application.open(puzzle);
    }
    const int status = GuardedApplication::failure() ? EXIT_FAILURE : QApplication::exec();
    if (const auto reason = GuardedApplication::failure()) {
        application.giveUp(*reason);
        return status;
    }
    application.terminate();
    application.tellWhatIsNotSaved();
    return status;
}

} // namespace veyrand::app
