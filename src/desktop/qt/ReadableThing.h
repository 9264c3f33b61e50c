#pragma once

#include "desktop/qt/BoardReader.h"

#include <QAccessibleInterface>
#include <QAccessibleWidget>

namespace veyrand::desktop::qt {

// One node of the accessible tree as the toolkit's readers want it. It holds its name alone and
// looks everything else up, so that it outlives what it stands for without harm.
class ReadableThing final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ReadableThing(BoardReader& reader, std::string id)
        : m_reader(reader)
        , m_id(std::move(id))
    {
    }

    [[nodiscard]] bool isValid() const override { return m_reader.node(m_id) != nullptr; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return m_reader.window(); }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override { }
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QStringList actionNames() const override;
    [[nodiscard]] QString localizedActionName(const QString& name) const override;
    [[nodiscard]] QString localizedActionDescription(const QString& name) const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override
    {
        return {};
    }

    [[nodiscard]] const std::string& id() const { return m_id; }

private:
    [[nodiscard]] const controller::AccessibleAction* action(const QString& name) const;

    BoardReader& m_reader;
    std::string m_id;
};

// The board widget, whose children are the tree's.
class ReadableBoard final : public QAccessibleWidget {
public:
    ReadableBoard(QWidget& widget, BoardReader& reader)
        : QAccessibleWidget(&widget, QAccessible::Pane, QStringLiteral("Veyrand"))
        , m_reader(reader)
    {
    }

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

private:
    BoardReader& m_reader;
};

} // namespace veyrand::desktop::qt
