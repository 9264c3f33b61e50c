#include "app/Application.h"

#include "app/AboutBox.h"
#include "app/InstallOffer.h"
#include "app/MainWindow.h"
#include "app/Notices.h"
#include "app/PressKey.h"
#include "app/SystemInstallation.h"
#include "app/UncaughtGuard.h"
#include "app/WaitingBox.h"
#include "controller/Game.h"
#include "desktop/posix/UserJournal.h"
#include "desktop/qt/DataFolder.h"
#include "desktop/qt/FilePreferences.h"
#include "desktop/qt/Logging.h"
#include "desktop/qt/OpenAlSounds.h"
#include "desktop/qt/QtOverlayWindow.h"
#include "desktop/qt/QtRunLoop.h"
#include "desktop/qt/QtWindow.h"
#include "desktop/qt/SystemPorts.h"
#include "progress/Misunderstood.h"
#include "progress/PlayerKeys.h"

#include <QApplication>
#include <QEventLoop>
#include <QTextStream>

namespace veyrand::app {

namespace {

// The real ports and the one game on them, in the order in which they need each other.
class Application {
public:
    explicit Application(const QString& dataFolder)
        : m_preferences(desktop::qt::FilePreferences::usualFile(), progress::misunderstood)
        , m_sounds(dataFolder + QStringLiteral("/sounds"))
        , m_resources(dataFolder)
        , m_installation(m_preferences)
        , m_images(dataFolder + QStringLiteral("/images"), m_font)
        , m_overlay(m_images)
        , m_menu(withDefaults(m_preferences))
        , m_currentGame(progress::CurrentGame::sharedInstance(m_preferences, m_random, m_resources))
        , m_game({ .runLoop = m_runLoop,
                     .preferences = m_preferences,
                     .resources = m_resources,
                     .sounds = m_sounds,
                     .pointer = m_pointer,
                     .textMetrics = m_font,
                     .menu = m_menu,
                     .log = m_log,
                     .quit = m_quit,
                     .overlay = m_overlay,
                     .window = m_windowModes,
                     .alerts = m_installation.installation().alerts,
                     .offerInstallation =
                         [this](std::function<void()> done) {
                             offerInstallation(m_installation.installation(), std::move(done));
                         },
                     .journal = m_preferences.isHeldElsewhere() ? nullptr : m_journal.journal() },
              m_currentGame, board::GameData::sharedGameData(m_screen))
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
        , m_window(m_menu, m_board)
    {
        m_overlay.setMainWindow(m_window);
        m_windowModes.setMainWindow(m_window);
        m_window.setClosingListener([this] { savePlaceOfWindow(); });
        m_menu.connectTo(m_game.controller(), [this](controller::MenuItemId id) {
            if (id == controller::MenuItemId::About) {
                showAboutBox(m_window);
            }
        });
    }

    // What keeps the game from being played; empty when nothing does.
    [[nodiscard]] std::string fault() const
    {
        return m_currentGame.catalogueErrors() + m_game.script().errors;
    }

    void show()
    {
        m_window.open(savedPlace(m_preferences));
        m_game.controller().awake({ .width = static_cast<double>(m_board.width()),
            .height = static_cast<double>(m_board.height()) });
        if (m_preferences.isHeldElsewhere()) {
            askAboutSecondCopy(m_window, [this] { m_quit.terminate(); });
        }
        m_preferences.setReporter(
            [this](const QString& message) { showTrouble(m_window, message); });
        m_game.controller().kept().setReporter([this](const std::string& message) {
            showTrouble(m_window, QString::fromStdString(message));
        });
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
        const QString message
            = QStringLiteral("Veyrand cannot go on: %1.").arg(QString::fromStdString(reason));
        QTextStream(stderr) << message << Qt::endl;
        tellAndWait(message);
    }

private:
    static platform::Preferences& withDefaults(platform::Preferences& preferences)
    {
        preferences.registerDefaults(progress::registeredDefaults());
        return preferences;
    }

    void resized(platform::Size size)
    {
        m_game.controller().updateContentViewFrame(size);
        m_game.controller().windowDidResize();
    }

    void savePlaceOfWindow()
    {
        savePlace(m_preferences,
            { .geometry = m_window.ownGeometry(),
                .zoomed = m_game.controller().fullScreen().staysZoomed() });
    }

    desktop::qt::QtRunLoop m_runLoop;
    desktop::qt::FilePreferences m_preferences;
    desktop::posix::UserJournal m_journal;
    desktop::qt::OpenAlSounds m_sounds;
    desktop::qt::SystemRandom m_random;
    desktop::qt::FileResources m_resources;
    SystemInstallation m_installation;
    desktop::qt::MainScreen m_screen;
    desktop::qt::QtQuit m_quit;
    desktop::qt::QtLog m_log;
    platform::TrackedPointer m_pointer;
    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images;
    desktop::qt::QtOverlayWindow m_overlay;
    desktop::qt::QtWindow m_windowModes;
    desktop::qt::GameMenu m_menu;
    progress::CurrentGame& m_currentGame;
    controller::Game m_game;
    desktop::qt::BoardWidget m_board;
    MainWindow m_window;
};

} // namespace

int runGame(const QString& dataFolder)
{
    Application application(dataFolder);
    if (const std::string fault = application.fault(); !fault.empty()) {
        const QString message = QStringLiteral("The game cannot be played: %1/%2")
                                    .arg(dataFolder, QString::fromStdString(fault).trimmed());
        QTextStream(stderr) << message << Qt::endl;
        tellAndWait(message);
        return 1;
    }
    application.show();
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
