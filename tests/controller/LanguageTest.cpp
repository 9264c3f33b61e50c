#include "controller/MenuTable.h"
#include "controller/SettingsTable.h"
#include "controller/Speech.h"
#include "language/Choice.h"
#include "progress/Settings.h"
#include "support/HeadlessPlay.h"

#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <map>

namespace veyrand::controller {

namespace {

class GermanGame : public test::HeadlessPlay {
protected:
    GermanGame()
        : HeadlessPlay(Options { .preferences
            = { .values = {}, .records = { { "Settings", { { "Language", "de" } } } } } })
    {
    }

    void choose(const std::string& language)
    {
        game().preferences().setRecord(progress::kSettingsKey, { { "Language", language } });
        game().game().settingsChanged();
    }

    std::string textUnder(const std::string& key)
    {
        const auto record = object(key);
        return record && record->text() ? record->text()->text : std::string();
    }
};

} // namespace

TEST_F(GermanGame, ShowsPagesInGerman)
{
    play("YR", "YRG");
    game().controller().pages().show("stage2MessageWindow");
    EXPECT_EQ(textUnder("fullScreen-0"), "Züge verbinden");
}

TEST_F(GermanGame, SpeaksAnotherLanguageWithoutARestartOnThePageThatIsOpenToo)
{
    play("YR", "YRG");
    game().controller().pages().show("stage2MessageWindow");
    wait(2.0);
    sounds();
    choose("fr");
    EXPECT_EQ(textUnder("fullScreen-0"), "Combiner les coups");
    EXPECT_TRUE(sounds().empty());
    choose("system");
    EXPECT_EQ(textUnder("fullScreen-0"), "Moves in Combination");
    click("chip-0-0");
    EXPECT_EQ(textUnder("fullScreen-0"), "");
}

TEST_F(GermanGame, SpeaksAnotherLanguageOnASheetThatIsOpen)
{
    const auto names = [this] {
        std::vector<std::string> all;
        for (const auto& extra : game().game().layers().extras().shown()) {
            if (extra.kind == present::ExtraKind::Place) {
                all.push_back(extra.text);
            }
        }
        return all;
    };
    game().controller().sheets().openMap();
    EXPECT_THAT(names(), testing::Contains("Statistik"));
    choose("fr");
    EXPECT_THAT(names(), testing::Contains("Statistiques"));
    EXPECT_THAT(names(), testing::Not(testing::Contains("Statistik")));
}

TEST_F(GermanGame, FillsInTheRankInGerman)
{
    play({ .root = "YR", .goal = "YRG", .par = 2, .level = 4, .stage = 1 });
    game().controller().pages().show("showSuccessMessage");
    EXPECT_EQ(textUnder("fullScreen-1"), "3");
    EXPECT_EQ(textUnder("fullScreen-3"), "Wahrsager");
}

TEST_F(GermanGame, TellsWhoeverListensOfItsWords)
{
    std::vector<std::string> heard;
    game().game().setLanguageListener(
        [&heard](const language::Texts& texts) { heard.push_back(texts.code()); });
    choose("it");
    choose("it");
    EXPECT_THAT(heard, testing::ElementsAre("de", "it"));
}

TEST_F(GermanGame, HasTheWordsOfTheWholeMenuInItsFiles)
{
    const language::Texts& texts = game().game().texts();
    for (const MenuTitle& title : menuTitles()) {
        EXPECT_TRUE(texts.isTranslated(std::string("GameMenu.") + title.text)) << title.text;
    }
    for (const MenuItem& item : menuItems()) {
        if (item.kind != MenuItem::Kind::Separator && item.kind != MenuItem::Kind::Hidden) {
            EXPECT_TRUE(texts.isTranslated(std::string("GameMenu.") + item.text)) << item.text;
        }
    }
}

// "Game > Puzzles", "Settings > Say Why": what a page calls a menu, and an item of it, is what they
// are called.
TEST_F(GermanGame, NamesMenusOnItsPagesAsTheyAreCalled)
{
    constexpr std::string_view kTo = " > ";
    const std::string points = "…";
    unsigned cited = 0;
    for (const language::Name& spoken : language::kLanguages) {
        choose(std::string(spoken.code));
        const language::Texts& texts = game().game().texts();
        std::vector<std::string> paths;
        const auto add = [&](const char* section, const char* of, const char* text) {
            std::string path = plainMenuText(texts.localized(section, of)) + std::string(kTo)
                + plainMenuText(texts.localized(section, text));
            path.resize(path.size() - (path.ends_with(points) ? points.size() : 0));
            paths.push_back(std::move(path));
        };
        for (const MenuItem& item : menuItems()) {
            for (const MenuTitle& title : menuTitles()) {
                if (item.menu == title.id && std::string_view(item.text) != "") {
                    add("GameMenu", title.text, item.text);
                }
            }
        }
        for (const SettingItem& item : settingItems()) {
            add("SettingsWindow", kSettingsTitle, item.text);
        }
        texts.forEachPage([&](const std::string& page) {
            const auto* const own = texts.page(page);
            for (const std::string& words : own != nullptr ? *own : *texts.englishPage(page)) {
                for (std::size_t at = words.find(kTo); at != std::string::npos;
                     at = words.find(kTo, at + 1)) {
                    const std::size_t blank = words.rfind(' ', at - 1);
                    const auto cite = std::string_view(words).substr(
                        blank == std::string::npos ? 0 : blank + 1);
                    EXPECT_TRUE(std::any_of(paths.begin(), paths.end(),
                        [cite](const std::string& path) { return cite.starts_with(path); }))
                        << spoken.code << ' ' << page << ": " << words;
                    ++cited;
                }
            }
        });
    }
    EXPECT_GT(cited, 20U);
}

// Alt and one letter open an item, so no two of a menu may have the same.
TEST_F(GermanGame, OpensTheItemsOfAMenuWithDifferentLetters)
{
    for (const language::Name& spoken : language::kLanguages) {
        choose(std::string(spoken.code));
        for (const MenuTitle& title : menuTitles()) {
            std::map<std::string, std::string> taken;
            for (const MenuItem& item : menuItems()) {
                const std::string text = game().game().texts().localized("GameMenu", item.text);
                const std::size_t mark = text.find('&');
                if (item.menu != title.id || text.empty()) {
                    continue;
                }
                ASSERT_NE(mark, std::string::npos) << text;
                std::string letter = text.substr(mark + 1, 1);
                letter[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(letter[0])));
                EXPECT_TRUE(taken.emplace(letter, text).second)
                    << spoken.code << ": " << text << ", " << taken[letter];
            }
        }
    }
}

TEST_F(GermanGame, ReachesTheLinesOfTheSettingsByDifferentLetters)
{
    for (const language::Name& spoken : language::kLanguages) {
        choose(std::string(spoken.code));
        std::map<std::string, std::string> taken;
        const auto take = [&](const char* english) {
            const std::string text = game().game().texts().localized("SettingsWindow", english);
            const std::size_t mark = text.find('&');
            ASSERT_NE(mark, std::string::npos) << text;
            std::string letter = text.substr(mark + 1, 1);
            letter[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(letter[0])));
            EXPECT_TRUE(taken.emplace(letter, text).second)
                << spoken.code << ": " << text << ", " << taken[letter];
        };
        for (const SettingItem& item : settingItems()) {
            take(item.text);
        }
        take(kResetSettings);
        take(kCloseSettings);
    }
}

TEST_F(GermanGame, SaysWhyNotInGermanForWhateverEnglishHasWords)
{
    const language::Texts& texts = game().game().texts();
    std::map<std::string_view, std::string> german;
    for (const play::ReasonEntry& entry : play::reasonTable()) {
        german[entry.name] = wordsFor(texts, { entry.reason, 4 });
    }
    choose("en");
    for (const play::ReasonEntry& entry : play::reasonTable()) {
        const std::string words = wordsFor(texts, { entry.reason, 4 });
        EXPECT_EQ(words.empty(), german.at(entry.name).empty()) << entry.name;
        EXPECT_TRUE(words.empty() || words != german.at(entry.name)) << entry.name;
        EXPECT_FALSE(entry.heard == play::Heard::No && words.empty()) << entry.name;
    }
    EXPECT_EQ(wordsFor(texts, { play::Reason::NotOpen, play::labelOf(0) }), "Move #2 comes later.");
    EXPECT_EQ(wordsFor(texts, { play::Reason::TooLong }), "A line holds 12 chips at most.");
    EXPECT_EQ(wordsFor(texts, { play::Reason::TooFewPoints }), "");
}

} // namespace veyrand::controller
