#include "catalogue/ClassicMaker.h"
#include "support/Places.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>

// The Classic catalogue is made of a choice that is kept as text.

namespace veyrand::catalogue {

using ::testing::HasSubstr;

namespace {

std::string choice()
{
    std::ifstream file(test::sourceFolder() + "/assets/catalogues/choice.txt", std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

// Why a choice is none.
std::string refusal(const std::string& text)
{
    try {
        (void)classicPuzzles(text);
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return {};
}

std::string withFirst(const std::string& line)
{
    std::string text = choice();
    return text.replace(0, text.find('\n'), line);
}

} // namespace

TEST(Choice, BecomesTheCatalogueWithLevelOneAndThePars)
{
    const Puzzles puzzles = classicPuzzles(choice());
    ASSERT_EQ(puzzles.size(), 111U);
    EXPECT_EQ(puzzles[1], (Puzzle { "YGR", "YGRGR", 1 }));
    EXPECT_EQ(puzzles[11], (Puzzle { "YRGGR", "YRR", 1 }));
    EXPECT_EQ(puzzles[14], (Puzzle { "YRRRR", "YR", 3 }));
    EXPECT_EQ(classicPuzzles(withFirst("2-1 YRRRR YR"))[11].moves, 3U);
}

TEST(Choice, IsRefusedWithAReason)
{
    EXPECT_EQ(refusal(""), "it ends before 2-1");
    EXPECT_EQ(refusal("2-1 YRGGR YRR\n"), "it ends before 2-2");
    EXPECT_EQ(refusal(withFirst("2-2 YRGGR YRR")), "a start and a goal for 2-1 are missing");
    EXPECT_EQ(refusal("2-1 YRGGR"), "a start and a goal for 2-1 are missing");
    EXPECT_EQ(refusal(choice() + "12-1 YR YRR"), "12-1 comes after the last place");
    EXPECT_EQ(refusal(withFirst("2-1 YR RY")), "2-1: YR does not become RY in 1 to 11 moves");
    EXPECT_EQ(refusal(withFirst("2-1 YR YR")), "2-1: YR does not become YR in 1 to 11 moves");
    for (const char* const lines : { "YX YR", "YY YR", "YRRRRRRR YR", "YR YRRRRRRRRRRRR" }) {
        EXPECT_THAT(refusal(withFirst(std::string("2-1 ") + lines)), HasSubstr("are no two lines"));
    }
}

} // namespace veyrand::catalogue
