#include "language/Pseudo.h"

#include "language/Choice.h"
#include "language/Marks.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::language {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::ptrdiff_t lettersOf(const std::string& text)
{
    return std::count_if(text.begin(), text.end(),
        [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
}

} // namespace

TEST(PseudoLanguage, StandsInBracketsAndIsFourTenthsLonger)
{
    for (const std::string english : { "Undo", "List of Moves", "No chip can be dragged here." }) {
        const std::string text = pseudo(english);
        EXPECT_THAT(text, StartsWith("["));
        EXPECT_THAT(text, EndsWith("]"));
        EXPECT_GE(10 * (lettersOf(text) - 2), 14 * lettersOf(english) - 10) << text;
    }
}

TEST(PseudoLanguage, KeepsMarksTagsAndTheLettersOfMenus)
{
    EXPECT_THAT(pseudo("Drag {RRR drag} to {rank}"),
        testing::AllOf(HasSubstr("{RRR drag}"), HasSubstr("{rank}")));
    EXPECT_THAT(pseudo("<p>Qt %1</p>"), testing::AllOf(HasSubstr("<p>"), HasSubstr("%1</p>")));
    EXPECT_THAT(pseudo("&Quit"), HasSubstr("&Q"));
    EXPECT_EQ(pseudo(" "), " ");
}

TEST(LanguageChoice, TakesTheDearestThatTheGameKnows)
{
    EXPECT_EQ(bestFor({ "de-AT", "en" }), "de");
    EXPECT_EQ(bestFor({ "fr_CA.UTF-8" }), "fr");
    EXPECT_EQ(bestFor({ "pt", "es-MX" }), "es");
    EXPECT_EQ(bestFor({ "C" }), "en");
    EXPECT_EQ(bestFor({ "den" }), "en");
    EXPECT_EQ(bestFor({}), "en");
}

} // namespace veyrand::language
