#include "web/WebGame.h"

#include "controller/SettingsTable.h"
#include "language/Json.h"
#include "progress/PlayerKeys.h"
#include "web/Host.h"
#include "web/SettingsPanel.h"

#include <algorithm>

namespace veyrand::web {

namespace {

using controller::MenuItem;
using controller::MenuItemId;
using language::Json;

// What the page does by itself.
void leaveToPage(MenuItemId id)
{
    if (id == MenuItemId::About) {
        veyrand_host_menu("about");
    } else if (id == MenuItemId::Settings) {
        veyrand_host_menu("settings");
    }
}

const char* kindOf(const MenuItem& item)
{
    switch (item.kind) {
    case MenuItem::Kind::Switch:
        return "switch";
    case MenuItem::Kind::Separator:
        return "separator";
    case MenuItem::Kind::Command:
    case MenuItem::Kind::Hidden:
        break;
    }
    return "command";
}

// How a device is held changes while the game is played.
platform::Size lying(platform::Size screen)
{
    return { .width = std::max(screen.width, screen.height),
        .height = std::min(screen.width, screen.height) };
}

} // namespace

WebGame::Parts::Parts(WebGame& own)
    : currentGame(own.m_preferences, own.m_random, own.m_resources)
    , gameData(lying(own.m_screen))
    , game({ .runLoop = own.m_runLoop,
               .preferences = own.m_preferences,
               .resources = own.m_resources,
               .sounds = own.m_sounds,
               .pointer = own.m_pointer,
               .textMetrics = own.m_metrics,
               .log = own.m_log,
               .quit = own.m_quit,
               .overlay = own.m_overlay,
               .window = own.m_window,
               .alerts = own.m_alerts,
               .journal = &own.m_store,
               .desktopLanguages = own.m_languages,
               .motionWish = &own.m_motionWish,
               .calendar = &own.m_calendar,
               .clipboard = &own.m_clipboard,
               .exchange = &own.m_exchange },
          currentGame, gameData)
    , view(game, own.m_pointer)
    , reader(game, own.m_runLoop)
{
}

WebGame::WebGame()
    : m_preferences(m_store)
    , m_menu(m_preferences)
{
    m_preferences.registerDefaults(progress::registeredDefaults());
}

std::string WebGame::start(platform::Size view)
{
    const std::string aside = m_preferences.load();
    m_parts = std::make_unique<Parts>(*this);
    const std::string fault = m_parts->currentGame.catalogueErrors() + m_parts->game.script().errors
        + m_parts->game.texts().englishFaults();
    if (!fault.empty()) {
        m_parts.reset();
        return fault;
    }
    m_menu.connectTo(*controller(), leaveToPage);
    m_parts->game.setLanguageListener([this](const language::Texts& texts) {
        veyrand_host_language(texts.code().c_str());
        m_parts->view.forgetPainted();
    });
    veyrand_host_language(m_parts->game.texts().code().c_str());
    m_parts->view.setFrameListener([this] {
        m_parts->reader.setViewHeight(m_parts->view.size().height);
        m_parts->reader.look();
    });
    m_parts->view.resize(view);
    controller()->awake(view);
    controller()->kept().setReporter(
        [](const std::string& message) { veyrand_host_report(message.c_str()); });
    if (!aside.empty()) {
        veyrand_host_damaged(aside.c_str());
    }
    return {};
}

controller::GameController* WebGame::controller()
{
    return m_parts ? &m_parts->game.controller() : nullptr;
}

std::string WebGame::menu()
{
    Json menus = Json::array();
    const auto said = [this](const char* text) {
        return controller::plainMenuText(
            m_parts ? m_parts->game.texts().localized("GameMenu", text) : std::string(text));
    };
    const auto items = controller::menuItems();
    for (const controller::MenuTitle& title : controller::menuTitles()) {
        Json entries = Json::array();
        for (std::size_t i = 0; i < items.size(); ++i) {
            const MenuItem& item = items[i];
            if (item.menu != title.id || item.kind == MenuItem::Kind::Hidden) {
                continue;
            }
            const bool isOn = item.id == MenuItemId::FullScreen ? m_window.isInFullScreenMode()
                                                                : m_menu.isOn(item);
            entries.push_back({ { "number", i }, { "kind", kindOf(item) },
                { "text", said(m_menu.textOf(item)) }, { "keys", item.keys.front() },
                { "on", isOn }, { "enabled", m_menu.mayChoose(item) },
                { "fullScreen", item.id == MenuItemId::FullScreen },
                { "import", item.id == MenuItemId::Import } });
        }
        menus.push_back({ { "title", said(title.text) }, { "items", entries } });
    }
    return menus.dump();
}

void WebGame::choose(std::size_t item)
{
    const auto items = controller::menuItems();
    if (m_parts && item < items.size()) {
        m_menu.choose(items[item]);
    }
}

bool WebGame::key(const std::string& keys, controller::GameController::Press press)
{
    if (!m_parts) {
        return false;
    }
    for (const MenuItem& item : controller::menuItems()) {
        if (std::find(item.keys.begin(), item.keys.end(), keys) != item.keys.end()) {
            if (!m_menu.choose(item)) {
                controller()->key(keys, press);
            }
            return true; // the browser has other uses for some
        }
    }
    return controller()->key(keys, press);
}

std::string WebGame::settings() const
{
    return m_parts ? panelOfSettings(m_preferences, m_parts->game.texts()) : "null";
}

void WebGame::set(std::size_t setting, int value)
{
    const auto items = controller::settingItems();
    if (!m_parts || setting >= items.size()) {
        return;
    }
    progress::Settings settings = progress::readSettings(m_preferences);
    items[setting].set(settings, value);
    progress::writeSettings(m_preferences, settings);
    m_parts->game.settingsChanged();
    if (items[setting].isOfEffects) {
        controller()->context().effects.play(platform::Effect::Marble);
    }
}

void WebGame::resetSettings()
{
    if (m_parts) {
        progress::writeSettings(
            m_preferences, controller::resetSettings(progress::readSettings(m_preferences)));
        m_parts->game.settingsChanged();
    }
}

void WebGame::open(const std::string& puzzleCode)
{
    if (m_parts) {
        controller()->practice().openOrTell(puzzleCode);
    }
}

std::string WebGame::placeOf(const std::string& key)
{
    const auto record
        = m_parts ? m_parts->gameData.gameObjects().objectForKey(key) : board::GameObjectPtr();
    if (!record) {
        return "null";
    }
    const platform::RectF board = m_parts->game.layers().backgroundLayer().rectInRoot();
    const auto scale = static_cast<double>(board.height);
    return Json {
        { "x", static_cast<double>(board.x) + record->x() * scale },
        { "y", m_parts->view.size().height - static_cast<double>(board.y) - record->y() * scale }
    }.dump();
}

std::string WebGame::state()
{
    if (!m_parts) {
        return "null";
    }
    Json lines = Json::array();
    if (const auto& proof = controller()->proof()) {
        for (const engine::Theorem& line : proof->lines()) {
            lines.push_back(line.theorem());
        }
    }
    const progress::CurrentGame& current = m_parts->currentGame;
    return Json {
        { "keys", m_parts->gameData.gameObjects().keys() }, { "lines", lines },
        { "level", current.level() }, { "stage", current.stage() }, { "score", current.score() },
        { "page", controller()->messages().page() }, { "dialogue", controller()->dialogueState() },
        { "blocked", m_parts->game.view().block().blockClick() },
        { "animating", m_parts->game.layers().scene().isAnimating() },
        { "lessMotion",
            m_parts->game.layers().scene().motionTaste() == present::MotionTaste::Reduced },
        { "practice", controller()->practice().isOn() }
    }.dump();
}

void WebGame::fullScreenChanged(bool on)
{
    if (m_parts && on != m_window.isInFullScreenMode()) {
        controller()->toggleFullscreen();
    }
}

} // namespace veyrand::web
