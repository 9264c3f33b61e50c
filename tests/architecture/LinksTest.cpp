#include "architecture/Links.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrand::architecture {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(Links, OfEveryDocumentLeadSomewhere)
{
    for (const SourceFile& file : thisRepository()) {
        EXPECT_THAT(linkFindings(file, thisRepository()), IsEmpty());
    }
}

namespace {

// A repository of two documents and two sources, and what is found in a line of the first document.
Findings findingsIn(const std::string& line)
{
    const std::vector<SourceFile> repository {
        { "README.md", "" },
        { "docs/one-move.md", line },
        { "src/engine/Proof.cpp", "bool Proof::applyRule(int rule)\n{\n}\n" },
        { "src/input/Decisions.h", "struct Decision { };\nDecision decideClick(int row);" },
    };
    return linkFindings(repository[1], repository);
}

} // namespace

TEST(Links, ToFilesAndFoldersThatExistPass)
{
    EXPECT_THAT(findingsIn("[start](../README.md), [code](../src/engine/)"), IsEmpty());
    EXPECT_THAT(findingsIn("[proof](../src/engine/Proof.cpp#L3)"), IsEmpty());
    EXPECT_THAT(findingsIn("[below](#below) and [far](https://example.org/nothing.md)"), IsEmpty());
}

TEST(Links, ToWhatDoesNotExistAreFound)
{
    EXPECT_THAT(
        findingsIn("[start](README.md)"), ElementsAre(HasSubstr("README.md leads nowhere")));
    EXPECT_THAT(findingsIn("![picture](picture.png)"), ElementsAre(HasSubstr("picture.png")));
    EXPECT_THAT(findingsIn("[a](../README.md) [b](../READ.md)"), ElementsAre(HasSubstr("READ.md")));
    EXPECT_THAT(findingsIn("[proof](../src/engine/Proof.cpp#L4)"),
        ElementsAre(HasSubstr("leads past the end")));
}

TEST(Links, WithANameLeadToAFileThatHoldsIt)
{
    EXPECT_THAT(findingsIn("[`Proof::applyRule`](../src/engine/Proof.cpp)"), IsEmpty());
    EXPECT_THAT(findingsIn("[`decideClick()`](../src/input/Decisions.h)"), IsEmpty());
    EXPECT_THAT(findingsIn("[`input::Decision`](../src/input/Decisions.h)"),
        ElementsAre(HasSubstr("without input::Decision"))); // a type is named by itself
    EXPECT_THAT(findingsIn("[`Decision`](../src/input/Decisions.h)"), IsEmpty());
    EXPECT_THAT(findingsIn("[`the words` here](../src/input/Decisions.h)"), IsEmpty());
}

TEST(Links, WithANameThatIsGoneAreFound)
{
    EXPECT_THAT(findingsIn("[`Proof::apply`](../src/engine/Proof.cpp)"),
        ElementsAre(HasSubstr("without Proof::apply")));
    EXPECT_THAT(findingsIn("[`Tree::applyRule`](../src/engine/Proof.cpp)"),
        ElementsAre(HasSubstr("without Tree::applyRule")));
    EXPECT_THAT(findingsIn("[`rule`](../src/engine/Proof.cpp)"),
        ElementsAre(HasSubstr("without rule"))); // there, but not as a function
}

TEST(Links, InExamplesAreNotFollowed)
{
    EXPECT_THAT(findingsIn("```\n[start](nowhere.md)\n```\n"), IsEmpty());
    EXPECT_THAT(findingsIn("```\n```\n[start](nowhere.md)"), ElementsAre(HasSubstr(":3: ")));
}

TEST(Links, AreReadInDocumentsOnly)
{
    const SourceFile code { "src/a.cpp", "call(list[i](x));" };
    EXPECT_THAT(linkFindings(code, { code }), IsEmpty());
}

} // namespace veyrand::architecture
