#include "platform/qt/GameMenu.h"

#include "progress/PlayerKeys.h"

#include <QAction>
#include <QCoreApplication>

namespace veyrand::platform::qt {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("GameMenu", text);
}

void call(const std::function<void()>& action)
{
    if (action) {
        action();
    }
}

} // namespace

GameMenu::GameMenu(Preferences& preferences)
    : m_preferences(preferences)
{
    buildGameMenu();
    buildOptionsMenu();
}

void GameMenu::buildGameMenu()
{
    QMenu* const menu = m_bar.addMenu(tr("&Game"));
    m_classic = menu->addAction(tr("&Classic Game"));
    m_classic->setShortcut(QKeySequence(QStringLiteral("Ctrl+N")));
    QObject::connect(
        m_classic, &QAction::triggered, &m_bar, [this] { startGame(m_actions.classicGame); });
    m_endless = menu->addAction(tr("&Endless Game"));
    m_endless->setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));
    QObject::connect(
        m_endless, &QAction::triggered, &m_bar, [this] { startGame(m_actions.endlessGame); });
    menu->addSeparator();
    QAction* const quit = menu->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence(QKeySequence::Quit));
    QObject::connect(quit, &QAction::triggered, &m_bar, [this] { call(m_actions.quit); });
    // Greyed out while the menu is open and no game may be started; a shortcut meets startGame's
    // own test.
    QObject::connect(
        menu, &QMenu::aboutToShow, &m_bar, [this] { setGamesEnabled(gamesEnabled()); });
    QObject::connect(menu, &QMenu::aboutToHide, &m_bar, [this] { setGamesEnabled(true); });
}

void GameMenu::buildOptionsMenu()
{
    QMenu* const menu = m_bar.addMenu(tr("&Options"));
    m_music = addSwitch(*menu, tr("&Music"), progress::kPlayMusicKey);
    m_music->setShortcut(QKeySequence(QStringLiteral("Ctrl+M")));
    QObject::connect(m_music, &QAction::toggled, &m_bar, [this] { call(m_actions.musicChanged); });
    m_effects = addSwitch(*menu, tr("&Sound Effects"), progress::kPlayEffectsKey);
    m_effects->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+M")));
}

QAction* GameMenu::addSwitch(QMenu& menu, const QString& text, std::string_view key)
{
    QAction* const item = menu.addAction(text);
    item->setCheckable(true);
    item->setChecked(m_preferences.boolForKey(key));
    QObject::connect(
        item, &QAction::toggled, &m_bar, [this, key](bool on) { m_preferences.setValue(key, on); });
    return item;
}

bool GameMenu::gamesEnabled() const
{
    return !m_actions.gamesEnabled || m_actions.gamesEnabled();
}

void GameMenu::setGamesEnabled(bool enabled)
{
    m_classic->setEnabled(enabled);
    m_endless->setEnabled(enabled);
}

void GameMenu::startGame(const std::function<void()>& start) const
{
    if (gamesEnabled()) {
        call(start);
    }
}

bool GameMenu::trigger(const QString& text)
{
    for (QAction* const menu : m_bar.actions()) {
        for (QAction* const item : menu->menu()->actions()) {
            QString plain = item->text();
            plain.remove(QLatin1Char('&'));
            if (plain == text && item->isEnabled()) {
                item->trigger();
                return true;
            }
        }
    }
    return false;
}

} // namespace veyrand::platform::qt
