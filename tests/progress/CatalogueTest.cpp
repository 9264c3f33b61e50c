#include "progress/Catalogue.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

namespace veyrand::progress {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const Catalogue kTwo { { "YR", "YRG", 2 }, { "YRR", "GY", 5 } };
constexpr std::string_view kTwoText = "YR\nYRG\n1\nYRR\nGY\n4";

std::string bigEndian(std::string bytes)
{
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        std::swap(bytes[i], bytes[i + 1]);
    }
    return bytes;
}

} // namespace

TEST(CatalogueText, ReadsThreeLinesAPuzzleAndCountsTheStartLineIntoThePar)
{
    const ParsedCatalogue parsed = parseCatalogueText(kTwoText);
    EXPECT_EQ(parsed.entries, kTwo);
    EXPECT_EQ(parsed.error, "");
}

TEST(CatalogueText, Of333LinesHolds111Puzzles)
{
    std::string text = "YR\nYRG\n1";
    for (std::size_t i = 1; i < kClassicEntries; ++i) {
        text += "\nYR\nYRG\n1";
    }
    EXPECT_THAT(parseCatalogueText(text).entries, SizeIs(111));
}

TEST(CatalogueText, TrimsNothing)
{
    const ParsedCatalogue parsed = parseCatalogueText("YR\r\n YRG\n1");
    ASSERT_THAT(parsed.entries, SizeIs(1));
    EXPECT_EQ(parsed.entries[0].root, "YR\r");
    EXPECT_EQ(parsed.entries[0].goal, " YRG");
}

TEST(CatalogueText, SaysWhatIsWrongWithIt)
{
    struct Case {
        const char* text;
        const char* error;
    };
    const std::vector<Case> cases {
        { "YR\nYRG\n1\n", "line 3: a line feed after the last line" },
        { "YR\nYRG\n1\nYRR", "line 4: ends within a puzzle" },
        { "", "line 1: ends within a puzzle" },
        { "YR\nYRG\none", "line 3: the number of moves is no whole number" },
        { "YR\nYRG\n1\r", "line 3: the number of moves is no whole number" },
        { "YR\nYRG\n 1", "line 3: the number of moves is no whole number" },
        { "YR\nYRG\n1.5", "line 3: the number of moves is no whole number" },
        { "YR\nYRG\n99999999999", "line 3: the number of moves is no whole number" },
        { "YR\nYRG\n2147483647", "line 3: the number of moves is no whole number" },
    };
    for (const Case& broken : cases) {
        const ParsedCatalogue parsed = parseCatalogueText(broken.text);
        EXPECT_THAT(parsed.error, HasSubstr(broken.error)) << broken.text;
        EXPECT_THAT(parsed.entries, IsEmpty()) << broken.text;
    }
}

TEST(CatalogueBytes, AreUtf16InEitherByteOrder)
{
    const std::string bytes = catalogueBytes(kTwoText);
    EXPECT_EQ(bytes.substr(0, 4), std::string("\xFF\xFEY\0", 4));
    EXPECT_EQ(parseCatalogue(bytes).entries, kTwo);
    EXPECT_EQ(parseCatalogue(bigEndian(bytes)).entries, kTwo);
}

TEST(CatalogueBytes, OfAnotherKindAreRefused)
{
    const std::string bytes = catalogueBytes(kTwoText);
    std::string foreign = bytes;
    foreign[3] = '\x01'; // U+0159 is no plain letter
    std::string latin = bytes;
    latin[2] = '\xE9';
    for (const std::string& broken :
        { std::string(), std::string(kTwoText), bytes.substr(2), bytes + 'Y', foreign, latin }) {
        const ParsedCatalogue parsed = parseCatalogue(broken);
        EXPECT_THAT(parsed.error, HasSubstr("UTF-16")) << broken.size();
        EXPECT_THAT(parsed.entries, IsEmpty());
    }
}

RC_GTEST_PROP(CatalogueBytes, NeverThrowWhateverTheyAre, (const std::string& bytes))
{
    const ParsedCatalogue whole = parseCatalogue(bytes);
    const ParsedCatalogue marked = parseCatalogue("\xFF\xFE" + bytes);
    RC_ASSERT(whole.error.empty() || whole.entries.empty());
    RC_ASSERT(marked.error.empty() || marked.entries.empty());
}

RC_GTEST_PROP(CatalogueBytes, BringBackWhatWasWritten, ())
{
    const auto chips = rc::gen::container<std::string>(rc::gen::elementOf(std::string("YRGB")));
    std::string text;
    Catalogue expected;
    for (int left = *rc::gen::inRange(1, 20); left > 0; --left) {
        const CatalogueEntry entry { *chips, *chips, *rc::gen::inRange(2, 13) };
        text += (expected.empty() ? "" : "\n") + entry.root + '\n' + entry.goal + '\n'
            + std::to_string(entry.par - 1);
        expected.push_back(entry);
    }
    RC_ASSERT(parseCatalogue(catalogueBytes(text)).entries == expected);
}

namespace {

// As many puzzles as the kind needs, with every par in turn.
Catalogue soundCatalogue(CatalogueKind kind)
{
    const std::size_t count = kind == CatalogueKind::Classic ? kClassicEntries : kEndlessEntries;
    Catalogue catalogue;
    for (std::size_t i = 0; i < count; ++i) {
        catalogue.push_back({ "YR", "YRG", kSmallestPar + static_cast<int>(i % 11) });
    }
    return catalogue;
}

void changePars(Catalogue& catalogue, int from, int to)
{
    for (CatalogueEntry& entry : catalogue) {
        entry.par = entry.par == from ? to : entry.par;
    }
}

} // namespace

TEST(CatalogueFault, IsNothingForASoundCatalogue)
{
    for (const CatalogueKind kind : { CatalogueKind::Classic, CatalogueKind::Endless }) {
        Catalogue catalogue = soundCatalogue(kind);
        EXPECT_EQ(catalogueFault(catalogue, kind), std::nullopt);
        catalogue.push_back({ "YRRRRRRRRRRR", "G", 12 }); // more than enough, and a full line
        EXPECT_EQ(catalogueFault(catalogue, kind), std::nullopt);
    }
}

TEST(CatalogueFault, NamesTheLineAndTheReason)
{
    struct Case {
        std::function<void(Catalogue&)> spoil;
        const char* fault;
    };
    const std::vector<Case> cases {
        { [](Catalogue& c) { c[0].root = ""; }, "line 1: a line of no chips" },
        { [](Catalogue& c) { c[1].goal = ""; }, "line 5: a line of no chips" },
        { [](Catalogue& c) { c[1].root = "YRRRRRRRRRRRR"; }, "line 4: more than 12 chips" },
        { [](Catalogue& c) { c[1].goal = "YRRRRRRRRRRRR"; }, "line 5: more than 12 chips" },
        { [](Catalogue& c) { c[2].root = "YR\r"; }, "line 7: a letter other than Y, R, G and B" },
        { [](Catalogue& c) { c[2].goal = "yr"; }, "line 8: a letter other than Y, R, G and B" },
        { [](Catalogue& c) { c[2].root = "RY"; }, "line 7: a start line must begin with Y" },
        { [](Catalogue& c) { c[3].par = 1; }, "line 12: the number of moves must be from 1 to 11" },
        { [](Catalogue& c) { c[3].par = 13; },
            "line 12: the number of moves must be from 1 to 11" },
    };
    for (const CatalogueKind kind : { CatalogueKind::Classic, CatalogueKind::Endless }) {
        for (const Case& broken : cases) {
            Catalogue catalogue = soundCatalogue(kind);
            broken.spoil(catalogue);
            EXPECT_EQ(catalogueFault(catalogue, kind), broken.fault);
        }
    }
}

TEST(CatalogueFault, IsTooFewPuzzles)
{
    Catalogue classic = soundCatalogue(CatalogueKind::Classic);
    classic.pop_back();
    EXPECT_EQ(catalogueFault(classic, CatalogueKind::Classic),
        "line 330: ends after 110 puzzles; the game needs 111");
    Catalogue endless = soundCatalogue(CatalogueKind::Endless);
    endless.pop_back();
    EXPECT_EQ(catalogueFault(endless, CatalogueKind::Endless),
        "line 6501: ends after 2167 puzzles; the game needs 2168");
}

TEST(CatalogueFault, OfTheEndlessGameIsAParNobodyCouldDraw)
{
    Catalogue catalogue = soundCatalogue(CatalogueKind::Endless);
    changePars(catalogue, 12, 11);
    catalogue.push_back({ "YR", "YRG", 12 }); // there, but never drawn
    EXPECT_EQ(catalogueFault(catalogue, CatalogueKind::Endless),
        "line 6504: no puzzle of 11 moves among the first 2168");
    EXPECT_EQ(catalogueFault(catalogue, CatalogueKind::Classic), std::nullopt);
}

TEST(CatalogueFault, OfTheEndlessGameIsTheLowestParMissingToo)
{
    Catalogue catalogue = soundCatalogue(CatalogueKind::Endless);
    changePars(catalogue, 2, 3);
    EXPECT_EQ(catalogueFault(catalogue, CatalogueKind::Endless),
        "line 6504: no puzzle of 1 moves among the first 2168");
}

} // namespace veyrand::progress
