#include "app/VirtualGame.h"
#include "headless/HeadlessGame.h"
#include "progress/PlayerKeys.h"
#include "support/QtEnvironment.h"

#include <QAction>

#include <gmock/gmock.h>

namespace veyrand::app {

using ::testing::ElementsAreArray;

TEST(Switches, AreAsTheyWereLeft)
{
    platform::MemoryPreferences preferences;
    preferences.setValue(progress::kPlayMusicKey, false);
    preferences.setValue(progress::kPlayEffectsKey, true);
    desktop::qt::GameMenu shown(preferences);
    std::vector<std::string> ticked;
    for (const QAction* const title : shown.bar()->actions()) {
        for (const QAction* const item : title->menu()->actions()) {
            if (item->isChecked()) {
                ticked.push_back(item->text().remove(QLatin1Char('&')).toStdString());
            }
        }
    }
    EXPECT_THAT(ticked, ::testing::Contains("Sound Effects"));
    EXPECT_THAT(ticked, ::testing::Not(::testing::Contains("Music")));
}

TEST(Menus, OfAHeadlessGameHaveTheItemsOfTheMenuBarUnderTheSameNames)
{
    platform::MemoryPreferences preferences;
    desktop::qt::GameMenu shown(preferences);
    std::vector<std::string> texts;
    for (const QAction* const title : shown.bar()->actions()) {
        for (const QAction* const item : title->menu()->actions()) {
            if (!item->isSeparator()) {
                texts.push_back(item->text().remove(QLatin1Char('&')).toStdString());
            }
        }
    }
    headless::HeadlessGame game({});
    const auto items = game.menu().items();
    EXPECT_THAT(std::vector<std::string>(items.begin(), items.end()), ElementsAreArray(texts));
}

TEST(Menus, OfAHeadlessGameAnswerToTheSameKeys)
{
    platform::MemoryPreferences preferences;
    desktop::qt::GameMenu shown(preferences);
    headless::HeadlessGame game({});
    for (const QAction* const item : shown.actions()) {
        for (const QKeySequence& keys : item->shortcuts()) {
            const std::string text = keys.toString(QKeySequence::PortableText).toStdString();
            EXPECT_TRUE(game.menu().knowsKeys(text)) << text;
        }
    }
    EXPECT_FALSE(game.menu().knowsKeys("Ctrl+Alt+X"));
}

} // namespace veyrand::app
