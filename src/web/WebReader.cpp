#include "web/WebReader.h"

#include "controller/AccessibleTree.h"
#include "controller/MenuTable.h"
#include "language/Json.h"
#include "web/Host.h"

namespace veyrand::web {

namespace {

using controller::AccessibleNode;
using language::Json;

constexpr double kSoon = 0.04; // seconds

Json described(const AccessibleNode& node, const platform::RectF& board, double viewHeight)
{
    Json children = Json::array();
    for (const AccessibleNode& child : node.children) {
        children.push_back(described(child, board, viewHeight));
    }
    Json made = Json::object();
    made["id"] = node.id;
    made["role"] = controller::nameOf(node.role);
    made["name"] = node.name;
    made["value"] = node.value;
    made["actions"] = Json::array();
    for (const controller::AccessibleAction& action : node.actions) {
        made["actions"].push_back({ { "name", action.name }, { "text", action.text } });
    }
    made["children"] = std::move(children);
    if (node.place.width > 0.0) {
        const auto scale = static_cast<double>(board.height);
        const double left
            = static_cast<double>(board.x) + (node.place.x - node.place.width / 2.0) * scale;
        const double top = viewHeight - static_cast<double>(board.y)
            - (node.place.y + node.place.height / 2.0) * scale;
        made["place"]
            = Json::array({ left, top, node.place.width * scale, node.place.height * scale });
    }
    return made;
}

// What the item would do now, in words; empty where it may not be chosen.
std::string choiceOf(controller::Game& game, controller::MenuItemId id)
{
    const controller::MenuItem& item = controller::menuItem(id);
    controller::GameController& controller = game.controller();
    return item.mayChoose(controller)
        ? controller::plainMenuText(game.texts().localized("GameMenu", item.textNow(controller)))
        : std::string();
}

} // namespace

WebReader::WebReader(controller::Game& game, platform::RunLoop& runLoop)
    : m_game(game)
    , m_runLoop(runLoop)
{
    // The tree first, so that whoever looks round at the notice finds what it tells of.
    m_game.controller().speaker().setListener([this](const std::string& sentence) {
        tell();
        veyrand_host_announce(sentence.c_str());
    });
}

WebReader::~WebReader()
{
    m_game.controller().speaker().setListener({});
}

void WebReader::look()
{
    if (!m_isDue) {
        m_isDue = true;
        m_runLoop.performAfterDelay(kSoon, [this] {
            m_isDue = false;
            tell();
        });
    }
}

void WebReader::tell()
{
    const auto focus = m_game.controller().focus().shown();
    using controller::MenuItemId;
    Json shown = Json::object();
    shown["focus"] = focus ? focus->key : std::string();
    shown["undo"] = choiceOf(m_game, MenuItemId::Undo);
    shown["redo"] = choiceOf(m_game, MenuItemId::Redo);
    shown["tree"] = described(controller::accessibleTree(m_game.controller()),
        m_game.layers().backgroundLayer().rectInRoot(), m_height);
    // What can be done changes once more when the board answers again, and nothing is painted then.
    if (m_game.view().block().blockClick()) {
        look();
    }
    std::string text = shown.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (text != m_told) {
        m_told = std::move(text);
        veyrand_host_tree(m_told.c_str());
    }
}

void WebReader::act(const std::string& id, const std::string& action)
{
    controller::actOn(m_game.controller(), id, action);
    look();
}

} // namespace veyrand::web
