#include "controller/MenuTable.h"

#include "controller/GameController.h"

#include <algorithm>

namespace veyrand::controller {

namespace {

using progress::Settings;
using Kind = MenuItem::Kind;
using Step = std::optional<History::Kind>;

constexpr std::array kTitles {
    MenuTitle { MenuId::Game, "&Game" },
    MenuTitle { MenuId::Edit, "&Edit" },
    MenuTitle { MenuId::Options, "&Options" },
    MenuTitle { MenuId::Help, "&Help" },
};

bool canStart(GameController& game)
{
    return game.canStartGame();
}

bool canOpenSheet(GameController& game)
{
    return game.sheets().canOpen();
}

bool canOpenPage(GameController& game)
{
    return game.canOpenPage();
}

void redo(GameController& game)
{
    game.history().redo();
}

// What Undo and Redo would do now.

const char* undoText(GameController& game)
{
    const Step step = game.history().undoes();
    return !step ? "&Undo" : *step == History::Kind::Move ? "&Undo Move" : "&Undo Removal";
}

const char* redoText(GameController& game)
{
    const Step step = game.history().redoes();
    return !step ? "&Redo" : *step == History::Kind::Move ? "&Redo Move" : "&Redo Removal";
}

constexpr MenuItem separator(MenuId menu)
{
    return { .id = MenuItemId::Separator, .menu = menu, .kind = Kind::Separator };
}

template <class Choose, class MayChoose>
constexpr MenuItem page(
    MenuItemId id, const char* text, std::string_view keys, Choose choose, MayChoose mayChoose)
{
    return { .id = id,
        .menu = MenuId::Help,
        .text = text,
        .keys = { keys },
        .choose = choose,
        .mayChoose = mayChoose };
}

constexpr std::array kItems {
    MenuItem { .id = MenuItemId::ClassicGame,
        .menu = MenuId::Game,
        .text = "&Classic Game",
        .keys = { "Ctrl+N" },
        .choose = [](GameController& game) { game.flow().newClassicGame(); },
        .mayChoose = canStart },
    MenuItem { .id = MenuItemId::EndlessGame,
        .menu = MenuId::Game,
        .text = "&Endless Game",
        .keys = { "Ctrl+E" },
        .choose = [](GameController& game) { game.flow().newEndlessGame(); },
        .mayChoose = canStart },
    MenuItem { .id = MenuItemId::Puzzles,
        .menu = MenuId::Game,
        .text = "&Puzzles\u2026",
        .keys = { "Ctrl+P" },
        .choose = [](GameController& game) { game.sheets().openMap(); },
        .mayChoose = canOpenSheet },
    MenuItem { .id = MenuItemId::Daily,
        .menu = MenuId::Game,
        .text = "&Daily\u2026",
        .keys = { "Ctrl+D" },
        .choose = [](GameController& game) { game.sheets().openDaily(); },
        .mayChoose = canOpenSheet },
    MenuItem { .id = MenuItemId::Editor,
        .menu = MenuId::Game,
        .text = "Edi&tor\u2026",
        .choose = [](GameController& game) { game.sheets().openEditor(); },
        .mayChoose = canOpenSheet },
    MenuItem { .id = MenuItemId::MyPuzzles,
        .menu = MenuId::Game,
        .text = "&My Puzzles\u2026",
        .choose = [](GameController& game) { game.sheets().openMine(); },
        .mayChoose = canOpenSheet },
    MenuItem { .id = MenuItemId::Statistics,
        .menu = MenuId::Game,
        .text = "&Statistics\u2026",
        .choose = [](GameController& game) { game.sheets().openStatistics(); },
        .mayChoose = canOpenSheet },
    MenuItem { .id = MenuItemId::BringBack,
        .menu = MenuId::Game,
        .text = "&Bring Back the Previous Game",
        .choose = [](GameController& game) { game.previous().offer(); },
        .mayChoose = [](GameController& game) { return game.previous().canOffer(); } },
    separator(MenuId::Game),
    MenuItem { .id = MenuItemId::Export,
        .menu = MenuId::Game,
        .text = "E&xport\u2026",
        .choose = [](GameController& game) { game.transfer().exportGame(); },
        .mayChoose = [](GameController& game) { return game.transfer().canExport(); } },
    MenuItem { .id = MenuItemId::Import,
        .menu = MenuId::Game,
        .text = "&Import\u2026",
        .choose = [](GameController& game) { game.transfer().importGame(); },
        .mayChoose = [](GameController& game) { return game.transfer().canImport(); } },
    separator(MenuId::Game),
    MenuItem { .id = MenuItemId::Quit,
        .menu = MenuId::Game,
        .text = "&Quit",
        .keys = { "Ctrl+Q" },
        .choose = [](GameController& game) { game.context().quit.terminate(); } },

    MenuItem { .id = MenuItemId::Undo,
        .menu = MenuId::Edit,
        .text = "&Undo",
        .keys = { "Ctrl+Z" },
        .choose = [](GameController& game) { game.history().undo(); },
        .mayChoose = [](GameController& game) { return game.history().canUndo(); },
        .textNow = undoText },
    MenuItem { .id = MenuItemId::Redo,
        .menu = MenuId::Edit,
        .text = "&Redo",
        .keys = { "Ctrl+Shift+Z", "Ctrl+Y" }, // the second is what other desktops press for it
        .choose = redo,
        .mayChoose = [](GameController& game) { return game.history().canRedo(); },
        .textNow = redoText },

    MenuItem { .id = MenuItemId::Music,
        .menu = MenuId::Options,
        .kind = Kind::Switch,
        .text = "&Music",
        .keys = { "Ctrl+M" },
        .setting = &Settings::music,
        .choose = [](GameController& game) { game.musicMenuClick(); } },
    MenuItem { .id = MenuItemId::SoundEffects,
        .menu = MenuId::Options,
        .kind = Kind::Switch,
        .text = "&Sound Effects",
        .keys = { "Ctrl+Shift+M" },
        .setting = &Settings::effects },
    separator(MenuId::Options),
    MenuItem { .id = MenuItemId::Settings,
        .menu = MenuId::Options,
        .text = "Se&ttings…",
        .keys = { "Ctrl+," } },
    separator(MenuId::Options),
    MenuItem { .id = MenuItemId::FullScreen,
        .menu = MenuId::Options,
        .kind = Kind::Switch,
        .text = "&Full Screen",
        .keys = { "F11" },
        .choose = [](GameController& game) { game.toggleFullscreen(); } },
    // What everybody presses to get out.
    MenuItem { .id = MenuItemId::Leave,
        .menu = MenuId::Options,
        .kind = Kind::Hidden,
        .keys = { "Esc" },
        .choose = [](GameController& game) { game.escape(); } },

    page(
        MenuItemId::HowToPlay, "&How to Play", "F1",
        [](GameController& game) { game.showHowToPlay(); }, canOpenPage),
    page(
        MenuItemId::Moves, "&Moves", "F2",
        [](GameController& game) { game.pages().show("movesMessageWindow"); },
        [](GameController& game) { return game.canListMoves(); }),
    page(
        MenuItemId::Keys, "&Keys", {},
        [](GameController& game) { game.pages().show("keysMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::TakingBack, "&Taking Back", {},
        [](GameController& game) { game.pages().show("takingBackMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::Scoring, "&Scoring", {},
        [](GameController& game) { game.pages().show("scoringMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::BoardAnswers, "The &Board Answers", {},
        [](GameController& game) { game.pages().show("boardAnswersMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::Practice, "&Practice", {},
        [](GameController& game) { game.pages().show("practiceMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::ExportHelp, "&Export and Import", {},
        [](GameController& game) { game.pages().show("exportMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::DailyHelp, "&Daily Puzzles", {},
        [](GameController& game) { game.pages().show("dailyMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::EditorHelp, "Edit&or", {},
        [](GameController& game) { game.pages().show("editorMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::StatisticsHelp, "Stat&istics", {},
        [](GameController& game) { game.pages().show("statisticsMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::LookingBack, "&Looking Back", {},
        [](GameController& game) { game.pages().show("replayMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::HowFar, "How &Far", {},
        [](GameController& game) { game.pages().show("guideMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::AboutSettings, "The Settin&gs", {},
        [](GameController& game) { game.pages().show("settingsMessageWindow"); }, canOpenPage),
    page(
        MenuItemId::ByEar, "Playing by Ea&r", {},
        [](GameController& game) { game.pages().show("byEarMessageWindow"); }, canOpenPage),
    separator(MenuId::Help),
    MenuItem { .id = MenuItemId::About, .menu = MenuId::Help, .text = "&About Veyrand" },
};

} // namespace

std::span<const MenuTitle> menuTitles()
{
    return kTitles;
}

std::span<const MenuItem> menuItems()
{
    return kItems;
}

const MenuItem& menuItem(MenuItemId id)
{
    return *std::find_if(
        kItems.begin(), kItems.end(), [id](const MenuItem& item) { return item.id == id; });
}

std::string plainMenuText(std::string_view text)
{
    std::string plain(text);
    plain.erase(std::remove(plain.begin(), plain.end(), '&'), plain.end());
    return plain;
}

} // namespace veyrand::controller
