#include "language/Choice.h"
#include "language/Texts.h"
#include "support/FolderResources.h"

#include <gtest/gtest.h>

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

} // namespace veyrand::language
