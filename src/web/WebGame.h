#pragma once

#include "controller/Game.h"
#include "controller/MenuChoices.h"
#include "web/WebExchange.h"
#include "web/WebPorts.h"
#include "web/WebPreferences.h"
#include "web/WebReader.h"
#include "web/WebRunLoop.h"
#include "web/WebStore.h"
#include "web/WebView.h"

#include <memory>
#include <string>

namespace veyrand::web {

// The real ports of a page and the one game on them. The page fills the store and the resources,
// then starts the game and hands on whatever happens.
class WebGame {
public:
    WebGame();

    [[nodiscard]] WebStore& store() { return m_store; }
    [[nodiscard]] WebResources& resources() { return m_resources; }
    [[nodiscard]] WebRunLoop& runLoop() { return m_runLoop; }
    // Points, however the device is held.
    void setScreen(platform::Size size) { m_screen = size; }
    [[nodiscard]] WebAlerts& alerts() { return m_alerts; }
    [[nodiscard]] WebWindow& window() { return m_window; }
    [[nodiscard]] WebExchange& exchange() { return m_exchange; }
    [[nodiscard]] WebReader* reader()
    {
        return m_parts ? &m_parts->reader : nullptr;
    } // as the view
    [[nodiscard]] WebClipboard& clipboard() { return m_clipboard; }
    [[nodiscard]] WebMotionWish& motionWish() { return m_motionWish; }
    // As the browser lists them, the dearest first.
    void addLanguage(std::string code) { m_languages.push_back(std::move(code)); }

    // Shows the title page in a view of the size (points). What keeps the game from being played,
    // in words; empty when nothing does.
    [[nodiscard]] std::string start(platform::Size view);
    [[nodiscard]] WebView* view() { return m_parts ? &m_parts->view : nullptr; } // null: not begun
    [[nodiscard]] controller::GameController* controller();

    // The menu as it stands now, for the page's bar: JSON.
    [[nodiscard]] std::string menu();
    // By the number that menu() gives.
    void choose(std::size_t item);
    // The settings and the words round them, for the page's panel: JSON.
    [[nodiscard]] std::string settings() const;
    // By the number that settings() gives; kept and in force at once.
    void set(std::size_t setting, int value);
    void resetSettings();
    // The puzzle of a code that somebody has sent; the player is asked before one in play is left.
    void open(const std::string& puzzleCode);
    // Keys as the menu spells them, "Ctrl+Z": true if the menu or the board has a use for them.
    bool key(const std::string& keys, controller::GameController::Press press);
    // For whoever looks at the page from outside: where the element under the key lies, in points
    // from the upper left corner, or null; and how the game stands. JSON.
    [[nodiscard]] std::string placeOf(const std::string& key);
    [[nodiscard]] std::string state();
    // The page was brought into full screen, or out of it, by something else.
    void fullScreenChanged(bool on);

private:
    // What needs the resources.
    struct Parts {
        explicit Parts(WebGame& game);

        progress::CurrentGame currentGame;
        board::GameData gameData;
        controller::Game game;
        WebView view;
        WebReader reader;
    };

    WebRunLoop m_runLoop;
    WebStore m_store;
    WebPreferences m_preferences;
    WebSounds m_sounds;
    WebRandom m_random;
    WebResources m_resources;
    platform::Size m_screen { .width = 1440.0, .height = 900.0 };
    WebQuit m_quit;
    WebLog m_log;
    platform::Pointer m_pointer;
    WebTextMetrics m_metrics;
    WebOverlayWindow m_overlay;
    WebCalendar m_calendar;
    WebClipboard m_clipboard;
    WebMotionWish m_motionWish;
    WebWindow m_window;
    WebAlerts m_alerts;
    WebExchange m_exchange;
    controller::MenuChoices m_menu;
    std::vector<std::string> m_languages;
    std::unique_ptr<Parts> m_parts;
};

} // namespace veyrand::web
