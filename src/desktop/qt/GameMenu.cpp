#include "desktop/qt/GameMenu.h"

#include <QAction>
#include <QCoreApplication>

namespace veyrand::desktop::qt {

using progress::Settings;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("GameMenu", text);
}

QString shortcut(const char* keys)
{
    return QString::fromLatin1(keys);
}

// A bar of dark wood with a hair of brass below it, that belongs to the board.
const char* const kLook = R"(
QMenuBar { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #33200F, stop:1 #1F1209);
    color: #F0E2C4; border-bottom: 1px solid #C79A48; }
QMenuBar::item { background: transparent; padding: 4px 10px; }
QMenuBar::item:selected { background: #2B6F7B; color: #FFF8E6; }
QMenu { background: #241509; color: #F0E2C4; border: 1px solid #6B4420; }
QMenu::item { padding: 4px 26px 4px 30px; }
QMenu::item:selected { background: #2B6F7B; color: #FFF8E6; }
QMenu::item:disabled { color: #8A7458; }
QMenu::indicator { left: 9px; width: 13px; height: 13px; }
QMenu::separator { height: 1px; background: #6B4420; margin: 4px 10px; }
)";

void call(const std::function<void()>& action)
{
    if (action) {
        action();
    }
}

} // namespace

GameMenu::GameMenu(platform::Preferences& preferences)
    : m_preferences(preferences)
{
    m_bar.setStyleSheet(QString::fromLatin1(kLook));
    buildGameMenu();
    buildEditMenu();
    buildOptionsMenu();
    buildHelpMenu();
}

void GameMenu::buildGameMenu()
{
    QMenu& menu = *addMenu(tr("&Game"));
    addItem(menu, tr("&Classic Game"), shortcut("Ctrl+N"), &Actions::classicGame,
        &Actions::canStartGame);
    addItem(menu, tr("&Endless Game"), shortcut("Ctrl+E"), &Actions::endlessGame,
        &Actions::canStartGame);
    menu.addSeparator();
    addItem(menu, tr("&Quit"), shortcut("Ctrl+Q"), &Actions::quit);
}

void GameMenu::buildEditMenu()
{
    QMenu& menu = *addMenu(tr("&Edit"));
    m_undo = addItem(menu, tr("&Undo"), shortcut("Ctrl+Z"), &Actions::undo, &Actions::canUndo);
    m_redo
        = addItem(menu, tr("&Redo"), shortcut("Ctrl+Shift+Z"), &Actions::redo, &Actions::canRedo);
    // What other desktops press for it.
    m_redo->setShortcuts({ m_redo->shortcut(), QKeySequence(shortcut("Ctrl+Y")) });
    QObject::connect(&menu, &QMenu::aboutToShow, &m_bar, [this] { nameSteps(); });
}

void GameMenu::nameSteps()
{
    const auto stepOf = [](const std::function<Actions::Step()>& step) {
        return step ? step() : Actions::Step::None;
    };
    switch (stepOf(m_actions.undoes)) {
    case Actions::Step::None:
        m_undo->setText(tr("&Undo"));
        break;
    case Actions::Step::Move:
        m_undo->setText(tr("&Undo Move"));
        break;
    case Actions::Step::Removal:
        m_undo->setText(tr("&Undo Removal"));
        break;
    }
    switch (stepOf(m_actions.redoes)) {
    case Actions::Step::None:
        m_redo->setText(tr("&Redo"));
        break;
    case Actions::Step::Move:
        m_redo->setText(tr("&Redo Move"));
        break;
    case Actions::Step::Removal:
        m_redo->setText(tr("&Redo Removal"));
        break;
    }
}

void GameMenu::buildOptionsMenu()
{
    QMenu& menu = *addMenu(tr("&Options"));
    m_music = addSwitch(menu, tr("&Music"), shortcut("Ctrl+M"), &Settings::music);
    QObject::connect(m_music, &QAction::toggled, &m_bar, [this] { call(m_actions.musicChanged); });
    m_effects = addSwitch(menu, tr("&Sound Effects"), shortcut("Ctrl+Shift+M"), &Settings::effects);
    menu.addSeparator();
    addSetting(menu, tr("&Answers"), &progress::Settings::answers);
    addSetting(menu, tr("Sa&y Why"), &progress::Settings::sayWhy);
    addSetting(menu, tr("&Remember a Press"), &progress::Settings::rememberPress);
    addSetting(menu, tr("F&orgiving Clicks"), &progress::Settings::forgivingClicks);
    menu.addSeparator();
    addSetting(menu, tr("&Keep Unfinished Puzzles"), &progress::Settings::keepUnfinishedPuzzles);
    menu.addSeparator();
    m_fullScreen = addItem(menu, tr("&Full Screen"), shortcut("F11"), &Actions::toggleFullScreen);
    m_fullScreen->setCheckable(true);
    // In no menu, but what everybody presses to get out.
    auto* const leave = new QAction(&m_bar);
    addShortcut(*leave, shortcut("Esc"));
    QObject::connect(
        leave, &QAction::triggered, &m_bar, [this] { call(m_actions.exitFullScreen); });
}

void GameMenu::buildHelpMenu()
{
    QMenu& menu = *addMenu(tr("&Help"));
    addItem(menu, tr("&How to Play"), shortcut("F1"), &Actions::howToPlay, &Actions::canOpenPage);
    addItem(menu, tr("&Moves"), shortcut("F2"), &Actions::moves, &Actions::canListMoves);
    addItem(menu, tr("&Taking Back"), {}, &Actions::takingBack, &Actions::canOpenPage);
    addItem(menu, tr("&Scoring"), {}, &Actions::scoring, &Actions::canOpenPage);
    menu.addSeparator();
    addItem(menu, tr("&About Veyrand"), {}, &Actions::about);
}

QMenu* GameMenu::addMenu(const QString& title)
{
    QMenu* const menu = m_bar.addMenu(title);
    // What may not be chosen is grey while the menu is open. A shortcut meets the test itself, for
    // nothing tells when the answer to it changes.
    QObject::connect(menu, &QMenu::aboutToShow, &m_bar, [this] {
        for (const Item& item : m_items) {
            item.action->setEnabled(passes(item.isEnabled));
        }
    });
    QObject::connect(menu, &QMenu::aboutToHide, &m_bar, [this] {
        for (const Item& item : m_items) {
            item.action->setEnabled(true);
        }
    });
    return menu;
}

QAction* GameMenu::addItem(
    QMenu& menu, const QString& text, const QString& keys, Action chosen, Test isEnabled)
{
    QAction* const action = menu.addAction(text);
    addShortcut(*action, keys);
    m_items.push_back({ action, isEnabled });
    QObject::connect(action, &QAction::triggered, &m_bar, [this, chosen, isEnabled] {
        if (passes(isEnabled)) {
            call(m_actions.*chosen);
        }
    });
    return action;
}

QAction* GameMenu::addSwitch(QMenu& menu, const QString& text, const QString& keys, Switch setting)
{
    QAction* const action = menu.addAction(text);
    addShortcut(*action, keys);
    action->setCheckable(true);
    action->setChecked(progress::readSettings(m_preferences).*setting);
    QObject::connect(action, &QAction::toggled, &m_bar, [this, setting](bool on) {
        Settings settings = progress::readSettings(m_preferences);
        settings.*setting = on;
        progress::writeSettings(m_preferences, settings);
    });
    return action;
}

void GameMenu::addSetting(QMenu& menu, const QString& text, bool progress::Settings::*setting)
{
    QAction* const action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(progress::readSettings(m_preferences).*setting);
    QObject::connect(action, &QAction::toggled, &m_bar, [this, setting](bool on) {
        progress::Settings settings = progress::readSettings(m_preferences);
        settings.*setting = on;
        progress::writeSettings(m_preferences, settings);
        call(m_actions.settingsChanged);
    });
}

void GameMenu::addShortcut(QAction& action, const QString& keys)
{
    if (!keys.isEmpty()) {
        action.setShortcut(QKeySequence(keys));
        m_shortcuts.append(&action);
    }
}

bool GameMenu::passes(Test test) const
{
    return test == nullptr || !(m_actions.*test) || (m_actions.*test)();
}

bool GameMenu::trigger(const QString& text)
{
    for (QAction* const title : m_bar.actions()) {
        QMenu& menu = *title->menu();
        emit menu.aboutToShow();
        for (QAction* const action : menu.actions()) {
            QString plain = action->text();
            plain.remove(QLatin1Char('&'));
            if (plain == text) {
                const bool enabled = action->isEnabled();
                emit menu.aboutToHide();
                if (enabled) {
                    action->trigger();
                }
                return enabled;
            }
        }
        emit menu.aboutToHide();
    }
    return false;
}

} // namespace veyrand::desktop::qt
