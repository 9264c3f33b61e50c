#include "architecture/ReservedWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace veyrand::architecture {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

Findings findingsIn(const std::string& text)
{
    return reservedWordFindings({ "docs/made-up.md", text });
}

// In two halves, or this file would not pass the check it tests.
const std::string kShort = std::string("sp") + "ec";
const std::string kLong = kShort + "ification";
const std::string kPart = std::string("Pa") + "rt";
const std::string kString = std::string("N") + "SString";
const std::string kLayer = std::string("C") + "ALayer";
const std::string kTextLayer = std::string("C") + "ATextLayer";

} // namespace

TEST(ReservedWords, AreInNoFile)
{
    for (const SourceFile& file : thisRepository()) {
        EXPECT_THAT(reservedWordFindings(file), IsEmpty());
    }
}

TEST(ReservedWords, TheOutsideDocumentIsFoundHoweverItIsCalled)
{
    EXPECT_THAT(findingsIn("as the " + kLong + " has it"), SizeIs(1));
    EXPECT_THAT(findingsIn("Our " + kLong + "s"), SizeIs(1));
    EXPECT_THAT(findingsIn("S" + kLong.substr(1)), SizeIs(1));
    EXPECT_THAT(findingsIn("see the " + kShort), SizeIs(1));
    EXPECT_THAT(findingsIn("see This " + kShort + ","), SizeIs(1));
    EXPECT_THAT(findingsIn("read " + kShort + ".md first"), SizeIs(1));
    EXPECT_THAT(findingsIn("(" + kPart + " 1.2)"), SizeIs(1));
    EXPECT_THAT(findingsIn(kPart + " 10.12: more"), SizeIs(1));
}

TEST(ReservedWords, FrameworkClassesAreFoundOutsideTheirAdapters)
{
    EXPECT_THAT(findingsIn("like " + kString + "'s"), SizeIs(1));
    EXPECT_THAT(findingsIn(kLayer + " and " + kTextLayer), SizeIs(2));
    EXPECT_THAT(
        reservedWordFindings({ "src/desktop/macos/Window.mm", kString + " *name;" }), IsEmpty());
    EXPECT_THAT(reservedWordFindings({ "src/desktop/macos/Window.mm", kPart + " 1.2" }), SizeIs(1));
}

TEST(ReservedWords, OrdinaryWordsPass)
{
    EXPECT_THAT(findingsIn("specify specified special species specs"), IsEmpty());
    EXPECT_THAT(findingsIn("Part 1, part 1.2, Part one.two, Counterpart 1.2"), IsEmpty());
    EXPECT_THAT(findingsIn("NS NSA ANSI INSERT TextLayer CASE CANCELLayers"), IsEmpty());
    EXPECT_THAT(findingsIn("NSA_Word NSx1"), IsEmpty());
}

TEST(ReservedWords, AFindingTellsItsLineAndPathsAreReadToo)
{
    EXPECT_THAT(findingsIn("one\ntwo\n" + kString), ElementsAre(HasSubstr("docs/made-up.md:3: ")));
    EXPECT_THAT(reservedWordFindings({ "docs/" + kLong + ".md", "" }), SizeIs(1));
}

} // namespace veyrand::architecture
