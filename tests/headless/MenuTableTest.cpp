#include "headless/HeadlessGame.h"

#include <gmock/gmock.h>
#include <set>

namespace veyrand::controller {

namespace {

char letterOf(std::string_view text)
{
    const std::size_t at = text.find('&');
    return at + 1 < text.size() ? static_cast<char>(std::tolower(text[at + 1])) : '\0';
}

} // namespace

TEST(MenuTable, GivesNoKeysTwice)
{
    std::set<std::string_view> taken;
    for (const MenuItem& item : menuItems()) {
        for (const std::string_view keys : item.keys) {
            EXPECT_TRUE(keys.empty() || taken.insert(keys).second) << keys;
        }
    }
    EXPECT_FALSE(taken.empty());
}

TEST(MenuTable, OpensEachTitleAndItemByALetterOfItsOwn)
{
    std::set<char> titles;
    for (const MenuTitle& title : menuTitles()) {
        EXPECT_TRUE(titles.insert(letterOf(title.text)).second) << title.text;
        std::set<char> items;
        for (const MenuItem& item : menuItems()) {
            if (item.menu == title.id && *item.text != '\0') {
                EXPECT_TRUE(items.insert(letterOf(item.text)).second) << item.text;
            }
        }
        EXPECT_GT(items.size(), 0U) << title.text;
    }
    EXPECT_FALSE(titles.contains('\0'));
}

TEST(MenuTable, FindsEveryItemByItsName)
{
    for (const MenuItem& item : menuItems()) {
        EXPECT_EQ(menuItem(item.id).id, item.id);
        EXPECT_TRUE(item.id == MenuItemId::Separator || &menuItem(item.id) == &item);
        EXPECT_EQ(item.kind == MenuItem::Kind::Separator, item.id == MenuItemId::Separator);
    }
}

TEST(MenuChoices, SavesASwitchBeforeThereIsAGame)
{
    platform::MemoryPreferences preferences;
    MenuChoices choices(preferences);
    EXPECT_FALSE(choices.isOn(menuItem(MenuItemId::Music)));
    EXPECT_TRUE(choices.choose(menuItem(MenuItemId::Music)));
    EXPECT_TRUE(choices.isOn(menuItem(MenuItemId::Music)));
    EXPECT_TRUE(choices.choose(menuItem(MenuItemId::Quit))) << "which does nothing";
}

TEST(MenuChoices, HandOnWhatTheTableLeavesToTheWindow)
{
    headless::HeadlessGame game({});
    std::vector<MenuItemId> asked;
    MenuChoices choices(game.preferences());
    choices.connectTo(game.controller(), [&](MenuItemId id) { asked.push_back(id); });
    choices.choose(menuItem(MenuItemId::About));
    choices.choose(menuItem(MenuItemId::SoundEffects));
    choices.choose(menuItem(MenuItemId::Settings));
    EXPECT_EQ(asked, (std::vector { MenuItemId::About, MenuItemId::Settings }));
}

TEST(MenuChoices, MayBeNarrowedToWhatNeedsNoPlayer)
{
    headless::HeadlessGame game({});
    std::vector<MenuItemId> asked;
    MenuChoices choices(game.preferences());
    choices.connectTo(game.controller(), {});
    choices.connectTo(
        { MenuItemId::Quit, MenuItemId::Leave }, [&](MenuItemId id) { asked.push_back(id); });
    EXPECT_TRUE(choices.choose(menuItem(MenuItemId::Leave)));
    EXPECT_FALSE(choices.choose(menuItem(MenuItemId::ClassicGame)));
    EXPECT_FALSE(choices.choose(menuItem(MenuItemId::SoundEffects)));
    EXPECT_TRUE(choices.choose(menuItem(MenuItemId::Quit)));
    EXPECT_EQ(asked, (std::vector { MenuItemId::Leave, MenuItemId::Quit }));
    EXPECT_FALSE(game.quit().terminated());
}

TEST(MenuChoices, TurnTheSwitchesOfTheSettingsWindow)
{
    headless::HeadlessGame game({});
    MenuChoices choices(game.preferences());
    choices.connectTo(game.controller(), {});
    EXPECT_TRUE(choices.turn("Keep Unfinished Puzzles"));
    EXPECT_FALSE(progress::readSettings(game.preferences()).keepUnfinishedPuzzles);
    EXPECT_TRUE(choices.turn("Keep Unfinished Puzzles"));
    EXPECT_TRUE(progress::readSettings(game.preferences()).keepUnfinishedPuzzles);
    EXPECT_FALSE(choices.turn("Music")) << "which the menu has";
}

TEST(MenuChoices, NameTheStepThatUndoTakesBack)
{
    headless::HeadlessGame game({});
    MenuChoices choices(game.preferences());
    choices.connectTo(game.controller(), {});
    const MenuItem& undo = menuItem(MenuItemId::Undo);
    EXPECT_STREQ(choices.textOf(undo), "&Undo");
    EXPECT_FALSE(choices.mayChoose(undo));
    game.play({ .root = "YR", .goal = "YGGB", .par = 5, .level = 5, .stage = 1 });
    game.wait(1.0);
    game.click(*game.centreOf("chip-0-0"));
    game.wait(4.0);
    EXPECT_STREQ(choices.textOf(undo), "&Undo Move");
    EXPECT_EQ(plainMenuText(choices.textOf(undo)), "Undo Move");
    EXPECT_TRUE(choices.choose(undo));
    game.wait(4.0);
    EXPECT_STREQ(choices.textOf(menuItem(MenuItemId::Redo)), "&Redo Move");
    EXPECT_EQ(game.controller().proof()->lines().size(), 1U);
}

} // namespace veyrand::controller
