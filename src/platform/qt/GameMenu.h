#pragma once

#include "platform/Menu.h"
#include "platform/Preferences.h"

#include <QMenuBar>

#include <functional>

namespace veyrand::platform::qt {

// The menu bar. Music and Sound Effects carry the player's choice and save it; the rest call what
// they are given. Every text can be translated.
class GameMenu final : public Menu {
public:
    struct Actions {
        std::function<void()> classicGame;
        std::function<void()> endlessGame;
        std::function<void()> musicChanged;
        std::function<void()> quit;
        // Whether the items that start games may be chosen now.
        std::function<bool()> gamesEnabled;
    };

    explicit GameMenu(Preferences& preferences);

    // Until then choosing an item does nothing.
    void connectActions(Actions actions) { m_actions = std::move(actions); }

    [[nodiscard]] bool musicOn() const override { return m_music->isChecked(); }
    [[nodiscard]] bool effectsOn() const override { return m_effects->isChecked(); }

    [[nodiscard]] QMenuBar* bar() { return &m_bar; }
    // Chooses the item with the text, if there is one and it is enabled.
    bool trigger(const QString& text);

private:
    void buildGameMenu();
    void buildOptionsMenu();
    QAction* addSwitch(QMenu& menu, const QString& text, std::string_view key);
    [[nodiscard]] bool gamesEnabled() const;
    void setGamesEnabled(bool enabled);
    void startGame(const std::function<void()>& start) const;

    Preferences& m_preferences;
    Actions m_actions;
    QMenuBar m_bar;
    QAction* m_classic = nullptr;
    QAction* m_endless = nullptr;
    QAction* m_music = nullptr;
    QAction* m_effects = nullptr;
};

} // namespace veyrand::platform::qt
