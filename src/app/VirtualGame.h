#pragma once

#include "app/VirtualInstallation.h"
#include "controller/Game.h"
#include "platform/Log.h"
#include "platform/MemoryWindow.h"
#include "platform/SeededRandom.h"
#include "platform/VirtualRunLoop.h"
#include "platform/qt/BoardWidget.h"
#include "platform/qt/DataFolder.h"
#include "platform/qt/GameMenu.h"

#include <QEvent>
#include <QString>

#include <map>
#include <memory>
#include <set>
#include <vector>

namespace veyrand::app {

// Sounds that are written down instead of played.
class RecordedSounds final : public platform::Sounds {
public:
    struct Loop {
        std::string name;
        double volume = 0.0;
    };

    void play(std::string_view name) override { m_played.emplace_back(name); }
    void startLoop(std::string_view name, double volume) override;
    void setLoopVolume(double volume) override;
    void stopLoop() override { m_loop.reset(); }

    // The effects played since this was last asked.
    std::vector<std::string> takePlayed();
    [[nodiscard]] const std::optional<Loop>& loop() const { return m_loop; }
    // How often a loop was started, from its beginning each time.
    [[nodiscard]] int loopsStarted() const { return m_loopsStarted; }

private:
    std::vector<std::string> m_played;
    std::optional<Loop> m_loop;
    int m_loopsStarted = 0;
};

class FixedScreen final : public platform::Screen {
public:
    explicit FixedScreen(platform::Size size)
        : m_size(size)
    {
    }
    [[nodiscard]] platform::Size mainScreenSize() const override { return m_size; }

private:
    platform::Size m_size;
};

class NotedQuit final : public platform::Quit {
public:
    void terminate() override { m_terminated = true; }
    [[nodiscard]] bool terminated() const { return m_terminated; }

private:
    bool m_terminated = false;
};

class NotedOverlay final : public platform::OverlayWindow {
public:
    struct Opened {
        platform::RectF frame;
        std::string imageName;
    };

    void open(const platform::RectF& frame, std::string_view imageName) override
    {
        m_opened = Opened { frame, std::string(imageName) };
    }
    [[nodiscard]] const std::optional<Opened>& opened() const { return m_opened; }

private:
    std::optional<Opened> m_opened;
};

class NotedLog final : public platform::Log {
public:
    void write(std::string_view line) override { m_lines.emplace_back(line); }
    [[nodiscard]] const std::vector<std::string>& lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
};

// A whole game with its real window content, off the screen and in virtual time: real mouse and key
// events go in, and only wait() moves the clock. Demonstrations, scenarios and tests play on it.
// Nothing is shared between two of them.
class VirtualGame {
public:
    struct Options {
        platform::Size screen { .width = 1440, .height = 900 };
        QSize window { 1440, 900 };
        std::uint32_t seed = 1;
        platform::Preferences::Contents preferences {}; // over the registered defaults
        platform::Preferences* store = nullptr; // outlives the game; null for one in memory
        QString dataFolder {};
    };

    explicit VirtualGame(const Options& options);

    // Shows the title page, as a launch does.
    void launch();
    // Loads the record as a start would, then puts the puzzle on the board as if the catalogue had
    // given it, with no greeting and no music.
    void play(const progress::CurrentGame::Puzzle& puzzle);
    void wait(double seconds) { m_runLoop.advance(seconds); }

    // The left button and the pointer; places are in game heights, origin at the board's lower
    // left. While the button is held the pointer moves in small steps. None of this takes virtual
    // time.
    void move(platform::Point place);
    void press(platform::Point place, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void release(platform::Point place);
    void click(platform::Point place);
    void key(const QString& sequence);
    void resize(QSize size);

    // The centre of the element under the key; nothing when there is none.
    [[nodiscard]] std::optional<platform::Point> centreOf(const std::string& key);
    // What the widget shows now, painted in full.
    [[nodiscard]] QImage picture();

    [[nodiscard]] controller::Game& game() { return *m_game; }
    [[nodiscard]] controller::GameController& controller() { return m_game->controller(); }
    [[nodiscard]] progress::CurrentGame& currentGame() { return m_currentGame; }
    [[nodiscard]] board::GameData& gameData() { return m_gameData; }
    [[nodiscard]] platform::qt::BoardWidget& widget() { return *m_widget; }
    [[nodiscard]] platform::qt::GameMenu& menu() { return m_menu; }
    [[nodiscard]] platform::VirtualRunLoop& runLoop() { return m_runLoop; }
    [[nodiscard]] platform::Preferences& preferences() { return m_preferences; }
    [[nodiscard]] RecordedSounds& sounds() { return m_sounds; }
    [[nodiscard]] const NotedQuit& quit() const { return m_quit; }
    [[nodiscard]] const NotedLog& log() const { return m_log; }
    [[nodiscard]] VirtualInstallation& installation() { return m_installation; }
    [[nodiscard]] const NotedOverlay& overlay() const { return m_overlay; }
    [[nodiscard]] platform::MemoryWindow& window() { return m_window; }
    // How often the box about the program would have been shown.
    [[nodiscard]] int timesAbout() const { return m_timesAbout; }

private:
    [[nodiscard]] QPointF toWidget(platform::Point place);
    void sendMouse(QEvent::Type type, platform::Point place, Qt::MouseButton button);

    platform::VirtualRunLoop m_runLoop;
    platform::MemoryPreferences m_memory;
    platform::Preferences& m_preferences;
    platform::SeededRandom m_random;
    platform::qt::FileResources m_resources;
    FixedScreen m_screen;
    RecordedSounds m_sounds;
    NotedQuit m_quit;
    NotedLog m_log;
    NotedOverlay m_overlay;
    platform::MemoryWindow m_window;
    VirtualInstallation m_installation;
    platform::TrackedPointer m_pointer;
    platform::qt::GameFont m_font;
    platform::qt::ImageStore m_images;
    platform::qt::GameMenu m_menu;
    progress::CurrentGame m_currentGame;
    board::GameData m_gameData;
    std::unique_ptr<controller::Game> m_game;
    std::unique_ptr<platform::qt::BoardWidget> m_widget;
    platform::Point m_place;
    Qt::MouseButtons m_held;
    Qt::KeyboardModifiers m_modifiers;
    int m_timesAbout = 0;
};

} // namespace veyrand::app
