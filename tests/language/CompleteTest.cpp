#include "language/Choice.h"
#include "language/Texts.h"
#include "support/FolderResources.h"

#include <gtest/gtest.h>
#include <set>

namespace veyrand::language {

// Every language that is offered says everything that English says.
TEST(ShippedLanguages, AreCompleteAndWithoutFaults)
{
    Texts texts(test::gameResources());
    EXPECT_EQ(texts.englishFaults(), "");
    for (const Name& language : kLanguages) {
        SCOPED_TRACE(language.code);
        texts.choose(language.code);
        EXPECT_EQ(texts.faults(), "");
        if (language.code != kEnglish) {
            texts.forEachId(
                [&texts](const std::string& id) { EXPECT_TRUE(texts.isTranslated(id)) << id; });
            texts.forEachPage([&texts](const std::string& page) {
                EXPECT_NE(texts.page(page), nullptr) << page;
            });
        }
    }
}

// What is spoken is short, and a text that was copied and not translated would go unnoticed.
TEST(ShippedLanguages, HaveSpokenTextsOfTheirOwn)
{
    const std::set<std::string> alike { "numbers.6", "spoken.list", "spoken.place", "spoken.points",
        "things.Menu", "things.Veyrand", "things.par", "things.points" };
    Texts english(test::gameResources());
    Texts texts(test::gameResources());
    for (const Name& language : kLanguages) {
        texts.choose(language.code);
        texts.forEachId([&](const std::string& id) {
            const bool isSpoken = id.starts_with("spoken.") || id.starts_with("things.")
                || id.starts_with("numbers.");
            for (const std::int64_t count : { 1, 5 }) {
                EXPECT_TRUE(!isSpoken || language.code == kEnglish || alike.contains(id)
                    || texts.text(id, { { "count", count } })
                        != english.text(id, { { "count", count } }))
                    << language.code << ": " << id;
            }
        });
    }
}

// An ordinary blank would let a line begin with the sign, and a wide one looks wrong.
TEST(ShippedLanguages, FrenchSetsItsSignsOffByNarrowBlanks)
{
    Texts texts(test::gameResources());
    texts.choose("fr");
    std::vector<std::string> all;
    texts.forEachId([&](const std::string& id) {
        for (const std::int64_t count : { 1, 5 }) {
            all.push_back(texts.text(id, { { "count", count } }));
        }
    });
    texts.forEachPage([&](const std::string& page) {
        all.insert(all.end(), texts.page(page)->begin(), texts.page(page)->end());
    });
    for (const std::string& text : all) {
        for (const std::string blank : { " ", "\u00A0" }) {
            for (const char* const sign : { ":", ";", "!", "?", "»" }) {
                EXPECT_EQ(text.find(blank + sign), std::string::npos) << text;
            }
            EXPECT_EQ(text.find("«" + blank), std::string::npos) << text;
        }
    }
}

} // namespace veyrand::language
