#pragma once

#include "platform/Menu.h"
#include "platform/Preferences.h"
#include "progress/Settings.h"

#include <QMenuBar>

#include <functional>
#include <vector>

namespace veyrand::desktop::qt {

// The menu bar. Music and Sound Effects carry the player's choice and save it; the rest call what
// they are given, if it may be done now. Every text can be translated.
class GameMenu final : public platform::Menu {
public:
    struct Actions {
        std::function<void()> classicGame;
        std::function<void()> endlessGame;
        std::function<void()> quit;
        std::function<void()> undo;
        std::function<void()> redo;
        std::function<void()> musicChanged;
        std::function<void()> settingsChanged;
        std::function<void()> toggleFullScreen;
        std::function<void()> exitFullScreen;
        std::function<void()> howToPlay;
        std::function<void()> takingBack;
        std::function<void()> moves;
        std::function<void()> scoring;
        std::function<void()> about;
        // Whether the items may be chosen now.
        std::function<bool()> canStartGame;
        std::function<bool()> canUndo;
        std::function<bool()> canRedo;
        std::function<bool()> canOpenPage;
        std::function<bool()> canListMoves;
        // What Undo and Redo would do, which their texts name.
        enum class Step { None, Move, Removal };
        std::function<Step()> undoes;
        std::function<Step()> redoes;
    };

    explicit GameMenu(platform::Preferences& preferences);

    // Until then choosing an item does nothing.
    void connectActions(Actions actions) { m_actions = std::move(actions); }

    [[nodiscard]] bool musicOn() const override { return m_music->isChecked(); }
    [[nodiscard]] bool effectsOn() const override { return m_effects->isChecked(); }
    // What the Full Screen item shows.
    void setFullScreen(bool on) { m_fullScreen->setChecked(on); }

    [[nodiscard]] QMenuBar* bar() { return &m_bar; }
    // Everything with a shortcut. The window takes them too, since those of a hidden bar are dead.
    [[nodiscard]] QList<QAction*> actions() const { return m_shortcuts; }
    // Chooses the item with the text, if there is one and it is enabled.
    bool trigger(const QString& text);

private:
    using Action = std::function<void()> Actions::*;
    using Test = std::function<bool()> Actions::*;
    using Switch = bool progress::Settings::*;
    struct Item {
        QAction* action;
        Test isEnabled; // null: always
    };

    void buildGameMenu();
    void buildEditMenu();
    void buildOptionsMenu();
    void buildHelpMenu();
    QMenu* addMenu(const QString& title);
    QAction* addItem(QMenu& menu, const QString& text, const QString& keys, Action chosen,
        Test isEnabled = nullptr);
    QAction* addSwitch(QMenu& menu, const QString& text, const QString& keys, Switch setting);
    void addSetting(QMenu& menu, const QString& text, bool progress::Settings::*setting);
    void addShortcut(QAction& action, const QString& keys);
    [[nodiscard]] bool passes(Test test) const;
    void nameSteps();

    platform::Preferences& m_preferences;
    Actions m_actions;
    QMenuBar m_bar;
    std::vector<Item> m_items;
    QList<QAction*> m_shortcuts;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_music = nullptr;
    QAction* m_effects = nullptr;
    QAction* m_fullScreen = nullptr;
};

} // namespace veyrand::desktop::qt
