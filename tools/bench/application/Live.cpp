#include "Live.h"

#include "controller/Game.h"
#include "desktop/qt/BoardWidget.h"
#include "desktop/qt/DataFolder.h"
#include "desktop/qt/OpenAlSounds.h"
#include "desktop/qt/QtRunLoop.h"
#include "platform/MemoryPreferences.h"
#include "platform/fakes/MemoryWindow.h"
#include "platform/fakes/NotedAlerts.h"
#include "platform/fakes/NotedLog.h"
#include "platform/fakes/NotedOverlay.h"
#include "platform/fakes/NotedQuit.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/PlayerKeys.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <cmath>
#include <stdexcept>
#include <utility>

namespace veyrand::bench {

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

// A game in its widget, with the clock, the window system and the sounds of the real one. Nothing
// is saved.
class LiveGame final : public QObject {
public:
    LiveGame(const QString& dataFolder, double rate)
        : m_sounds(dataFolder + QStringLiteral("/sounds"))
        , m_resources(dataFolder)
        , m_images(dataFolder + QStringLiteral("/images"), m_font)
        , m_currentGame(m_preferences, m_random, m_resources)
        , m_gameData({ .width = kWidth, .height = kHeight })
        , m_game({ .runLoop = m_runLoop,
                     .preferences = m_preferences,
                     .resources = m_resources,
                     .sounds = m_sounds,
                     .pointer = m_pointer,
                     .textMetrics = m_font,
                     .log = m_log,
                     .quit = m_quit,
                     .overlay = m_overlay,
                     .window = m_window,
                     .alerts = m_alerts },
              m_currentGame, m_gameData)
        , m_board({ .layers = m_game.layers(),
              .view = m_game.view(),
              .pointer = m_pointer,
              .images = m_images,
              .resized =
                  [this](platform::Size size) {
                      m_game.controller().updateContentViewFrame(size);
                      m_game.controller().windowDidResize();
                  },
              .cursor = [this] { return m_game.controller().answers().cursor(); },
              .refreshRate
              = [this, rate] { return rate > 0.0 ? rate : m_board.screen()->refreshRate(); } })
    {
        m_preferences.registerDefaults(progress::registeredDefaults());
        m_board.installEventFilter(this);
        m_board.setGeometry(0, 0, kWidth, kHeight);
        m_board.show();
        m_game.controller().awake({ .width = kWidth, .height = kHeight });
        m_sounds.startLoop(platform::kMusic, 1.0);
        constexpr double kEverythingIsThere = 2.0;
        wait(kEverythingIsThere);
        if (!m_board.windowHandle()->isExposed()) {
            throw std::runtime_error("the window was never shown, so nothing can be measured");
        }
    }

    void play(const char* root)
    {
        m_currentGame.loadPlayer(progress::currentPlayer(m_preferences), progress::Mode::Classic);
        m_currentGame.placePuzzle({ .root = root, .goal = "YB", .par = 2, .level = 6, .stage = 2 });
        m_game.controller().flow().layOutPuzzle();
        wait(1.0);
    }

    static void wait(double seconds)
    {
        QEventLoop loop;
        QTimer::singleShot(
            static_cast<int>(seconds * 1e3), Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    }

    void send(QEvent::Type type, const char* key)
    {
        const QPointF place = placeOf(key);
        const bool isMove = type == QEvent::MouseMove;
        const bool isHeld = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, place, m_board.mapToGlobal(place),
            isMove ? Qt::NoButton : Qt::LeftButton, isHeld ? Qt::LeftButton : Qt::NoButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(&m_board, &event);
    }

    // When the frames since the last call came, in seconds.
    std::vector<double> takeFrames() { return std::exchange(m_frames, {}); }

    // The stone and what lies round it, as the window system has it.
    [[nodiscard]] QImage pixelsRound(const char* key) const
    {
        constexpr int kReach = 40;
        const QPoint place = placeOf(key).toPoint();
        return m_board.screen()
            ->grabWindow(
                m_board.winId(), place.x() - kReach, place.y() - kReach, 2 * kReach, 2 * kReach)
            .toImage();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            m_frames.push_back(m_runLoop.now());
        }
        return QObject::eventFilter(watched, event);
    }

private:
    [[nodiscard]] QPointF placeOf(const char* key) const
    {
        const auto record = m_gameData.gameObjects().objectForKey(key);
        if (!record) {
            throw std::runtime_error(std::string("there is no ") + key);
        }
        const platform::RectF area = m_game.layers().backgroundLayer().rectInRoot();
        const auto scale = static_cast<double>(area.height);
        return { static_cast<double>(area.x) + record->x() * scale,
            m_board.height() - static_cast<double>(area.y) - record->y() * scale };
    }

    desktop::qt::QtRunLoop m_runLoop;
    platform::MemoryPreferences m_preferences;
    desktop::qt::OpenAlSounds m_sounds;
    platform::SeededRandom m_random { 1 };
    desktop::qt::FileResources m_resources;
    platform::NotedLog m_log;
    platform::NotedAlerts m_alerts;
    platform::NotedQuit m_quit;
    platform::NotedOverlay m_overlay;
    platform::MemoryWindow m_window;
    platform::Pointer m_pointer;
    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images;
    progress::CurrentGame m_currentGame;
    board::GameData m_gameData;
    mutable controller::Game m_game;
    desktop::qt::BoardWidget m_board;
    std::vector<double> m_frames;
};

} // namespace

std::vector<double> measureFrameIntervals(const QString& dataFolder, double rate)
{
    constexpr int kSlides = 12;
    constexpr double kSlide = 0.75; // s, and not the frames at its end
    constexpr double kBegun = 0.05; // the first frames belong to the press
    LiveGame game(dataFolder, rate);
    std::vector<double> intervals;
    for (int slide = 0; slide < kSlides; ++slide) {
        game.play("YGRGRGRGRGR");
        game.send(QEvent::MouseMove, "chip-10-0");
        LiveGame::wait(0.5);
        game.send(QEvent::MouseButtonPress, "chip-10-0");
        game.send(QEvent::MouseButtonRelease, "chip-10-0");
        LiveGame::wait(kBegun);
        game.takeFrames();
        LiveGame::wait(kSlide - 2 * kBegun);
        const std::vector<double> frames = game.takeFrames();
        for (std::size_t i = 1; i < frames.size(); ++i) {
            intervals.push_back((frames[i] - frames[i - 1]) * 1e3);
        }
        LiveGame::wait(1.5);
    }
    if (intervals.empty()) {
        throw std::runtime_error("a sliding line was to be measured and nothing was painted");
    }
    return intervals;
}

std::vector<double> measureAnswerTimes(const QString& dataFolder)
{
    constexpr int kPresses = 40;
    constexpr double kPatience = 1e3; // ms
    LiveGame game(dataFolder, 0.0);
    game.play("YRGR");
    std::vector<double> times;
    for (int press = 0; press < kPresses; ++press) {
        game.send(QEvent::MouseMove, "chip-2-0");
        LiveGame::wait(1.0);
        const QImage before = game.pixelsRound("chip-2-0");
        QElapsedTimer timer;
        timer.start();
        game.send(QEvent::MouseButtonPress, "chip-2-0");
        double elapsed = 0.0;
        do {
            QCoreApplication::processEvents();
            elapsed = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        } while (game.pixelsRound("chip-2-0") == before && elapsed < kPatience);
        if (elapsed >= kPatience) {
            throw std::runtime_error("a press was to be answered and no pixel changed");
        }
        times.push_back(elapsed);
        game.send(QEvent::MouseButtonRelease, "chip-2-0"); // and is refused
        LiveGame::wait(1.0);
    }
    return times;
}

} // namespace veyrand::bench
