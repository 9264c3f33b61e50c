#pragma once

#include "controller/AccessibleTree.h"
#include "desktop/qt/BoardWidget.h"

#include <QAccessible>
#include <QTimer>

#include <map>
#include <optional>

namespace veyrand::controller {
class GameController;
}

namespace veyrand::desktop::qt {

class ReadableThing;

// Shows the game's accessible tree to screen readers, as children of the board widget, and hands
// their actions to the game. It looks at the game only while a reader is there: then it compares
// the tree whenever the picture has changed, and tells what is new. What the game says becomes the
// name of a notification that shows itself.
class BoardReader final : private QAccessible::ActivationObserver {
public:
    BoardReader(
        BoardWidget& widget, present::BoardLayers& layers, controller::GameController& controller);
    BoardReader(const BoardReader&) = delete;
    BoardReader& operator=(const BoardReader&) = delete;
    ~BoardReader() override;

    // The picture has changed, and the tree may have.
    void boardChanged();

    // Null when the tree has no such thing (any more).
    [[nodiscard]] const controller::AccessibleNode* node(const std::string& id) const;
    [[nodiscard]] const controller::AccessibleNode& tree() const { return m_tree; }
    [[nodiscard]] std::string parentOf(const std::string& id) const;
    [[nodiscard]] QAccessibleInterface* interfaceFor(const std::string& id);
    [[nodiscard]] QAccessibleInterface* boardInterface() const;
    [[nodiscard]] std::string focused() const { return m_focused; }
    [[nodiscard]] QRect rectOf(const controller::AccessibleNode& node) const; // on the desktop
    [[nodiscard]] QWindow* window() const;
    [[nodiscard]] QAccessibleInterface* at(QPoint place);
    void act(const std::string& id, const QString& action);
    void refresh();

private:
    using Names = std::map<std::string, QString>;

    void accessibilityActiveChanged(bool active) override;
    void announce();
    void tellNewNames(const Names& before);
    void forget(const std::string& id);

    BoardWidget& m_widget;
    present::BoardLayers& m_layers;
    controller::GameController& m_controller;
    controller::AccessibleNode m_tree;
    std::map<std::string, QAccessible::Id> m_known; // the things that readers have heard of
    std::string m_focused;
    QTimer m_soon;
    bool m_isActive = false;
};

// How a thing is called and what it says, in one: readers on Debian 12 read names.
[[nodiscard]] QString readableName(const controller::AccessibleNode& node);

} // namespace veyrand::desktop::qt
