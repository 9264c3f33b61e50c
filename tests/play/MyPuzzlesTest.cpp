#include "play/MyPuzzles.h"

#include <gtest/gtest.h>

namespace veyrand::play {
namespace {

using Saving = MyPuzzles::Saving;

std::string textOf(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += line + '\n';
    }
    return text;
}

} // namespace

TEST(MyPuzzles, AreKeptOnceEachHoweverTheCodeIsWritten)
{
    MyPuzzles puzzles;
    EXPECT_EQ(puzzles.add("37t8-649f-2mej", "The jump"), Saving::Saved);
    EXPECT_EQ(puzzles.add("37T8649F2MEJ", "Again"), Saving::Known);
    EXPECT_EQ(puzzles.add("37T8649F2MEK", "A slip"), Saving::NoCode);
    EXPECT_EQ(puzzles.all(), (std::vector<MyPuzzle> { { "37T8649F2MEJ", "The jump" } }));
}

TEST(MyPuzzles, HaveNamesOfOneShortLine)
{
    EXPECT_EQ(keptName("  two\nlines \t "), "two lines");
    EXPECT_EQ(keptName(std::string(40, 'x')), std::string(32, 'x'));
    std::string umlauts;
    for (int i = 0; i < 40; ++i) {
        umlauts += "\u00FC";
    }
    EXPECT_EQ(keptName(umlauts).size(), 64U) << "letters are counted, not bytes";
    for (int inside = 0x80; inside <= 0xBF; ++inside) { // the second byte of \u00C0 to \u00FF
        std::string letters;
        for (int i = 0; i < 40; ++i) {
            letters += { '\xC3', static_cast<char>(inside) };
        }
        ASSERT_EQ(keptName(letters), letters.substr(0, 64)) << inside;
    }
    MyPuzzles puzzles;
    puzzles.add("37T8649F2MEJ", " ");
    EXPECT_EQ(puzzles.all().front().name, "37T8649F2MEJ");
}

TEST(MyPuzzles, HaveNamesWhoseLettersMayEndInAnyByte)
{
    std::string accents;
    for (int i = 0; i < 40; ++i) {
        accents += "\u00E9"; // ends in A9, which is odd
    }
    EXPECT_EQ(keptName(accents).size(), 64U);
}

TEST(MyPuzzles, AreRenamedAndRemoved)
{
    MyPuzzles puzzles;
    puzzles.add("37T8649F2MEJ", "one");
    puzzles.add("38RTWET", "two");
    EXPECT_TRUE(puzzles.rename("38RTWET", "another"));
    EXPECT_FALSE(puzzles.rename("3373NECJ", "none"));
    EXPECT_TRUE(puzzles.remove("37T8649F2MEJ"));
    EXPECT_FALSE(puzzles.remove("37T8649F2MEJ"));
    EXPECT_EQ(puzzles.all(), (std::vector<MyPuzzle> { { "38RTWET", "another" } }));
}

TEST(MyPuzzles, AreTheSameWhenTheyHaveBeenWrittenAndRead)
{
    MyPuzzles puzzles;
    puzzles.add("37T8649F2MEJ", "a #1 of mine");
    puzzles.add("38RTWET", "\u00DCbung");
    const auto read = MyPuzzles::read(textOf(puzzles.lines()));
    EXPECT_EQ(read.damaged, 0U);
    EXPECT_EQ(read.puzzles, puzzles);
    EXPECT_EQ(MyPuzzles::read("").damaged, 0U);
}

TEST(MyPuzzles, LoseNoMoreThanADamagedLine)
{
    MyPuzzles puzzles;
    puzzles.add("37T8649F2MEJ", "one");
    puzzles.add("38RTWET", "two");
    std::string text = textOf(puzzles.lines());
    text[text.find("one")] = 'O';
    const auto read = MyPuzzles::read(text);
    EXPECT_EQ(read.damaged, 1U);
    EXPECT_EQ(read.puzzles.all(), (std::vector<MyPuzzle> { { "38RTWET", "two" } }));
    EXPECT_EQ(MyPuzzles::read("veyrand-puzzles 2\n").damaged, 1U);
}

TEST(MyPuzzles, AreUnitedWithOursFirstAndUnderOurNames)
{
    MyPuzzles ours;
    ours.add("38RTWET", "ours");
    MyPuzzles theirs;
    theirs.add("37T8649F2MEJ", "new");
    theirs.add("38RTWET", "theirs");
    ours.join(theirs);
    EXPECT_EQ(
        ours.all(), (std::vector<MyPuzzle> { { "38RTWET", "ours" }, { "37T8649F2MEJ", "new" } }));
}

TEST(MyPuzzles, ThatAreUnitedDoNotShareANameMadeByNumber)
{
    MyPuzzles ours;
    ours.add("38RTWET", "Puzzle 1");
    MyPuzzles theirs;
    theirs.add("37T8649F2MEJ", "Puzzle 1");
    theirs.add("3373NECJ", "Puzzle 7");
    ours.join(theirs);
    EXPECT_EQ(ours.all(),
        (std::vector<MyPuzzle> { { "38RTWET", "Puzzle 1" }, { "37T8649F2MEJ", "Puzzle 2" },
            { "3373NECJ", "Puzzle 7" } }));
    const auto once = ours;
    ours.join(theirs);
    EXPECT_EQ(ours, once) << "and joining again changes nothing";
}

TEST(MyPuzzles, AreNotMoreThanThereIsRoomFor)
{
    MyPuzzles puzzles;
    for (std::size_t i = 0; i < MyPuzzles::kMost; ++i) {
        std::string root = "Y";
        for (std::size_t digits = i, n = 0; n < 7; ++n, digits /= 3) {
            root += "RGB"[digits % 3];
        }
        ASSERT_EQ(puzzles.add(codeOf(root, "YR").value(), "x"), Saving::Saved);
    }
    EXPECT_EQ(puzzles.add("38RTWET", "one more"), Saving::Full);
}

} // namespace veyrand::play
