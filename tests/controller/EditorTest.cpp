#include "platform/fakes/MemoryJournal.h"
#include "play/PuzzleCode.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::HasSubstr;

namespace {

class EditorTest : public test::HeadlessPlay {
protected:
    EditorTest()
    {
        wait(2.0);
        sheets().openEditor();
        wait(1.0);
    }

    [[nodiscard]] Sheets& sheets() { return game().controller().sheets(); }
    [[nodiscard]] PuzzleShelf& shelf() { return game().controller().shelf(); }
    [[nodiscard]] std::string text(const char* id) { return game().game().texts().text(id); }
    void type(const std::string& chips)
    {
        for (const char chip : chips) {
            game().key(std::string(1, chip));
            wait(0.2);
        }
    }
    void paste(const std::string& code)
    {
        game().clipboard().setText(code);
        game().key("Ctrl+V");
        wait(1.0);
    }
};

} // namespace

TEST_F(EditorTest, TakesNoMoreChipsThanALineHas)
{
    type(std::string(12, 'R'));
    wait(1.0);
    EXPECT_EQ(game().controller().shelf().draft().root, "YRRRRRRRRRRR");
    sheets().focusOn("make");
    type("R");
    EXPECT_EQ(game().controller().shelf().draft().root, "YRRRRRRRRRRR");
    EXPECT_THAT(sheets().told(), HasSubstr(text("editor.full")));
}

TEST_F(EditorTest, KeepsTheOneYellowAtTheStart)
{
    sheets().choose("take-back");
    EXPECT_THAT(sheets().told(), HasSubstr(text("editor.oneYellow")));
    EXPECT_EQ(game().controller().shelf().draft().root, "Y");
}

TEST_F(EditorTest, SaysWhatIsWrongWithACodeThatIsPasted)
{
    paste("37T8649F2MEK");
    ASSERT_TRUE(game().alerts().isOpen());
    EXPECT_EQ(game().alerts().alert().message, text("practice.codeSlip"));
    game().alerts().close();
    const auto code = play::codeOf("RYR", "RYRG");
    ASSERT_TRUE(code);
    paste(*code);
    EXPECT_THAT(sheets().told(), HasSubstr(text("editor.oneYellow")));
}

// A puzzle saved by number never takes the name of another.
TEST_F(EditorTest, ASavedPuzzleTakesTheNextNumberThatIsFree)
{
    PuzzleShelf& shelf = game().controller().shelf();
    const auto code = [](const char* goal) { return play::codeOf("YR", goal).value(); };
    shelf.add(code("YRG"));
    shelf.add(code("YRR"));
    shelf.remove(code("YRG"));
    shelf.add(code("YRRG"));
    ASSERT_EQ(shelf.puzzles().all().size(), 2U);
    EXPECT_NE(shelf.puzzles().all()[0].name, shelf.puzzles().all()[1].name);
    EXPECT_THAT(shelf.puzzles().all()[1].name, HasSubstr("3"));
}

// As a menu puts it, which is no press on the sheet.
TEST_F(EditorTest, LooksForNoPuzzleMoreWhenAnotherSheetHasTakenItsPlace)
{
    type("GR");
    const play::CodedPuzzle draft = shelf().draft();
    sheets().choose("make");
    sheets().openMine();
    wait(5.0);
    EXPECT_EQ(shelf().draft(), draft);
}

TEST_F(EditorTest, LooksForNoPuzzleMoreWhenItIsLeft)
{
    type("GR");
    const play::CodedPuzzle draft = shelf().draft();
    sheets().choose("make");
    sheets().close();
    wait(5.0);
    EXPECT_EQ(shelf().draft(), draft);
}

// Another editor may be open by then, on the same draft.
TEST_F(EditorTest, LooksForNoPuzzleMoreWhileItsOwnIsPlayed)
{
    paste("37T8649F2MEJ");
    const play::CodedPuzzle draft = shelf().draft();
    sheets().choose("make");
    sheets().choose("play");
    ASSERT_FALSE(sheets().isOpen());
    wait(5.0);
    EXPECT_EQ(shelf().draft(), draft);
    sheets().comeBack();
    EXPECT_EQ(sheets().name(), "editor");
    sheets().choose("make");
    wait(5.0);
    EXPECT_FALSE(shelf().draft() == draft) << "it can be asked anew";
}

TEST(ThePuzzleShelf, KeepsWhatCanStillBeReadOfADamagedFile)
{
    platform::MemoryJournal journal;
    const headless::HeadlessGame::Options options { .resources = &test::gameResources(),
        .journal = &journal };
    {
        headless::HeadlessGame game(options);
        game.launch();
        game.controller().shelf().add("37T8649F2MEJ");
    }
    std::string name;
    for (const auto& [each, text] : journal.texts()) {
        name = each.find("puzzles") != std::string::npos ? each : name;
    }
    ASSERT_NE(name, "");
    const std::string whole = journal.texts().at(name);
    journal.write(name, whole + "what is this?\n");
    headless::HeadlessGame game(options);
    game.launch();
    EXPECT_EQ(game.controller().shelf().puzzles().all().size(), 1U);
    EXPECT_EQ(journal.texts().at(name), whole);
}

} // namespace veyrand::controller
