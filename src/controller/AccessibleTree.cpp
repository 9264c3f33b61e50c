#include "controller/AccessibleTree.h"

#include "board/Buttons.h"
#include "board/ElementKey.h"
#include "controller/GameController.h"
#include "controller/MessageWords.h"
#include "controller/SpokenNames.h"

#include <algorithm>
#include <array>

namespace veyrand::controller {

namespace {

using Role = AccessibleRole;
using input::Stop;

constexpr std::string_view kOnSheet = "sheet-"; // before the key of its place

// The names of actions; what they are called for people is in the texts.
constexpr const char* kClick = "click";
constexpr const char* kLift = "lift";
constexpr const char* kDrop = "drop";
constexpr const char* kPutBack = "put back";
constexpr const char* kPress = "press";
constexpr const char* kClose = "close";

class Builder {
public:
    explicit Builder(GameController& controller)
        : m_controller(controller)
        , m_table(controller.context().board.gameData.gameObjects())
        , m_stops(controller.focus().stops())
        , m_actions(controller.actions())
        , m_tips(controller)
        , m_names(controller.context().texts)
    {
    }

    AccessibleNode build()
    {
        AccessibleNode root { .id = "board", .role = Role::Pane, .name = "Veyrand" };
        root.place = { .x = 0.8, .y = 0.5, .width = 1.6, .height = 1.0 };
        const input::Overlay overlay = m_controller.context().view.overlay();
        if (m_controller.sheets().isOpen()) {
            root.children.push_back(sheet());
            root.children.push_back(status());
            return root;
        }
        if (overlay == input::Overlay::Question) {
            root.children.push_back(question());
        } else if (overlay != input::Overlay::None) {
            root.children.push_back(message());
        }
        if (overlay == input::Overlay::None || overlay == input::Overlay::Note) {
            addLines(root);
            addHelp(root);
            addPanel(root);
            // What belongs to the view alone. The one of the title page is no button of its own
            // question, but leads elsewhere.
            for (const present::SheetPlace& place : m_controller.sheets().buttons()) {
                root.children.push_back(placeToPress(place));
                if (place.key != kGuideButton) {
                    root.children.back().role = Role::Link;
                }
            }
        }
        root.children.push_back(status());
        return root;
    }

private:
    [[nodiscard]] AccessibleNode status() const
    {
        return { .id = "status", .role = Role::Status, .name = m_controller.speaker().last() };
    }

    // It lies over everything else.
    [[nodiscard]] AccessibleNode sheet() const
    {
        const Sheets& sheets = m_controller.sheets();
        AccessibleNode made { .id = "sheet", .role = Role::Dialog, .name = sheets.title() };
        made.place = { .x = 0.8, .y = 0.5, .width = 1.6, .height = 1.0 };
        if (const std::string told = sheets.told(); !told.empty()) {
            made.children.push_back({ .id = "told", .role = Role::Text, .name = told });
        }
        for (const present::SheetPlace& place : sheets.places()) {
            made.children.push_back(placeToPress(place));
        }
        return made;
    }

    [[nodiscard]] AccessibleNode placeToPress(const present::SheetPlace& place) const
    {
        return { .id = std::string(kOnSheet) + place.key,
            .role = Role::Button,
            .name = place.text,
            .actions = { { kPress, m_names.pressAction() } },
            .place = place.rect,
            .isFocusable = true };
    }

    [[nodiscard]] AccessibleNode node(const std::string& key, Role role, std::string name) const
    {
        AccessibleNode made { .id = key, .role = role, .name = std::move(name) };
        if (const auto record = m_table.objectForKey(key)) {
            made.place = { .x = record->x(),
                .y = record->y(),
                .width = record->width(),
                .height = record->height() };
        }
        return made;
    }

    [[nodiscard]] const Stop* stop(const std::string& key) const
    {
        const auto found = std::find_if(
            m_stops.begin(), m_stops.end(), [&key](const Stop& one) { return one.key == key; });
        return found != m_stops.end() ? &*found : nullptr;
    }

    void allow(AccessibleNode& made, const char* action, std::string text) const
    {
        if (stop(made.id) != nullptr) {
            made.actions.push_back({ action, std::move(text) });
            made.isFocusable = true;
        }
    }

    [[nodiscard]] AccessibleNode message() const
    {
        AccessibleNode made = node(std::string(input::kMessageKey), Role::Dialog, {});
        if (const auto* const window = m_controller.messages().messageWindow()) {
            const MessageWords words
                = wordsOf(*window, m_controller.context().layers.textMetrics(), m_names);
            made.name = words.title;
            if (!words.body.empty()) {
                made.children.push_back(
                    { .id = "message", .role = Role::Text, .name = words.body });
            }
        }
        if (const Stop* const place = stop(made.id)) {
            made.place
                = { .x = place->x, .y = place->y, .width = place->width, .height = place->height };
            for (AccessibleNode& child : made.children) {
                child.place = made.place;
            }
        }
        allow(made, kClose, m_names.closeAction());
        return made;
    }

    [[nodiscard]] AccessibleNode question() const
    {
        AccessibleNode made
            = node(std::string(input::kMessageKey), Role::Dialog, m_names.question());
        for (const board::Button& button : board::kButtons) {
            if (button.screen == board::ButtonScreen::Question) {
                made.children.push_back(this->button(button));
            }
        }
        return made;
    }

    [[nodiscard]] AccessibleNode button(const board::Button& button) const
    {
        const std::string key(button.litKey);
        const auto record = m_table.objectForKey(key);
        AccessibleNode made
            = node(key, Role::Button, record ? m_names.thing(record->name()) : std::string());
        allow(made, kPress, m_names.pressAction());
        return made;
    }

    void addLines(AccessibleNode& root) const
    {
        const auto& proof = m_controller.proof();
        if (!proof || proof->lines().empty()) {
            return;
        }
        root.children.push_back(goal(proof->goal().theorem()));
        for (unsigned row = 0; row < proof->lines().size(); ++row) {
            root.children.push_back(line(row, proof->lines()[row].theorem()));
            const std::string key = board::deleteButtonKey(row);
            if (row > 0 && m_table.contains(key)) {
                AccessibleNode made = node(key, Role::Button, m_names.removal(row));
                allow(made, kPress,
                    m_names.removeAction(static_cast<unsigned>(proof->lines().size()) - row));
                root.children.push_back(std::move(made));
            }
        }
    }

    [[nodiscard]] AccessibleNode goal(const std::string& chips) const
    {
        AccessibleNode made { .id = "goal", .role = Role::List, .name = m_names.goal(chips) };
        for (unsigned column = 0; column < chips.size(); ++column) {
            made.children.push_back(node(board::chipKey("goal", column, board::kGoalRow),
                Role::ListItem, m_names.chipInGoal(chips[column], column)));
        }
        made.place = around(made.children);
        return made;
    }

    [[nodiscard]] AccessibleNode line(unsigned row, const std::string& chips) const
    {
        AccessibleNode made { .id = "line-" + std::to_string(row),
            .role = Role::List,
            .name = m_names.line(row, chips) };
        for (unsigned column = 0; column < chips.size(); ++column) {
            AccessibleNode chip = node(board::generateKeyChipKey(column, row), Role::ListItem,
                m_names.chipInLine(chips[column], row, column));
            addActions(chip, chips, row, column);
            made.children.push_back(std::move(chip));
        }
        made.place = around(made.children);
        return made;
    }

    void addActions(
        AccessibleNode& chip, const std::string& chips, unsigned row, unsigned column) const
    {
        const std::string lifted = m_controller.context().view.keyLifted();
        if (chip.id == lifted) {
            chip.actions.push_back({ kPutBack, m_names.putBackAction() });
            return;
        }
        if (stop(chip.id) == nullptr) {
            return;
        }
        chip.isFocusable = true;
        if (!lifted.empty()) {
            chip.actions.push_back(
                { kDrop, m_names.dropAction(chips[board::columnForKey(lifted)]) });
            return;
        }
        const auto has = [this](const auto& test) {
            return std::any_of(m_actions.begin(), m_actions.end(), test);
        };
        if (has([&](const play::Gesture& gesture) {
                const auto* const click = std::get_if<play::Click>(&gesture);
                return click != nullptr && *click == play::Click { row, column };
            })) {
            chip.actions.push_back({ kClick, m_names.clickAction(chips[column]) });
        }
        if (has([&](const play::Gesture& gesture) {
                const auto* const drag = std::get_if<play::Drag>(&gesture);
                return drag != nullptr && drag->fromRow == row && drag->from == column;
            })) {
            chip.actions.push_back({ kLift, m_names.liftAction() });
        }
    }

    // The mark that the line is good, and the pieces of a hint.
    void addHelp(AccessibleNode& root) const
    {
        std::vector<std::string> names;
        std::vector<AccessibleNode> pieces;
        for (unsigned i = 0; i < play::kMostChips; ++i) {
            const std::string key = board::chipKey("hint", i, board::kHintRow);
            if (const auto record = m_table.objectForKey(key)) {
                names.push_back(m_names.thing(record->name()));
                pieces.push_back(node(key, Role::ListItem, names.back()));
            }
        }
        if (!pieces.empty()) {
            AccessibleNode made { .id = "hint",
                .role = Role::List,
                .name = m_names.hintPieces(names),
                .children = std::move(pieces) };
            made.place = around(made.children);
            root.children.push_back(std::move(made));
        }
        if (const auto record = m_table.objectForKey("checkmark")) {
            root.children.push_back(node("checkmark", Role::Image, m_names.thing(record->name())));
        }
    }

    void addPanel(AccessibleNode& root) const
    {
        constexpr std::array<std::array<const char*, 2>, 3> kCounters {
            { { "label-points", "counter-score" }, { "label-stage", "counter-stage" },
                { "label-par", "counter-par" } }
        };
        for (const auto& [label, counter] : kCounters) {
            const auto caption = m_table.objectForKey(label);
            const auto record = m_table.objectForKey(counter);
            if (caption && record) {
                AccessibleNode made = node(counter, Role::Text, m_names.thing(caption->name()));
                made.value = record->text() ? record->text()->text : std::string();
                made.place = { .x = caption->x(),
                    .y = record->y(),
                    .width = caption->width(),
                    .height = caption->height() };
                root.children.push_back(std::move(made));
            }
        }
        for (const board::Button& one : board::kButtons) {
            if (one.screen != board::ButtonScreen::Question
                && m_table.contains(std::string(one.litKey))) {
                root.children.push_back(button(one));
            }
        }
        for (const char* const key :
            { "label-classicsavegame", "label-endlesssavegame", "label-endlessgamelocked" }) {
            if (const auto record = m_table.objectForKey(key)) {
                AccessibleNode made = node(key, Role::Image, m_names.thing(record->name()));
                made.value = m_tips.textFor(key);
                root.children.push_back(std::move(made));
            }
        }
    }

    [[nodiscard]] static present::ExtraRect around(const std::vector<AccessibleNode>& nodes)
    {
        if (nodes.empty()) {
            return {};
        }
        const present::ExtraRect& first = nodes.front().place;
        const present::ExtraRect& last = nodes.back().place;
        const double left = first.x - first.width / 2.0;
        const double right = last.x + last.width / 2.0;
        return {
            .x = (left + right) / 2.0, .y = first.y, .width = right - left, .height = first.height
        };
    }

    GameController& m_controller;
    const board::ObjectTable& m_table;
    std::vector<Stop> m_stops;
    std::vector<play::Gesture> m_actions;
    Tips m_tips;
    SpokenNames m_names;
};

} // namespace

std::string_view nameOf(AccessibleRole role)
{
    constexpr std::array<std::string_view, 9> kNames { "pane", "dialog", "list", "list item",
        "button", "text", "image", "status", "link" };
    return kNames.at(static_cast<std::size_t>(role));
}

AccessibleNode accessibleTree(GameController& controller)
{
    return Builder(controller).build();
}

bool AccessibleAction::isCalled(std::string_view called) const
{
    return called == name || called == text || called == ownName();
}

std::string_view AccessibleAction::ownName() const
{
    std::string_view own = std::string_view(text).substr(0, text.find(':'));
    // The blanks that French writes before a colon.
    for (const std::string_view blank : { " ", "\u00A0", "\u202F" }) {
        if (own.size() < text.size() && own.ends_with(blank)) {
            own.remove_suffix(blank.size());
        }
    }
    return own;
}

const AccessibleNode* find(
    const AccessibleNode& tree, std::string_view name, std::string_view action)
{
    const bool does = action.empty()
        || std::any_of(tree.actions.begin(), tree.actions.end(),
            [action](const AccessibleAction& one) { return one.isCalled(action); });
    if (tree.name == name && does) {
        return &tree;
    }
    for (const AccessibleNode& child : tree.children) {
        if (const AccessibleNode* const found = find(child, name, action)) {
            return found;
        }
    }
    return nullptr;
}

std::string focusedId(GameController& controller)
{
    if (controller.sheets().isOpen()) {
        return std::string(kOnSheet) + controller.sheets().focus();
    }
    const auto stop = controller.focus().shown();
    return stop ? stop->key : std::string();
}

void focusOn(GameController& controller, const std::string& id)
{
    if (id.starts_with(kOnSheet)) {
        controller.sheets().focusOn(id.substr(kOnSheet.size()));
    } else {
        controller.focus().goTo(id);
    }
}

bool actOn(GameController& controller, const std::string& id, std::string_view action)
{
    input::GameView& view = controller.context().view;
    if (id.starts_with(kOnSheet)) {
        controller.sheets().choose(id.substr(kOnSheet.size()));
        return true;
    }
    const SpokenNames names(controller.context().texts);
    const bool isLifted = !view.keyLifted().empty();
    bool done = true;
    if (AccessibleAction { kLift, names.liftAction() }.isCalled(action)) {
        done = view.liftByKey(id);
        if (done) {
            controller.speaker().chipLifted(id);
        }
    } else if (isLifted && AccessibleAction { kPutBack, names.putBackAction() }.isCalled(action)) {
        view.cancelGesture();
        controller.speaker().chipPutBack();
    } else if (isLifted && board::isChipKey(id)) {
        view.drop(id);
    } else {
        view.activate(id);
    }
    controller.answers().handsChanged();
    return done;
}

std::vector<std::string> namesOfChoices(const AccessibleNode& tree)
{
    std::vector<std::string> names;
    if (!tree.actions.empty()) {
        names.push_back(tree.name);
    }
    for (const AccessibleNode& child : tree.children) {
        const auto more = namesOfChoices(child);
        names.insert(names.end(), more.begin(), more.end());
    }
    return names;
}

} // namespace veyrand::controller
