#include "desktop/qt/GameMenu.h"

#include <QAction>
#include <QCoreApplication>

#include <algorithm>

namespace veyrand::desktop::qt {

using controller::MenuItem;
using controller::MenuItemId;

namespace {

QString menuText(const char* text)
{
    return QCoreApplication::translate("GameMenu", text);
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

} // namespace

GameMenu::GameMenu(platform::Preferences& preferences)
    : m_choices(preferences)
{
    m_bar.setStyleSheet(QString::fromLatin1(kLook));
    for (const controller::MenuTitle& title : controller::menuTitles()) {
        addMenu(title);
    }
}

void GameMenu::addMenu(const controller::MenuTitle& title)
{
    QMenu& menu = *m_bar.addMenu(menuText(title.text));
    // What may not be chosen is grey while the menu is open. A shortcut meets the test itself, for
    // nothing tells when the answer to it changes.
    QObject::connect(&menu, &QMenu::aboutToShow, &m_bar, [this] { refresh(); });
    QObject::connect(&menu, &QMenu::aboutToHide, &m_bar, [this] { enableAll(); });
    for (const MenuItem& entry : controller::menuItems()) {
        if (entry.menu == title.id) {
            addItem(menu, entry);
        }
    }
}

void GameMenu::addItem(QMenu& menu, const MenuItem& entry)
{
    if (entry.kind == MenuItem::Kind::Separator) {
        menu.addSeparator();
        return;
    }
    QAction* const action = entry.kind == MenuItem::Kind::Hidden
        ? new QAction(&m_bar)
        : menu.addAction(menuText(entry.text));
    addShortcuts(*action, entry);
    action->setCheckable(entry.kind == MenuItem::Kind::Switch);
    action->setChecked(m_choices.isOn(entry));
    m_items.push_back({ action, entry });
    if (entry.id == MenuItemId::FullScreen) {
        m_fullScreen = action;
    }
    QObject::connect(action, &QAction::triggered, &m_bar, [this, action, &entry] {
        m_choices.choose(entry);
        if (entry.setting != nullptr) {
            action->setChecked(m_choices.isOn(entry));
        }
    });
}

void GameMenu::addShortcuts(QAction& action, const MenuItem& entry)
{
    QList<QKeySequence> shortcuts;
    for (const std::string_view keys : entry.keys) {
        if (!keys.empty()) {
            shortcuts.append(QKeySequence(
                QString::fromLatin1(keys.data(), static_cast<qsizetype>(keys.size()))));
        }
    }
    if (!shortcuts.isEmpty()) {
        action.setShortcuts(shortcuts);
        m_shortcuts.append(&action);
    }
}

void GameMenu::refresh()
{
    for (const Item& item : m_items) {
        if (item.entry.kind == MenuItem::Kind::Hidden) {
            continue;
        }
        item.action->setText(menuText(m_choices.textOf(item.entry)));
        item.action->setEnabled(m_choices.mayChoose(item.entry));
        if (item.entry.setting != nullptr) {
            item.action->setChecked(m_choices.isOn(item.entry));
        }
    }
}

void GameMenu::retranslate()
{
    const auto titles = controller::menuTitles();
    for (std::size_t i = 0; i < titles.size(); ++i) {
        m_bar.actions().at(static_cast<qsizetype>(i))->setText(menuText(titles[i].text));
    }
    refresh();
    enableAll();
}

void GameMenu::enableAll()
{
    for (const Item& item : m_items) {
        item.action->setEnabled(true);
    }
}

bool GameMenu::leavesAlone(const QKeySequence& keys) const
{
    return std::any_of(m_items.begin(), m_items.end(), [this, &keys](const Item& item) {
        return item.action->shortcuts().contains(keys) && !m_choices.mayChoose(item.entry);
    });
}

bool GameMenu::trigger(const QString& text)
{
    refresh();
    const auto named
        = [&text](const QString& name) { return QString(name).remove(QLatin1Char('&')) == text; };
    for (const Item& item : m_items) {
        if (item.entry.kind != MenuItem::Kind::Hidden
            && (named(QString::fromUtf8(m_choices.textOf(item.entry)))
                || named(item.action->text()))) {
            const bool enabled = item.action->isEnabled();
            enableAll();
            if (enabled) {
                item.action->trigger();
            }
            return enabled;
        }
    }
    enableAll();
    return m_choices.turn(text.toStdString());
}

} // namespace veyrand::desktop::qt
