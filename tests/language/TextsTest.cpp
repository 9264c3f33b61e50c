#include "language/Texts.h"

#include "support/MemoryResources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::language {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const char* const kBoard = R"({"tips": {
    "back": { "one": "takes {lines} line back", "other": "takes {lines} lines back" },
    "place": "at {place}" }})";

class TextsOfTwo : public testing::Test {
protected:
    TextsOfTwo()
    {
        for (const char* code : { "en", "de", "pl" }) {
            for (const char* name : { "board", "windows", "pages" }) {
                put(code, name, "{}");
            }
        }
        put("en", "board", kBoard);
        put("en", "windows", R"({"GameMenu": {"&Quit": "&Quit"}})");
        put("en", "pages", R"({"greeting": ["Hello", "Click on {Y}"], "rank": ["{rank}"]})");
    }

    void put(const std::string& code, const std::string& name, const std::string& json)
    {
        m_resources.add("languages/" + code + '/' + name, "json", json);
    }

    test::MemoryResources m_resources;
};

} // namespace

TEST_F(TextsOfTwo, FillsMarksAndChoosesTheFormByTheFirstNumber)
{
    const Texts texts(m_resources);
    EXPECT_EQ(texts.text("tips.back", { { "lines", 1 } }), "takes 1 line back");
    EXPECT_EQ(texts.text("tips.back", { { "lines", 1234 } }), "takes 1234 lines back");
    EXPECT_EQ(texts.text("tips.place", { { "place", "5-7" } }), "at 5-7");
    EXPECT_EQ(texts.englishFaults(), "");
}

TEST_F(TextsOfTwo, CountsAsTheLanguageDoes)
{
    put("pl", "board", R"({"tips": {"back": {"one": "{lines} linia", "few": "{lines} linie",
        "many": "{lines} linii", "other": "{lines} linii"}}})");
    Texts texts(m_resources);
    texts.choose("pl");
    EXPECT_EQ(texts.text("tips.back", { { "lines", 1 } }), "1 linia");
    EXPECT_EQ(texts.text("tips.back", { { "lines", 3 } }), "3 linie");
    EXPECT_EQ(texts.text("tips.back", { { "lines", 5 } }), "5 linii");
}

TEST_F(TextsOfTwo, LeavesToEnglishWhatTheLanguageLacks)
{
    put("de", "windows", R"({"GameMenu": {"&Quit": "&Beenden"}})");
    Texts texts(m_resources);
    texts.choose("de");
    EXPECT_EQ(texts.localized("GameMenu", "&Quit"), "&Beenden");
    EXPECT_EQ(texts.localized("GameMenu", "&Undo"), "&Undo");
    EXPECT_EQ(texts.text("tips.place", { { "place", "5-7" } }), "at 5-7");
    EXPECT_EQ(texts.text("tips.nobody"), "tips.nobody");
    EXPECT_EQ(texts.page("greeting"), nullptr);
    EXPECT_EQ(texts.faults(), "");
    texts.choose("en");
    EXPECT_EQ(texts.localized("GameMenu", "&Quit"), "&Quit");
}

TEST_F(TextsOfTwo, TellsFileAndReasonOfWhatIsWrongAndKeepsTheRest)
{
    put("de", "board", R"({"tips": {"back": "nimmt {lienes} zurück", "place": "bei {place}",
        "more": "mehr"}, "odd": 3})");
    Texts texts(m_resources);
    texts.choose("de");
    EXPECT_THAT(texts.faults(),
        HasSubstr("languages/de/board.json: tips.back: there is no mark {lienes}\n"));
    EXPECT_THAT(texts.faults(),
        HasSubstr("languages/de/board.json: tips.more: English has no such text\n"));
    EXPECT_THAT(
        texts.faults(), HasSubstr("languages/de/board.json: odd: is no section of texts\n"));
    EXPECT_EQ(texts.text("tips.back", { { "lines", 2 } }), "takes 2 lines back");
    EXPECT_EQ(texts.text("tips.place", { { "place", "5-7" } }), "bei 5-7");
}

TEST_F(TextsOfTwo, ShowsAPageInEnglishWhenItsWordsAreWrong)
{
    put("de", "pages", R"({"greeting": ["Hallo", "Klicke auf {X}"], "rank": ["{rank}"],
        "nowhere": []})");
    Texts texts(m_resources);
    texts.choose("de");
    EXPECT_EQ(texts.page("greeting"), nullptr);
    ASSERT_NE(texts.page("rank"), nullptr);
    EXPECT_THAT(*texts.page("rank"), ElementsAre("{rank}"));
    EXPECT_THAT(
        texts.faults(), HasSubstr("languages/de/pages.json: greeting: there is no mark {X}\n"));
    EXPECT_THAT(
        texts.faults(), HasSubstr("languages/de/pages.json: nowhere: there is no such page\n"));
    put("de", "pages", R"({"greeting": ["Hallo"]})");
    texts.choose("de");
    EXPECT_THAT(texts.faults(), HasSubstr("has 1 texts where English has 2"));
}

TEST_F(TextsOfTwo, StartsWithABrokenFile)
{
    put("de", "board", "{");
    Texts texts(m_resources);
    texts.choose("de");
    EXPECT_THAT(texts.faults(), HasSubstr("languages/de/board.json: "));
    texts.choose("eo");
    EXPECT_THAT(texts.faults(), HasSubstr("languages/eo/pages.json: cannot be read"));
    EXPECT_EQ(texts.text("tips.place", { { "place", "1-1" } }), "at 1-1");
}

TEST_F(TextsOfTwo, MakesThePseudoLanguageFromEnglish)
{
    Texts texts(m_resources);
    texts.choose("pseudo");
    EXPECT_THAT(texts.text("tips.back", { { "lines", 2 } }), HasSubstr("2"));
    EXPECT_THAT(texts.text("tips.back", { { "lines", 2 } }), testing::StartsWith("["));
    ASSERT_NE(texts.page("greeting"), nullptr);
    EXPECT_THAT(texts.page("greeting")->back(), HasSubstr("{Y}"));
}

} // namespace veyrand::language
