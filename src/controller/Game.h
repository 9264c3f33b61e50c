#pragma once

#include "controller/GameController.h"
#include "controller/Speech.h"
#include "controller/TutorialScriptReader.h"
#include "platform/Random.h"
#include "platform/Resources.h"
#include "platform/TextMetrics.h"
#include "progress/Settings.h"

namespace veyrand::controller {

// The ports one game stands on. They belong to whoever assembles the game and outlive it.
struct GamePorts {
    platform::RunLoop& runLoop;
    platform::Preferences& preferences;
    const platform::Resources& resources;
    platform::Sounds& sounds;
    const platform::Pointer& pointer;
    const platform::TextMetrics& textMetrics;
    platform::Log& log;
    platform::Quit& quit;
    platform::OverlayWindow& overlay;
    platform::Window& window;
    platform::Alerts& alerts;
    std::function<void(std::function<void()>)> offerInstallation {}; // see GameContext
    platform::Journal* journal = nullptr; // null: no puzzle outlasts the board
    // What the desktop speaks ("de-AT"), the dearest first. None: English, unless the player has
    // chosen another language.
    std::vector<std::string> desktopLanguages {};
    platform::MotionWish* motionWish = nullptr; // null: the desktop has none
    const platform::Calendar* calendar = nullptr; // see GameContext
    platform::Clipboard* clipboard = nullptr; // see GameContext
    platform::FileExchange* exchange = nullptr; // see GameContext
};

// One whole game, put together: rooms upon rooms upon ports. The application has one; a test may
// have as many as it likes, for nothing here is shared between them.
class Game {
public:
    Game(const GamePorts& ports, progress::CurrentGame& currentGame, board::GameData& gameData)
        : m_script(ports.resources.once([&ports] { return readTutorialScript(ports.resources); }))
        , m_texts(ports.resources)
        , m_desktopLanguages(ports.desktopLanguages)
        , m_effects(ports.sounds,
              [&preferences = ports.preferences] {
                  return progress::readSettings(preferences).effects;
              })
        , m_pacedLoop(ports.runLoop, m_tempo)
        , m_scene(ports.runLoop, m_tempo)
        , m_board(gameData, currentGame, m_pacedLoop)
        , m_layers(m_scene, gameData, ports.textMetrics)
        , m_view({ .gameData = gameData,
              .layers = m_layers,
              .runLoop = ports.runLoop,
              .pointer = ports.pointer,
              .effects = m_effects })
        , m_context { .currentGame = currentGame,
            .board = m_board,
            .layers = m_layers,
            .view = m_view,
            .runLoop = ports.runLoop,
            .pacedLoop = m_pacedLoop,
            .tempo = m_tempo,
            .preferences = ports.preferences,
            .sounds = ports.sounds,
            .effects = m_effects,
            .script = *m_script,
            .texts = m_texts,
            .log = ports.log,
            .quit = ports.quit,
            .overlay = ports.overlay,
            .window = ports.window,
            .alerts = ports.alerts,
            .offerInstallation = ports.offerInstallation,
            .journal = ports.journal,
            .motionWish = ports.motionWish,
            .resources = ports.resources,
            .calendar = ports.calendar,
            .clipboard = ports.clipboard,
            .exchange = ports.exchange }
        , m_controller(m_context)
    {
        m_controller.transfer().setSettingsListener([this] { settingsChanged(); });
        speakAsChosen();
    }

    // To be called when the player has chosen other settings.
    void settingsChanged()
    {
        m_controller.settingsChanged();
        speakAsChosen();
    }
    // Calls the function now, and again whenever the language has changed: for what has words of
    // its own outside the game, or pictures with words on them.
    void setLanguageListener(std::function<void(const language::Texts& texts)> listener)
    {
        m_languageListener = std::move(listener);
        m_languageListener(m_texts);
    }

    [[nodiscard]] present::BoardLayers& layers() { return m_layers; }
    [[nodiscard]] input::GameView& view() { return m_view; }
    [[nodiscard]] GameController& controller() { return m_controller; }
    // The pages and lessons, with what was wrong with their files.
    [[nodiscard]] const TutorialScript& script() const { return *m_script; }
    [[nodiscard]] const language::Texts& texts() const { return m_texts; }

private:
    void speakAsChosen()
    {
        speak(languageFor(
            progress::readSettings(m_context.preferences).language, m_desktopLanguages));
    }
    void speak(std::string_view code)
    {
        if (code == m_texts.code()) {
            return;
        }
        m_texts.choose(code);
        if (!m_texts.faults().empty()) {
            m_context.log.write(m_texts.faults());
        }
        m_controller.languageChanged();
        if (m_languageListener) {
            m_languageListener(m_texts);
        }
    }

    std::shared_ptr<const TutorialScript> m_script;
    language::Texts m_texts;
    std::vector<std::string> m_desktopLanguages;
    std::function<void(const language::Texts& texts)> m_languageListener;
    platform::SoundEffects m_effects;
    board::Tempo m_tempo;
    board::PacedRunLoop m_pacedLoop;
    present::Scene m_scene;
    board::Board m_board;
    present::BoardLayers m_layers;
    input::GameView m_view;
    GameContext m_context;
    GameController m_controller;
};

} // namespace veyrand::controller
