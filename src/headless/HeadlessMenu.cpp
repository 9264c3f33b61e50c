#include "headless/HeadlessMenu.h"

#include "controller/GameController.h"
#include "progress/PlayerKeys.h"

namespace veyrand::headless {

namespace {

using Kind = controller::History::Kind;

std::string_view undoText(std::optional<Kind> kind)
{
    return !kind ? "Undo" : *kind == Kind::Move ? "Undo Move" : "Undo Removal";
}

std::string_view redoText(std::optional<Kind> kind)
{
    return !kind ? "Redo" : *kind == Kind::Move ? "Redo Move" : "Redo Removal";
}

} // namespace

void HeadlessMenu::connectTo(controller::GameController& controller)
{
    const auto canStart = [&controller] { return controller.canStartGame(); };
    const auto canOpen = [&controller] { return controller.canOpenPage(); };
    const auto canList = [&controller] { return controller.canListMoves(); };
    const auto canUndo = [&controller] { return controller.history().canUndo(); };
    const auto canRedo = [&controller] { return controller.history().canRedo(); };
    m_items = {
        { "Classic Game", "Ctrl+N", [&controller] { controller.flow().newClassicGame(); },
            canStart },
        { "Endless Game", "Ctrl+E", [&controller] { controller.flow().newEndlessGame(); },
            canStart },
        { "Quit", "Ctrl+Q", [&controller] { controller.context().quit.terminate(); } },
        { "Undo", "Ctrl+Z", [&controller] { controller.history().undo(); }, canUndo,
            [&controller] { return undoText(controller.history().undoes()); } },
        { "Redo", "Ctrl+Shift+Z", [&controller] { controller.history().redo(); }, canRedo,
            [&controller] { return redoText(controller.history().redoes()); } },
        { "", "Ctrl+Y", [&controller] { controller.history().redo(); }, canRedo },
        { "Music", "Ctrl+M",
            [this, &controller] {
                toggle(progress::kPlayMusicKey);
                controller.musicMenuClick();
            } },
        { "Sound Effects", "Ctrl+Shift+M", [this] { toggle(progress::kPlayEffectsKey); } },
        setting("Answers", &progress::Settings::answers, controller),
        setting("Say Why", &progress::Settings::sayWhy, controller),
        setting("Remember a Press", &progress::Settings::rememberPress, controller),
        setting("Forgiving Clicks", &progress::Settings::forgivingClicks, controller),
        setting("Keep Unfinished Puzzles", &progress::Settings::keepUnfinishedPuzzles, controller),
        { "Full Screen", "F11", [&controller] { controller.toggleFullscreen(); } },
        { "", "Esc", [&controller] { controller.escape(); } },
        { "How to Play", "F1", [&controller] { controller.showHowToPlay(); }, canOpen },
        { "Moves", "F2", [&controller] { controller.pages().show("movesMessageWindow"); },
            canList },
        { "Taking Back", "", [&controller] { controller.pages().show("takingBackMessageWindow"); },
            canOpen },
        { "Scoring", "", [&controller] { controller.pages().show("scoringMessageWindow"); },
            canOpen },
        { "About Veyrand", "", [this] { ++m_timesAbout; } },
    };
}

HeadlessMenu::Item HeadlessMenu::setting(
    std::string_view text, bool progress::Settings::*which, controller::GameController& controller)
{
    return { text, "", [this, which, &controller] {
                progress::Settings settings = progress::readSettings(m_preferences);
                settings.*which = !(settings.*which);
                progress::writeSettings(m_preferences, settings);
                controller.answers().settingsChanged();
                controller.kept().settingsChanged();
            } };
}

bool HeadlessMenu::musicOn() const
{
    return m_preferences.boolForKey(progress::kPlayMusicKey);
}

bool HeadlessMenu::effectsOn() const
{
    return m_preferences.boolForKey(progress::kPlayEffectsKey);
}

std::vector<std::string_view> HeadlessMenu::items() const
{
    std::vector<std::string_view> texts;
    for (const Item& item : m_items) {
        if (!item.text.empty()) {
            texts.push_back(textOf(item));
        }
    }
    return texts;
}

bool HeadlessMenu::trigger(std::string_view text)
{
    for (const Item& item : m_items) {
        if (!text.empty() && textOf(item) == text) {
            return choose(item);
        }
    }
    return false;
}

bool HeadlessMenu::triggerKeys(std::string_view keys)
{
    const Item* const item = itemUnder(keys);
    return item != nullptr && choose(*item);
}

bool HeadlessMenu::knowsKeys(std::string_view keys) const
{
    return itemUnder(keys) != nullptr;
}

const HeadlessMenu::Item* HeadlessMenu::itemUnder(std::string_view keys) const
{
    for (const Item& item : m_items) {
        if (!keys.empty() && item.keys == keys) {
            return &item;
        }
    }
    return nullptr;
}

std::string_view HeadlessMenu::textOf(const Item& item)
{
    return item.textNow ? item.textNow() : item.text;
}

bool HeadlessMenu::choose(const Item& item)
{
    if (item.isEnabled && !item.isEnabled()) {
        return false;
    }
    item.choose();
    return true;
}

void HeadlessMenu::toggle(std::string_view key)
{
    m_preferences.setValue(key, !m_preferences.boolForKey(key));
}

} // namespace veyrand::headless
