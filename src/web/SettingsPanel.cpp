#include "web/SettingsPanel.h"

#include "controller/MenuTable.h"
#include "controller/SettingsTable.h"
#include "language/Json.h"

namespace veyrand::web {

namespace {

using controller::SettingItem;
using controller::SettingsSection;
using language::Json;

// What speaks of the desktop in a window speaks of the browser on a page.
std::string said(const language::Texts& texts, const char* text)
{
    const bool isOfPages = texts.knows(std::string("WebPage.") + text);
    return controller::plainMenuText(
        texts.localized(isOfPages ? "WebPage" : "SettingsWindow", text));
}

const char* kindOf(const SettingItem& item)
{
    switch (item.kind) {
    case SettingItem::Kind::Switch:
        return "switch";
    case SettingItem::Kind::Choice:
        return "choice";
    case SettingItem::Kind::Volume:
        break;
    }
    return "volume";
}

Json described(
    const SettingItem& item, const progress::Settings& settings, const language::Texts& texts)
{
    Json choices = Json::array();
    for (const char* const choice : item.choices) {
        if (choice != nullptr) {
            choices.push_back(said(texts, choice));
        }
    }
    return { { "kind", kindOf(item) }, { "text", said(texts, item.text) },
        { "help", said(texts, item.help) }, { "value", item.get(settings) },
        { "choices", choices } };
}

} // namespace

std::string panelOfSettings(const platform::Preferences& preferences, const language::Texts& texts)
{
    const progress::Settings settings = progress::readSettings(preferences);
    const auto items = controller::settingItems();
    Json sections = Json::array();
    for (const auto section :
        { SettingsSection::Sound, SettingsSection::Look, SettingsSection::Play }) {
        Json entries = Json::array();
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i].section == section) {
                entries.push_back(described(items[i], settings, texts));
                entries.back()["number"] = i;
            }
        }
        sections.push_back(
            { { "title", said(texts, controller::textOf(section)) }, { "items", entries } });
    }
    return Json {
        { "title", said(texts, controller::kSettingsTitle) },
        { "reset", said(texts, controller::kResetSettings) },
        { "close", said(texts, controller::kCloseSettings) },
        { "sections", sections },
    }
        .dump();
}

} // namespace veyrand::web
