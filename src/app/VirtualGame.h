#pragma once

#include "app/VirtualInstallation.h"
#include "app/Words.h"
#include "desktop/qt/BoardWidget.h"
#include "desktop/qt/DataFolder.h"
#include "desktop/qt/GameMenu.h"
#include "headless/HeadlessGame.h"

#include <QEvent>
#include <QEventPoint>
#include <QPointingDevice>
#include <QString>

#include <memory>

namespace veyrand::app {

// A headless game and its real window content, off the screen: real mouse and key events go in, and
// pictures come out. Demonstrations, scenarios and the tests of what is seen play on it. Nothing is
// shared between two of them.
class VirtualGame {
public:
    struct Options {
        platform::Size screen { .width = 1440, .height = 900 };
        QSize window { 1440, 900 };
        std::uint32_t seed = 1;
        platform::Preferences::Contents preferences {}; // over the registered defaults
        platform::Preferences* store = nullptr; // outlives the game; null for one in memory
        platform::Journal* journal = nullptr; // outlives the game; null: nothing is kept
        QString dataFolder {};
        QString languagesFolder {}; // empty: the one among the data
    };

    explicit VirtualGame(const Options& options);

    // Shows the title page, as a launch does.
    void launch();
    // Loads the record as a start would, then puts the puzzle on the board as if the catalogue had
    // given it, with no greeting and no music.
    void play(const progress::CurrentGame::Puzzle& puzzle) { m_headless.play(puzzle); }
    void wait(double seconds) { m_headless.wait(seconds); }

    // The left button and the pointer; places are in game heights, origin at the board's lower
    // left. While the button is held the pointer moves in small steps. None of this takes virtual
    // time.
    void move(platform::Point place);
    void press(platform::Point place, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void release(platform::Point place);
    void click(platform::Point place);
    // One finger. A long press takes as long as it takes; nothing else takes virtual time.
    void touch(platform::Point place);
    void touchDrag(platform::Point from, platform::Point to);
    void longPress(platform::Point place);
    void rightClick(platform::Point place);
    void key(const QString& sequence);
    void resize(QSize size);

    // The centre of the element under the key; nothing when there is none.
    [[nodiscard]] std::optional<platform::Point> centreOf(const std::string& key)
    {
        return m_headless.centreOf(key);
    }
    // What the widget shows now, painted in full.
    [[nodiscard]] QImage picture();

    [[nodiscard]] headless::HeadlessGame& headless() { return m_headless; }
    [[nodiscard]] controller::Game& game() { return m_headless.game(); }
    [[nodiscard]] controller::GameController& controller() { return m_headless.controller(); }
    [[nodiscard]] progress::CurrentGame& currentGame() { return m_headless.currentGame(); }
    [[nodiscard]] board::GameData& gameData() { return m_headless.gameData(); }
    [[nodiscard]] desktop::qt::BoardWidget& widget() { return *m_widget; }
    [[nodiscard]] const desktop::qt::ImageStore& images() const { return m_images; }
    [[nodiscard]] desktop::qt::GameMenu& menu() { return m_menu; }
    [[nodiscard]] platform::VirtualRunLoop& runLoop() { return m_headless.runLoop(); }
    [[nodiscard]] platform::Preferences& preferences() { return m_preferences; }
    [[nodiscard]] platform::RecordedSounds& sounds() { return m_headless.sounds(); }
    [[nodiscard]] const platform::NotedQuit& quit() const { return m_headless.quit(); }
    [[nodiscard]] const platform::NotedLog& log() const { return m_headless.log(); }
    [[nodiscard]] VirtualInstallation& installation() { return m_installation; }
    [[nodiscard]] const platform::NotedOverlay& overlay() const { return m_headless.overlay(); }
    [[nodiscard]] platform::MemoryWindow& window() { return m_headless.window(); }
    // How often the box about the program would have been shown.
    [[nodiscard]] int timesAbout() const { return m_timesAbout; }

private:
    [[nodiscard]] QPointF toWidget(platform::Point place);
    void sendTouch(QEventPoint::State state, platform::Point place);
    void sendMouse(QEvent::Type type, platform::Point place, Qt::MouseButton button);

    platform::MemoryPreferences m_memory;
    platform::Preferences& m_preferences;
    desktop::qt::FileResources m_resources;
    desktop::qt::GameFont m_font;
    desktop::qt::ImageStore m_images;
    desktop::qt::QtLanguage m_language;
    desktop::qt::GameMenu m_menu;
    VirtualInstallation m_installation;
    headless::HeadlessGame m_headless;
    QPointingDevice m_touchScreen { QStringLiteral("touch screen"), 1,
        QInputDevice::DeviceType::TouchScreen, QPointingDevice::PointerType::Finger,
        QInputDevice::Capability::Position, 1, 0 };
    std::unique_ptr<desktop::qt::BoardWidget> m_widget;
    platform::Point m_place;
    Qt::MouseButtons m_held;
    Qt::KeyboardModifiers m_modifiers;
    int m_timesAbout = 0;
};

} // namespace veyrand::app
