#include "controller/MenuChoices.h"

#include "controller/GameController.h"
#include "controller/SettingsTable.h"
#include "progress/PlayerKeys.h"

#include <algorithm>
#include <utility>

namespace veyrand::controller {

using progress::Settings;

void MenuChoices::connectTo(GameController& game, std::function<void(MenuItemId)> others)
{
    m_game = &game;
    m_others = std::move(others);
}

void MenuChoices::connectTo(std::vector<MenuItemId> only, std::function<void(MenuItemId)> others)
{
    m_game = nullptr;
    m_only = std::move(only);
    m_others = std::move(others);
}

bool MenuChoices::mayChoose(const MenuItem& item) const
{
    if (m_only) {
        return std::find(m_only->begin(), m_only->end(), item.id) != m_only->end();
    }
    return m_game == nullptr || item.mayChoose == nullptr || item.mayChoose(*m_game);
}

bool MenuChoices::isOn(const MenuItem& item) const
{
    return item.setting != nullptr && progress::readSettings(m_preferences).*item.setting;
}

const char* MenuChoices::textOf(const MenuItem& item) const
{
    return m_game == nullptr || item.textNow == nullptr ? item.text : item.textNow(*m_game);
}

bool MenuChoices::choose(const MenuItem& item)
{
    if (!mayChoose(item)) {
        return false;
    }
    if (item.setting != nullptr) {
        Settings settings = progress::readSettings(m_preferences);
        settings.*item.setting = !(settings.*item.setting);
        progress::writeSettings(m_preferences, settings);
    }
    if (m_game != nullptr && item.choose != nullptr) {
        item.choose(*m_game);
    } else if (m_others && item.setting == nullptr) {
        m_others(item.id);
    }
    return true;
}

bool MenuChoices::turn(std::string_view text)
{
    const SettingItem* const item = settingSwitch(text);
    if (item == nullptr) {
        return false;
    }
    Settings settings = progress::readSettings(m_preferences);
    item->set(settings, 1 - item->get(settings));
    progress::writeSettings(m_preferences, settings);
    if (m_game != nullptr) {
        m_game->settingsChanged();
    }
    return true;
}

} // namespace veyrand::controller
