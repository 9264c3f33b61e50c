#pragma once

#include "app/VirtualGame.h"
#include "platform/fakes/MemoryJournal.h"

#include <QJSEngine>
#include <QJSValue>
#include <QObject>

#include <memory>

namespace veyrand::scenario {

// The object that scripts know as game: whatever a player can do to a game, and whatever can be
// seen of it. docs/scenarios.md describes every operation; keep it true. Mistakes of the script (a
// target that is not there) are thrown into it.
class ScenarioGame : public QObject {
    Q_OBJECT
public:
    struct Settings {
        platform::Size screen { .width = 1440, .height = 900 };
        QSize window { 1440, 900 };
        QString outFolder;
        QString dataFolder;
    };
    ScenarioGame(QJSEngine& engine, Settings settings);

    Q_INVOKABLE void start(const QJSValue& options = {});
    Q_INVOKABLE void play(const QJSValue& puzzle);
    Q_INVOKABLE void show(const QString& page);
    Q_INVOKABLE void quit();
    Q_INVOKABLE void kill();
    Q_INVOKABLE void restart();
    Q_INVOKABLE void wait(double seconds);

    Q_INVOKABLE void move(const QJSValue& target);
    Q_INVOKABLE void press(const QJSValue& target, const QJSValue& modifiers = {});
    Q_INVOKABLE void release(const QJSValue& target);
    Q_INVOKABLE void click(const QJSValue& target, const QJSValue& modifiers = {});
    Q_INVOKABLE void drag(const QJSValue& from, const QJSValue& to);
    Q_INVOKABLE void key(const QString& sequence);
    Q_INVOKABLE void resize(int width, int height);
    Q_INVOKABLE void menu(const QString& item);
    Q_INVOKABLE void screenshot(const QString& name);

    Q_INVOKABLE QJSValue keys();
    Q_INVOKABLE QJSValue object(const QString& key);
    Q_INVOKABLE QString text(const QString& key);
    Q_INVOKABLE QJSValue layer(const QString& key);

    Q_INVOKABLE QString cursor();
    Q_INVOKABLE QString tip();
    Q_INVOKABLE QString whisper();
    Q_INVOKABLE QJSValue extras();

    Q_INVOKABLE QJSValue lines();
    Q_INVOKABLE QString goal();
    Q_INVOKABLE int par();
    Q_INVOKABLE int level();
    Q_INVOKABLE int stage();
    Q_INVOKABLE double score();
    Q_INVOKABLE bool endless();
    Q_INVOKABLE double endlessScore();
    Q_INVOKABLE int endlessPar();
    Q_INVOKABLE int highestRule();
    Q_INVOKABLE int hintMode();
    Q_INVOKABLE int dialogueState();
    Q_INVOKABLE QString page();
    Q_INVOKABLE bool blocked();
    Q_INVOKABLE QJSValue actions();
    Q_INVOKABLE QString hash();
    Q_INVOKABLE QJSValue alert();
    Q_INVOKABLE void answer(const QString& button);
    Q_INVOKABLE QJSValue sounds();
    Q_INVOKABLE QJSValue music();
    Q_INVOKABLE QJSValue preference(const QString& key);
    Q_INVOKABLE QJSValue record();
    Q_INVOKABLE bool terminated();
    Q_INVOKABLE QJSValue overlay();

private:
    app::VirtualGame& game(); // started with the defaults when no script has
    std::optional<platform::Point> place(const QJSValue& target);
    [[nodiscard]] std::string recordKey();
    void end();

    QJSEngine& m_engine;
    Settings m_settings;
    // What outlasts the game.
    std::unique_ptr<platform::MemoryPreferences> m_preferences;
    std::unique_ptr<platform::MemoryJournal> m_journal;
    app::VirtualGame::Options m_options;
    std::unique_ptr<app::VirtualGame> m_game;
    bool m_hasEnded = false;
    bool m_hasQuit = false;
};

} // namespace veyrand::scenario
