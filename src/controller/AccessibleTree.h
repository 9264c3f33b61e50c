#pragma once

#include "board/GameObject.h"
#include "present/Extra.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrand::controller {

class GameController;

enum class AccessibleRole { Pane, Dialog, List, ListItem, Button, Text, Image, Status, Link };

// "pane", "dialog", "list", "list item", "button", "text", "image", "status", "link".
[[nodiscard]] std::string_view nameOf(AccessibleRole role);

// Something that can be done with a thing: by its name, which is the same in every language, or by
// the text that people hear, where the words before a colon are the action's own name.
struct AccessibleAction {
    std::string name;
    std::string text;

    [[nodiscard]] bool isCalled(std::string_view called) const;
    [[nodiscard]] std::string_view ownName() const;
    friend bool operator==(const AccessibleAction&, const AccessibleAction&) = default;
};

// One thing on the screen as a reader knows it, without a toolkit. Names and values are for people.
struct AccessibleNode {
    std::string id; // the same for as long as the thing is there: its key, or what it stands for
    AccessibleRole role = AccessibleRole::Text;
    std::string name;
    std::string value {};
    std::vector<AccessibleAction> actions {};
    std::vector<AccessibleNode> children {};
    present::ExtraRect place {}; // in game heights, by its centre; no width where it has none
    bool isFocusable = false;
    friend bool operator==(const AccessibleNode&, const AccessibleNode&) = default;
};

// Everything that can be read and done now. It is made anew for whoever asks, and costs nothing
// while nobody does. What can be done is what the keyboard's stops are.
[[nodiscard]] AccessibleNode accessibleTree(GameController& controller);

// The first that has the name, and an action of that name if one is asked for; null for none.
[[nodiscard]] const AccessibleNode* find(
    const AccessibleNode& tree, std::string_view name, std::string_view action);

// On which the keyboard stands; empty while no key is in use.
[[nodiscard]] std::string focusedId(GameController& controller);
void focusOn(GameController& controller, const std::string& id);

// Does what a reader asks of the thing; false when there is nothing to do. A block takes it for a
// press.
bool actOn(GameController& controller, const std::string& id, std::string_view action);

// The names of everything that has an action.
[[nodiscard]] std::vector<std::string> namesOfChoices(const AccessibleNode& tree);

} // namespace veyrand::controller
