#pragma once

#include "controller/MenuChoices.h"

#include <QMenuBar>

#include <functional>
#include <vector>

namespace veyrand::desktop::qt {

// The menu bar: the items of the table, with their texts translated.
class GameMenu {
public:
    explicit GameMenu(platform::Preferences& preferences);

    // Until then choosing a command does nothing. What the table leaves to the window goes to the
    // function.
    void connectTo(
        controller::GameController& game, std::function<void(controller::MenuItemId)> others)
    {
        m_choices.connectTo(game, std::move(others));
    }

    void connectTo(std::vector<controller::MenuItemId> only,
        std::function<void(controller::MenuItemId)> others)
    {
        m_choices.connectTo(std::move(only), std::move(others));
    }

    // The texts anew, after another language was chosen.
    void retranslate();
    // What the Full Screen item shows.
    void setFullScreen(bool on) { m_fullScreen->setChecked(on); }

    [[nodiscard]] QMenuBar* bar() { return &m_bar; }
    // Everything with a shortcut. The window takes them too, since those of a hidden bar are dead.
    [[nodiscard]] QList<QAction*> actions() const { return m_shortcuts; }
    // Whether the keys are an item's that may not be chosen now.
    [[nodiscard]] bool leavesAlone(const QKeySequence& keys) const;
    // Chooses the item with the text, in English or as it is shown, if there is one and it may be
    // chosen now.
    bool trigger(const QString& text);

private:
    struct Item {
        QAction* action;
        const controller::MenuItem& entry;
    };

    void addMenu(const controller::MenuTitle& title);
    void addItem(QMenu& menu, const controller::MenuItem& entry);
    void addShortcuts(QAction& action, const controller::MenuItem& entry);
    void refresh();
    void enableAll();

    QMenuBar m_bar;
    controller::MenuChoices m_choices;
    std::vector<Item> m_items;
    QList<QAction*> m_shortcuts;
    QAction* m_fullScreen = nullptr;
};

} // namespace veyrand::desktop::qt
