#pragma once

#include "controller/Game.h"
#include "headless/EvenLetters.h"
#include "headless/HeadlessMenu.h"
#include "input/Touch.h"
#include "platform/MemoryPreferences.h"
#include "platform/Pointer.h"
#include "platform/fakes/FixedCalendar.h"
#include "platform/fakes/MemoryClipboard.h"
#include "platform/fakes/MemoryExchange.h"
#include "platform/fakes/MemoryWindow.h"
#include "platform/fakes/NotedAlerts.h"
#include "platform/fakes/NotedLog.h"
#include "platform/fakes/NotedOverlay.h"
#include "platform/fakes/NotedQuit.h"
#include "platform/fakes/RecordedSounds.h"
#include "platform/fakes/SeededRandom.h"
#include "platform/fakes/VirtualRunLoop.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::headless {

// Registers the game's defaults, then writes the contents over them.
platform::Preferences& prepared(
    platform::Preferences& preferences, const platform::Preferences::Contents& contents);

// A whole game without a toolkit, in virtual time: presses, moves and keys go in, and only wait()
// moves the clock. Robots, tests, fuzzers and other front ends play on it. It never reads a file:
// whoever makes it hands in the data. Nothing is shared between two of them.
class HeadlessGame {
public:
    struct Options {
        platform::Size screen { .width = 1440, .height = 900 };
        platform::Size view { .width = 1440, .height = 900 }; // points
        std::uint32_t seed = 1;
        platform::Preferences::Contents preferences {}; // over the registered defaults
        platform::Preferences* store = nullptr; // outlives the game; null for one in memory
        const platform::Resources* resources = nullptr; // outlives the game; null: there are none
        const platform::TextMetrics* textMetrics = nullptr; // null for letters of one width
        platform::NotedAlerts* alerts = nullptr; // outlives the game; null for those below
        std::function<void(std::function<void()>)> offerInstallation {}; // see GameContext
        platform::Journal* journal = nullptr; // outlives the game; null: nothing is kept
        platform::MotionWish* motionWish = nullptr; // outlives the game; null: the desktop has none
        std::int64_t today = kUsualDay; // see Calendar
    };
    static constexpr std::int64_t kUsualDay = 20'778; // 21 November 2026, a Saturday
    enum class Modifier { None, Held };

    explicit HeadlessGame(const Options& options);
    HeadlessGame(const HeadlessGame&) = delete;
    HeadlessGame& operator=(const HeadlessGame&) = delete;
    ~HeadlessGame() = default;

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
    void press(platform::Point place, Modifier modifier = Modifier::None);
    void release(platform::Point place);
    void click(platform::Point place);
    // The pointer leaves the view.
    void leave();
    // The release of a press will not come.
    void cancelGesture() { m_game.view().cancelGesture(); }
    // One finger. A long press takes as long as it takes.
    void touch(platform::Point place);
    void touchDrag(platform::Point from, platform::Point to);
    void longPress(platform::Point place);
    void rightClick(platform::Point place);
    // Chooses the menu item under the keys, or else does what they do on the board.
    void key(std::string_view keys);
    // What is spoken from now on is kept, for whoever takes it.
    void listen();
    [[nodiscard]] std::vector<std::string> takeAnnouncements();
    // The view gets another size (points), under a pointer that rests.
    void resize(platform::Size size);
    // Whoever shows the view does the resizing: full screen and zoom then call this instead.
    void setResizer(std::function<void(platform::Size)> resizer) { m_resizer = std::move(resizer); }

    // The centre of the element under the key; nothing when there is none.
    [[nodiscard]] std::optional<platform::Point> centreOf(const std::string& key);
    [[nodiscard]] platform::Size viewSize() const { return m_viewSize; }

    [[nodiscard]] controller::Game& game() { return m_game; }
    [[nodiscard]] controller::GameController& controller() { return m_game.controller(); }
    [[nodiscard]] progress::CurrentGame& currentGame() { return m_currentGame; }
    [[nodiscard]] board::GameData& gameData() { return m_gameData; }
    [[nodiscard]] HeadlessMenu& menu() { return m_menu; }
    [[nodiscard]] platform::VirtualRunLoop& runLoop() { return m_runLoop; }
    [[nodiscard]] platform::Preferences& preferences() { return m_preferences; }
    [[nodiscard]] platform::RecordedSounds& sounds() { return m_sounds; }
    [[nodiscard]] platform::Pointer& pointer() { return m_pointer; }
    [[nodiscard]] const platform::NotedQuit& quit() const { return m_quit; }
    [[nodiscard]] const platform::NotedLog& log() const { return m_log; }
    [[nodiscard]] const platform::NotedOverlay& overlay() const { return m_overlay; }
    [[nodiscard]] platform::MemoryWindow& window() { return m_window; }
    [[nodiscard]] platform::FixedCalendar& calendar() { return m_calendar; }
    [[nodiscard]] platform::MemoryClipboard& clipboard() { return m_clipboard; }
    [[nodiscard]] platform::MemoryExchange& exchange() { return m_exchange; }
    [[nodiscard]] platform::NotedAlerts& alerts() { return m_alerts; }

private:
    [[nodiscard]] platform::Point inView(platform::Point place);
    input::MouseEvent moveTo(platform::Point place);

    platform::VirtualRunLoop m_runLoop;
    platform::MemoryPreferences m_memory;
    platform::Preferences& m_preferences;
    platform::SeededRandom m_random;
    const platform::Resources& m_resources;
    platform::RecordedSounds m_sounds;
    platform::NotedQuit m_quit;
    platform::NotedLog m_log;
    platform::NotedOverlay m_overlay;
    platform::MemoryWindow m_window;
    platform::FixedCalendar m_calendar;
    platform::MemoryClipboard m_clipboard;
    platform::MemoryExchange m_exchange;
    platform::NotedAlerts m_ownAlerts;
    platform::NotedAlerts& m_alerts;
    platform::Pointer m_pointer;
    EvenLetters m_letters;
    HeadlessMenu m_menu;
    progress::CurrentGame m_currentGame;
    board::GameData m_gameData;
    controller::Game m_game;
    input::Touch m_touch;
    std::function<void(platform::Size)> m_resizer;
    platform::Size m_viewSize;
    platform::Point m_place;
    std::vector<std::string> m_announced;
    bool m_held = false;
    Modifier m_modifier = Modifier::None;
};

} // namespace veyrand::headless
