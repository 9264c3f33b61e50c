#include "desktop/qt/ReadableThing.h"

#include <algorithm>

namespace veyrand::desktop::qt {

using controller::AccessibleNode;
using controller::AccessibleRole;

namespace {

int indexIn(const AccessibleNode& node, const QAccessibleInterface* child)
{
    const auto* const thing = dynamic_cast<const ReadableThing*>(child);
    for (std::size_t i = 0; thing != nullptr && i < node.children.size(); ++i) {
        if (node.children[i].id == thing->id()) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

QAccessibleInterface* childOf(BoardReader& reader, const AccessibleNode& node, int index)
{
    return index >= 0 && index < static_cast<int>(node.children.size())
        ? reader.interfaceFor(node.children[static_cast<std::size_t>(index)].id)
        : nullptr;
}

} // namespace

QAccessibleInterface* ReadableThing::childAt(int x, int y) const
{
    return m_reader.at({ x, y });
}

QAccessibleInterface* ReadableThing::parent() const
{
    const std::string parent = m_reader.parentOf(m_id);
    return parent.empty() || parent == m_reader.tree().id ? m_reader.boardInterface()
                                                          : m_reader.interfaceFor(parent);
}

QAccessibleInterface* ReadableThing::child(int index) const
{
    const AccessibleNode* const node = m_reader.node(m_id);
    return node != nullptr ? childOf(m_reader, *node, index) : nullptr;
}

int ReadableThing::childCount() const
{
    const AccessibleNode* const node = m_reader.node(m_id);
    return node != nullptr ? static_cast<int>(node->children.size()) : 0;
}

int ReadableThing::indexOfChild(const QAccessibleInterface* child) const
{
    const AccessibleNode* const node = m_reader.node(m_id);
    return node != nullptr ? indexIn(*node, child) : -1;
}

// Tool tips are no part of it: readers would read them twice.
QString ReadableThing::text(QAccessible::Text kind) const
{
    const AccessibleNode* const node = m_reader.node(m_id);
    if (node == nullptr) {
        return {};
    }
    switch (kind) {
    case QAccessible::Name:
        return readableName(*node);
    case QAccessible::Value:
        return QString::fromStdString(node->value);
    default:
        return {};
    }
}

QRect ReadableThing::rect() const
{
    const AccessibleNode* const node = m_reader.node(m_id);
    return node != nullptr ? m_reader.rectOf(*node) : QRect();
}

QAccessible::Role ReadableThing::role() const
{
    const AccessibleNode* const node = m_reader.node(m_id);
    switch (node != nullptr ? node->role : AccessibleRole::Pane) {
    case AccessibleRole::Dialog:
        return QAccessible::Dialog;
    case AccessibleRole::List:
        return QAccessible::List;
    case AccessibleRole::ListItem:
        return QAccessible::ListItem;
    case AccessibleRole::Button:
        return QAccessible::Button;
    case AccessibleRole::Text:
        return QAccessible::StaticText;
    case AccessibleRole::Image:
        return QAccessible::Graphic;
    case AccessibleRole::Status:
        return QAccessible::Notification;
    case AccessibleRole::Link:
        return QAccessible::Link;
    case AccessibleRole::Pane:
        break;
    }
    return QAccessible::Pane;
}

QAccessible::State ReadableThing::state() const
{
    QAccessible::State state;
    const AccessibleNode* const node = m_reader.node(m_id);
    if (node == nullptr) {
        state.invalid = true;
        return state;
    }
    state.focusable = node->isFocusable;
    state.focused = m_reader.focused() == m_id;
    state.readOnly = true;
    state.modal = node->role == AccessibleRole::Dialog;
    return state;
}

void* ReadableThing::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
}

QStringList ReadableThing::actionNames() const
{
    QStringList names;
    if (const AccessibleNode* const node = m_reader.node(m_id)) {
        for (const controller::AccessibleAction& action : node->actions) {
            names.append(QString::fromStdString(action.name));
        }
        if (node->isFocusable) {
            names.append(setFocusAction());
        }
    }
    return names;
}

const controller::AccessibleAction* ReadableThing::action(const QString& name) const
{
    const AccessibleNode* const node = m_reader.node(m_id);
    if (node == nullptr) {
        return nullptr;
    }
    const auto found = std::find_if(node->actions.begin(), node->actions.end(),
        [name = name.toStdString()](const auto& each) { return each.name == name; });
    return found != node->actions.end() ? &*found : nullptr;
}

QString ReadableThing::localizedActionName(const QString& name) const
{
    const auto* const action = this->action(name);
    return action != nullptr ? QString::fromUtf8(
               action->ownName().data(), static_cast<qsizetype>(action->ownName().size()))
                             : QAccessibleActionInterface::localizedActionName(name);
}

QString ReadableThing::localizedActionDescription(const QString& name) const
{
    const auto* const action = this->action(name);
    return action != nullptr ? QString::fromStdString(action->text) : QString();
}

void ReadableThing::doAction(const QString& name)
{
    m_reader.act(m_id, name);
}

int ReadableBoard::childCount() const
{
    return static_cast<int>(m_reader.tree().children.size());
}

QAccessibleInterface* ReadableBoard::child(int index) const
{
    return childOf(m_reader, m_reader.tree(), index);
}

int ReadableBoard::indexOfChild(const QAccessibleInterface* child) const
{
    return indexIn(m_reader.tree(), child);
}

QAccessibleInterface* ReadableBoard::childAt(int x, int y) const
{
    return m_reader.at({ x, y });
}

QAccessibleInterface* ReadableBoard::focusChild() const
{
    return m_reader.focused().empty() ? nullptr : m_reader.interfaceFor(m_reader.focused());
}

} // namespace veyrand::desktop::qt
