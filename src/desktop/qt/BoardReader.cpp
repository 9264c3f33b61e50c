#include "desktop/qt/BoardReader.h"

#include "controller/GameController.h"
#include "desktop/qt/ReadableThing.h"

#include <QWindow>

#include <functional>

namespace veyrand::desktop::qt {

using controller::AccessibleNode;

namespace {

constexpr int kSoon = 40; // milliseconds: a move's many changes are looked at once

// A widget is asked for by the toolkit; who reads it is told here. There is one board a process in
// the game, and more in its tests.
std::map<const QObject*, BoardReader*>& readers()
{
    static std::map<const QObject*, BoardReader*> all;
    return all;
}

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    const auto found = readers().find(object);
    return found != readers().end()
        ? new ReadableBoard(*static_cast<QWidget*>(object), *found->second)
        : nullptr;
}

const AccessibleNode* findIn(const AccessibleNode& tree, const std::string& id)
{
    if (tree.id == id) {
        return &tree;
    }
    for (const AccessibleNode& child : tree.children) {
        if (const AccessibleNode* const found = findIn(child, id)) {
            return found;
        }
    }
    return nullptr;
}

void forEach(const AccessibleNode& tree, const std::function<void(const AccessibleNode&)>& call)
{
    for (const AccessibleNode& child : tree.children) {
        call(child);
        forEach(child, call);
    }
}

void tell(QAccessibleInterface* thing, QAccessible::Event what)
{
    if (thing != nullptr) {
        QAccessibleEvent event(thing, what);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace

QString readableName(const AccessibleNode& node)
{
    const QString name = QString::fromStdString(node.name);
    return node.value.empty() ? name
                              : name + QStringLiteral(": ") + QString::fromStdString(node.value);
}

BoardReader::BoardReader(
    BoardWidget& widget, present::BoardLayers& layers, controller::GameController& controller)
    : m_widget(widget)
    , m_layers(layers)
    , m_controller(controller)
{
    readers().emplace(&m_widget, this);
    QAccessible::installFactory(makeInterface);
    QAccessible::installActivationObserver(this);
    m_soon.setSingleShot(true);
    m_soon.setInterval(kSoon);
    QObject::connect(&m_soon, &QTimer::timeout, &m_soon, [this] { refresh(); });
    m_widget.setChangeListener([this] { boardChanged(); });
    accessibilityActiveChanged(QAccessible::isActive());
}

BoardReader::~BoardReader()
{
    m_widget.setChangeListener({});
    m_controller.speaker().setListener({});
    QAccessible::removeActivationObserver(this);
    for (const auto& [id, number] : m_known) {
        QAccessible::deleteAccessibleInterface(number);
    }
    readers().erase(&m_widget);
}

void BoardReader::accessibilityActiveChanged(bool active)
{
    m_isActive = active;
    if (active) {
        m_controller.speaker().setListener([this](const std::string&) { announce(); });
        refresh();
    } else {
        m_controller.speaker().setListener({});
    }
}

void BoardReader::boardChanged()
{
    if (m_isActive && !m_soon.isActive()) {
        m_soon.start();
    }
}

const AccessibleNode* BoardReader::node(const std::string& id) const
{
    return findIn(m_tree, id);
}

std::string BoardReader::parentOf(const std::string& id) const
{
    for (const AccessibleNode& child : m_tree.children) {
        for (const AccessibleNode& grandchild : child.children) {
            if (grandchild.id == id) {
                return child.id;
            }
        }
    }
    return m_tree.id;
}

QAccessibleInterface* BoardReader::interfaceFor(const std::string& id)
{
    if (const auto known = m_known.find(id); known != m_known.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    if (node(id) == nullptr) {
        return nullptr;
    }
    auto* const thing = new ReadableThing(*this, id); // the toolkit's from here on
    m_known.emplace(id, QAccessible::registerAccessibleInterface(thing));
    return thing;
}

QAccessibleInterface* BoardReader::boardInterface() const
{
    return QAccessible::queryAccessibleInterface(&m_widget);
}

QRect BoardReader::rectOf(const AccessibleNode& node) const
{
    const platform::RectF board = m_layers.backgroundLayer().rectInRoot();
    const auto scale = static_cast<double>(board.height);
    const double left
        = static_cast<double>(board.x) + (node.place.x - node.place.width / 2.0) * scale;
    const double top = m_widget.height() - static_cast<double>(board.y)
        - (node.place.y + node.place.height / 2.0) * scale;
    const QRectF rect(left, top, node.place.width * scale, node.place.height * scale);
    const QRect inWidget = rect.toAlignedRect();
    return { m_widget.mapToGlobal(inWidget.topLeft()), inWidget.size() };
}

QWindow* BoardReader::window() const
{
    return m_widget.window()->windowHandle();
}

QAccessibleInterface* BoardReader::at(QPoint place)
{
    std::string found;
    forEach(m_tree, [&](const AccessibleNode& node) {
        if (node.place.width > 0.0 && rectOf(node).contains(place)) {
            found = node.id;
        }
    });
    return found.empty() ? nullptr : interfaceFor(found);
}

void BoardReader::act(const std::string& id, const QString& action)
{
    if (action == QAccessibleActionInterface::setFocusAction()) {
        controller::focusOn(m_controller, id);
        m_controller.answers().handsChanged();
    } else {
        controller::actOn(m_controller, id, action.toStdString());
    }
    boardChanged();
}

// What has gone is told of while it can still be asked, what has come once it can be.
void BoardReader::refresh()
{
    AccessibleNode now = controller::accessibleTree(m_controller);
    const std::string focused = controller::focusedId(m_controller);
    if (!(now == m_tree)) {
        Names before;
        forEach(m_tree, [&](const AccessibleNode& node) {
            before.emplace(node.id, readableName(node));
            if (findIn(now, node.id) == nullptr) {
                tell(interfaceFor(node.id), QAccessible::ObjectDestroyed);
            }
        });
        m_tree = std::move(now);
        for (const auto& [id, name] : before) {
            if (node(id) == nullptr) {
                forget(id);
            }
        }
        tellNewNames(before);
    }
    if (focused != m_focused) {
        m_focused = focused;
        // A page or note is told when it opens, and need not be read again.
        if (!focused.empty() && focused != input::kMessageKey) {
            tell(interfaceFor(focused), QAccessible::Focus);
        }
    }
}

void BoardReader::tellNewNames(const Names& before)
{
    forEach(m_tree, [&](const AccessibleNode& node) {
        const auto old = before.find(node.id);
        if (old == before.end()) {
            tell(interfaceFor(node.id), QAccessible::ObjectCreated);
        } else if (old->second != readableName(node)) {
            tell(interfaceFor(node.id), QAccessible::NameChanged);
        }
    });
}

void BoardReader::forget(const std::string& id)
{
    if (const auto known = m_known.find(id); known != m_known.end()) {
        QAccessible::deleteAccessibleInterface(known->second);
        m_known.erase(known);
    }
}

// The tree first, so that whoever looks round at the notice finds what it tells of.
void BoardReader::announce()
{
    refresh();
    QAccessibleInterface* const status = interfaceFor("status");
    tell(status, QAccessible::ObjectHide);
    tell(status, QAccessible::ObjectShow);
}

} // namespace veyrand::desktop::qt
