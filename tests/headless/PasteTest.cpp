#include "support/HeadlessPlay.h"

namespace veyrand::controller {

namespace {

const std::string kCode = "37T8649F2MEJ";

// A sheet is open, and the code was copied elsewhere: where nobody has agreed yet, the game does
// not have it.
class PasteTest : public test::HeadlessPlay {
protected:
    Sheets& sheets() { return game().controller().sheets(); }
    PuzzleShelf& shelf() { return game().controller().shelf(); }
    void paste()
    {
        game().clipboard().copyElsewhere(kCode);
        sheets().key("Ctrl+V");
    }
};

} // namespace

TEST_F(PasteTest, TheEditorTakesACodeWhenSomebodyHasAgreed)
{
    sheets().openEditor();
    paste();
    EXPECT_NE(shelf().draft().goal, "RBYGGGBBG");
    const unsigned revision = sheets().revision();
    game().clipboard().agree();
    EXPECT_EQ(shelf().draft().root, "YBRGRRR");
    EXPECT_EQ(shelf().draft().goal, "RBYGGGBBG");
    EXPECT_NE(sheets().revision(), revision); // it is drawn
}

TEST_F(PasteTest, MyPuzzlesKeepACodeWhenSomebodyHasAgreed)
{
    sheets().openMine();
    paste();
    EXPECT_TRUE(shelf().puzzles().all().empty());
    const unsigned revision = sheets().revision();
    game().clipboard().agree();
    ASSERT_EQ(shelf().puzzles().all().size(), 1U);
    EXPECT_EQ(shelf().puzzles().all().front().code, kCode);
    EXPECT_EQ(sheets().focus(), "row-" + kCode);
    EXPECT_NE(sheets().revision(), revision);
}

TEST_F(PasteTest, ALateCodeDoesNotRenameAnotherPuzzle)
{
    shelf().add(kCode);
    sheets().openMine();
    game().clipboard().copyElsewhere("38RTWET");
    sheets().choose("paste-code");
    sheets().key("F2");
    sheets().key("x");
    game().clipboard().agree();
    sheets().choose("done");
    ASSERT_EQ(shelf().puzzles().all().size(), 2U);
    EXPECT_EQ(shelf().puzzles().all().front().name, "Puzzle 1");
    EXPECT_EQ(shelf().puzzles().all().back().name, "Puzzle 2");
}

TEST_F(PasteTest, TheMapPlaysACodeWhenSomebodyHasAgreed)
{
    sheets().openMap();
    paste();
    EXPECT_TRUE(sheets().isOpen());
    game().clipboard().agree();
    EXPECT_FALSE(sheets().isOpen());
}

TEST_F(PasteTest, NobodyMissesACodeWhoHasLeftTheSheet)
{
    sheets().openMap();
    paste();
    sheets().escape();
    sheets().openEditor();
    game().clipboard().agree();
    EXPECT_EQ(sheets().name(), "editor");
    EXPECT_NE(shelf().draft().goal, "RBYGGGBBG");
}

} // namespace veyrand::controller
