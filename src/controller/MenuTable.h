#pragma once

#include "progress/Settings.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace veyrand::controller {

class GameController;

enum class MenuId { Game, Edit, Options, Help };

enum class MenuItemId {
    Separator,
    ClassicGame,
    EndlessGame,
    BringBack,
    Puzzles,
    Export,
    Import,
    Daily,
    Editor,
    MyPuzzles,
    Statistics,
    Quit,
    Undo,
    Redo,
    Music,
    SoundEffects,
    Settings,
    FullScreen,
    Leave,
    HowToPlay,
    Moves,
    Keys,
    TakingBack,
    Scoring,
    BoardAnswers,
    AboutSettings,
    ByEar,
    Practice,
    ExportHelp,
    DailyHelp,
    EditorHelp,
    StatisticsHelp,
    LookingBack,
    HowFar,
    About,
};

// A title of the menu bar. An ampersand stands before the letter that opens it with Alt.
struct MenuTitle {
    MenuId id;
    const char* text;
};

// One line of a menu, or what lies under keys alone. Whoever shows the menu translates the texts;
// it need not know what the items do.
struct MenuItem {
    enum class Kind {
        Command,
        Switch, // shows whether it is on
        Separator,
        Hidden, // in no menu, but under its keys
    };
    static constexpr std::size_t kMostKeys = 2;

    MenuItemId id {};
    MenuId menu {};
    Kind kind = Kind::Command;
    const char* text = ""; // with an ampersand, as titles
    std::array<std::string_view, kMostKeys> keys {}; // "Ctrl+Shift+Z"; the first is shown
    bool progress::Settings::*setting = nullptr; // what a switch turns on and off
    // What choosing does to the game, after the setting has changed; null: what whoever shows the
    // menu makes of it.
    void (*choose)(GameController& game) = nullptr;
    bool (*mayChoose)(GameController& game) = nullptr; // null: always
    const char* (*textNow)(GameController& game) = nullptr; // null: always the text
};

// From left to right, and from top to bottom, menu by menu.
[[nodiscard]] std::span<const MenuTitle> menuTitles();
[[nodiscard]] std::span<const MenuItem> menuItems();

[[nodiscard]] const MenuItem& menuItem(MenuItemId id);

// Without the ampersand.
[[nodiscard]] std::string plainMenuText(std::string_view text);

} // namespace veyrand::controller
