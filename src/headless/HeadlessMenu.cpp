#include "headless/HeadlessMenu.h"

#include <algorithm>

namespace veyrand::headless {

namespace {

using controller::MenuItem;

bool isShown(const MenuItem& item)
{
    return item.kind == MenuItem::Kind::Command || item.kind == MenuItem::Kind::Switch;
}

const MenuItem* itemUnder(std::string_view keys)
{
    for (const MenuItem& item : controller::menuItems()) {
        const bool isIts = std::find(item.keys.begin(), item.keys.end(), keys) != item.keys.end();
        if (!keys.empty() && isIts) {
            return &item;
        }
    }
    return nullptr;
}

} // namespace

void HeadlessMenu::connectTo(controller::GameController& controller)
{
    m_choices.connectTo(controller, [this](controller::MenuItemId id) {
        m_timesAbout += id == controller::MenuItemId::About ? 1 : 0;
    });
}

std::vector<std::string> HeadlessMenu::items() const
{
    std::vector<std::string> texts;
    for (const MenuItem& item : controller::menuItems()) {
        if (isShown(item)) {
            texts.push_back(controller::plainMenuText(m_choices.textOf(item)));
        }
    }
    return texts;
}

bool HeadlessMenu::trigger(std::string_view text)
{
    for (const MenuItem& item : controller::menuItems()) {
        if (isShown(item) && controller::plainMenuText(m_choices.textOf(item)) == text) {
            return m_choices.choose(item);
        }
    }
    return m_choices.turn(text);
}

bool HeadlessMenu::triggerKeys(std::string_view keys)
{
    const MenuItem* const item = itemUnder(keys);
    return item != nullptr && m_choices.choose(*item);
}

bool HeadlessMenu::knowsKeys(std::string_view keys) const
{
    return itemUnder(keys) != nullptr;
}

} // namespace veyrand::headless
