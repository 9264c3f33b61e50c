#include "controller/ReplaySheet.h"
#include "play/PuzzleCode.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

using Lines = std::vector<std::string>;

// A puzzle from the first line to the last, and how somebody solved it.
play::Result solvedBy(const Lines& lines, unsigned par)
{
    using engine::PackedLine;
    play::Result result { .puzzle = { lines.front(), lines.back() }, .par = par, .moves = {} };
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const auto move = play::moveBetween(PackedLine::pack(lines[i - 1]).value(),
            PackedLine::pack(lines[i]).value(), play::kAllMoves);
        EXPECT_TRUE(move) << lines[i];
        result.moves.push_back(move.value_or(play::Move {}));
    }
    return result;
}

std::string codeFor(const Lines& lines)
{
    return play::codeOf(lines.front(), lines.back()).value();
}

// Where there is nothing to press.
class EmptySheet final : public Sheet {
public:
    [[nodiscard]] std::string_view name() const override { return "empty"; }
    void draw(present::SheetDrawing& /*drawing*/) const override { }
    void press(const std::string& /*key*/) override { }
    [[nodiscard]] std::string title() const override { return {}; }
    [[nodiscard]] std::string told() const override { return {}; }
    [[nodiscard]] std::string firstFocus() const override { return "nothing"; }
};

class SheetsTest : public test::HeadlessPlay {
protected:
    SheetsTest() { wait(2.0); }

    [[nodiscard]] Sheets& sheets() { return game().controller().sheets(); }
    [[nodiscard]] PuzzleShelf& shelf() { return game().controller().shelf(); }
    [[nodiscard]] std::string text(const char* id) { return game().game().texts().text(id); }
    void keep(const std::string& name, const play::Result& result)
    {
        play::Results results;
        results.add(name, result);
        game().controller().book().join(results);
    }
    void type(const Lines& keys)
    {
        for (const std::string& key : keys) {
            sheets().key(key);
        }
    }
};

class ReplayPageTest : public SheetsTest {
protected:
    [[nodiscard]] ReplaySheet::State state()
    {
        const auto* const sheet = dynamic_cast<const ReplaySheet*>(sheets().shown());
        EXPECT_NE(sheet, nullptr);
        return sheet != nullptr ? sheet->state() : ReplaySheet::State {};
    }
    void show(const Lines& lines, unsigned par)
    {
        keep(codeFor(lines), solvedBy(lines, par));
        sheets().openReplay(codeFor(lines));
        wait(1.0);
    }

    const Lines m_wayRound { "YR", "YRR", "YRRRR", "YRG" };
};

class EditorPageTest : public SheetsTest {
protected:
    void open(const std::string& start, const std::string& goal)
    {
        shelf().setDraft({ start, goal });
        sheets().openEditor();
        wait(1.0);
    }
    void wishForTheHardest()
    {
        for (const char* const key : { "par-more", "bits-more" }) {
            for (int press = 0; press < 40; ++press) {
                sheets().choose(key);
            }
        }
    }
};

} // namespace

TEST_F(SheetsTest, APressOnWhatHasGoneDoesNothing)
{
    for (const auto& open : { &Sheets::openMap, &Sheets::openDaily, &Sheets::openStatistics,
             &Sheets::openMine, &Sheets::openEditor }) {
        (sheets().*open)();
        wait(1.0);
        const std::string name = sheets().name();
        const std::string told = sheets().told();
        sheets().choose("what-was-here");
        EXPECT_EQ(sheets().name(), name);
        EXPECT_EQ(sheets().told(), told);
    }
}

TEST_F(SheetsTest, TheKeysBeginAnewWhereTheirPlaceHasGone)
{
    sheets().openStatistics();
    const std::string first = sheets().focus();
    const auto places = sheets().places();
    sheets().focusOn("what-was-here");
    sheets().key("Left");
    EXPECT_EQ(sheets().focus(), first);
    sheets().focusOn("what-was-here");
    sheets().key("Tab");
    EXPECT_EQ(sheets().focus(), places.front().key);
}

TEST_F(SheetsTest, TheKeysStayWhereThereIsNothingToPress)
{
    sheets().open(std::make_unique<EmptySheet>());
    type({ "Tab", "Shift+Tab", "Left", "Return", "Enter", "F5" });
    EXPECT_EQ(sheets().focus(), "nothing");
    EXPECT_EQ(sheets().name(), "empty");
}

TEST_F(SheetsTest, EscLeadsOffASheet)
{
    for (const char* const key : { "Esc", "Escape" }) {
        sheets().openMap();
        sheets().key(key);
        EXPECT_FALSE(sheets().isOpen()) << key;
        EXPECT_EQ(sheets().title(), "");
        EXPECT_EQ(sheets().told(), "");
    }
}

TEST_F(SheetsTest, ADayToComeIsNotChosen)
{
    sheets().openDaily();
    const std::string told = sheets().told();
    for (const char* const day : { "day-2026-11-22", "day-2027-01-01", "day-of-rest" }) {
        sheets().choose(day);
        EXPECT_EQ(sheets().told(), told) << day;
    }
    EXPECT_EQ(game().controller().proof(), nullptr);
}

// --- The replay

TEST_F(ReplayPageTest, ShowsWhereASolutionLeftTheShortestWays)
{
    show(m_wayRound, 1);
    EXPECT_EQ(state().lines, m_wayRound);
    EXPECT_THAT(state().leftAt, ElementsAre(1U));
    sheets().key("Right");
    EXPECT_NE(state().note, "");
}

TEST_F(ReplayPageTest, APausedRunStandsStill)
{
    show(m_wayRound, 1);
    sheets().choose("run");
    EXPECT_TRUE(state().isRunning);
    wait(0.1);
    sheets().choose("run");
    EXPECT_FALSE(state().isRunning);
    wait(10.0);
    EXPECT_EQ(state().step, 0U);
}

TEST_F(ReplayPageTest, ARunFromTheEndBeginsAtTheStart)
{
    show(m_wayRound, 1);
    sheets().choose("last");
    EXPECT_EQ(state().step, 3U);
    sheets().choose("run");
    EXPECT_EQ(state().step, 0U);
    wait(20.0);
    EXPECT_EQ(state().step, 3U);
    EXPECT_FALSE(state().isRunning);
}

TEST_F(ReplayPageTest, ARunEndsWithItsPage)
{
    show(m_wayRound, 1);
    sheets().choose("run");
    sheets().close();
    wait(10.0);
    sheets().openReplay(codeFor(m_wayRound));
    EXPECT_EQ(state().step, 0U);
}

TEST_F(ReplayPageTest, OpensForNothingThatIsNotSolved)
{
    sheets().openMap();
    for (const char* const name : { "9-9", "1-1", "2026-11-20", "37T8649F2MEJ", "" }) {
        sheets().openReplay(name);
        EXPECT_EQ(sheets().name(), "map") << name;
    }
}

TEST_F(ReplayPageTest, LeadsBackToTheMapWhereNothingElseWasOpen)
{
    show(m_wayRound, 1);
    sheets().escape();
    EXPECT_EQ(sheets().name(), "map");
}

TEST_F(ReplayPageTest, LeadsBackToTheSheetThatItWasOpenedFrom)
{
    sheets().openStatistics();
    show(m_wayRound, 1);
    sheets().escape();
    EXPECT_EQ(sheets().name(), "statistics");
}

TEST_F(ReplayPageTest, HasAPuzzleOfSomebodysOwnPlayedAgain)
{
    show(m_wayRound, 1);
    sheets().choose("play");
    wait(2.0);
    EXPECT_EQ(game().controller().practice().nameInPlay(), codeFor(m_wayRound));
    EXPECT_THAT(lines(), ElementsAre("YR"));
}

TEST_F(ReplayPageTest, HasADaysPuzzlePlayedAgain)
{
    const auto* const puzzle = game().controller().practice().daily().on({ 2026, 11, 20 });
    ASSERT_NE(puzzle, nullptr);
    keep("2026-11-20", { .puzzle = *puzzle, .par = 3, .moves = {} });
    sheets().openReplay("2026-11-20");
    wait(1.0);
    EXPECT_FALSE(state().isYours) << "nobody noted the moves";
    sheets().choose("yours");
    EXPECT_FALSE(state().isYours);
    sheets().choose("play");
    wait(2.0);
    EXPECT_EQ(game().controller().practice().nameInPlay(), "2026-11-20");
    EXPECT_THAT(lines(), ElementsAre(puzzle->root));
}

// Once a run went past its only line.
TEST_F(ReplayPageTest, StandsStillWhereNoMoveWasNotedAndNoneMayBeTold)
{
    auto& practice = game().controller().practice();
    const auto* const next = practice.entryAt(practice.standing());
    const Lines asked { next->root, next->goal };
    keep(codeFor(asked), { .puzzle = { next->root, next->goal }, .par = 3, .moves = {} });
    sheets().openReplay(codeFor(asked));
    ASSERT_EQ(sheets().name(), "replay");
    type({ "Right", "End", "PgUp", "PgDown", "Return" });
    for (const char* const key : { "shortest", "way-after", "run" }) {
        sheets().choose(key);
        wait(10.0);
    }
    EXPECT_EQ(state().lines, Lines { next->root });
    EXPECT_EQ(state().step, 0U);
    EXPECT_EQ(state().ways, 0U);
    EXPECT_EQ(state().note, "");
    EXPECT_FALSE(state().isRunning);
}

// --- The player's own puzzles

TEST_F(SheetsTest, NothingIsRemovedCopiedOrNamedWhereNoPuzzleIsSaved)
{
    sheets().openMine();
    game().clipboard().setText("as it was");
    type({ "Del", "F2", "Ctrl+C" });
    for (const char* const key : { "play", "edit", "done", "blank", "rub-out", "letter-A" }) {
        sheets().choose(key);
    }
    EXPECT_FALSE(game().alerts().isOpen());
    EXPECT_EQ(game().clipboard().text(), "as it was");
    EXPECT_THAT(sheets().told(), HasSubstr(text("mine.empty")));
}

TEST_F(SheetsTest, ANameIsWrittenAndRubbedOutLetterByLetter)
{
    const std::string code = codeFor({ "YR", "YRG" });
    shelf().add(code);
    shelf().rename(code, code); // as one has none
    sheets().openMine();
    type({ "F2", "A", "Shift+B", "\u00e9", "\u00df", "F5", "Backspace", "Backspace", "-" });
    sheets().choose("blank");
    sheets().choose("rub-out");
    sheets().choose("done");
    EXPECT_EQ(shelf().puzzles().all().front().name, "aB-");
    sheets().choose("rename");
    type(Lines(5, "Backspace"));
    type(Lines(40, "x"));
    sheets().choose("done");
    EXPECT_EQ(shelf().puzzles().all().front().name, std::string(32, 'x'));
}

TEST_F(SheetsTest, APuzzleIsRemovedWhereTheSheetHasGoneMeanwhile)
{
    shelf().add(codeFor({ "YR", "YRG" }));
    sheets().openMine();
    sheets().key("Del");
    ASSERT_TRUE(game().alerts().isOpen());
    sheets().openMap();
    game().alerts().answer({ .button = platform::AlertAnswer::Button::Default });
    EXPECT_TRUE(shelf().puzzles().all().empty());
    EXPECT_EQ(sheets().name(), "map");
}

TEST_F(SheetsTest, TheirOwnPuzzlesSayHowTheyWereSolved)
{
    const Lines straight { "YRRR", "YG" };
    const Lines round { "YR", "YRR", "YRRRR", "YRG" };
    for (const Lines& lines : { straight, round }) {
        shelf().add(codeFor(lines));
        keep(codeFor(lines), solvedBy(lines, 1));
    }
    sheets().openMine();
    wait(1.0);
    sheets().choose("row-" + codeFor(straight));
    const std::string atPar = sheets().told();
    sheets().choose("row-" + codeFor(round));
    EXPECT_NE(sheets().told(), atPar);
    EXPECT_THAT(sheets().told(), HasSubstr("3"));
}

// --- The editor

TEST_F(EditorPageTest, NeitherPlaysNorSavesWhatCannotBeReached)
{
    for (const char* const goal : { "", "BBBBBBBBBBBB" }) {
        for (const char* const key : { "play", "save" }) {
            SCOPED_TRACE(key);
            open("YR", goal);
            sheets().choose(key);
            EXPECT_THAT(sheets().told(), HasSubstr(text("editor.notYet")));
            EXPECT_TRUE(shelf().puzzles().all().empty());
            EXPECT_EQ(game().controller().proof(), nullptr);
        }
    }
}

TEST_F(EditorPageTest, SaysWhenNoMoreArePutAside)
{
    play::MyPuzzles many;
    for (std::size_t number = 0; many.all().size() < play::MyPuzzles::kMost; ++number) {
        std::string goal = "Y";
        for (std::size_t rest = number; goal.size() < 8; rest /= 3) {
            goal += "RGB"[rest % 3];
        }
        many.add(play::codeOf("YR", goal).value(), "One of many");
    }
    shelf().replace(many);
    open("YR", "YRG");
    sheets().choose("save");
    EXPECT_THAT(sheets().told(), HasSubstr(text("editor.shelfFull")));
    EXPECT_EQ(shelf().puzzles(), many);
}

// It was looked for in one go where the clock stands still meanwhile.
TEST_F(EditorPageTest, APuzzleIsLookedForInSlicesAndNotOnceItIsCalledOff)
{
    open("YR", "YRG");
    wishForTheHardest();
    sheets().choose("make");
    game().runLoop().performAfterDelay(0.0, [this] { sheets().choose("make"); });
    wait(1.0);
    EXPECT_EQ(shelf().draft().goal, "YRG");
    EXPECT_THAT(sheets().told(), Not(HasSubstr(text("editor.nearest"))));
}

TEST_F(EditorPageTest, TheNearestIsShownWhereWhatWasWishedForIsNotFound)
{
    open("YR", "YRG");
    wishForTheHardest();
    for (int press = 0; press < 8; ++press) {
        sheets().choose("par-less"); // so easy none is that rare
    }
    sheets().choose("make");
    wait(1.0);
    EXPECT_NE(shelf().draft().goal, "YRG");
    EXPECT_THAT(sheets().told(), HasSubstr(text("editor.nearest")));
}

TEST_F(EditorPageTest, NothingIsLookedForOnceThePageHasGone)
{
    for (const bool isFirstSlice : { true, false }) {
        open("YR", "YRG");
        wishForTheHardest();
        sheets().choose("make");
        if (isFirstSlice) {
            sheets().choose("puzzles");
        } else {
            game().runLoop().performAfterDelay(0.0, [this] { sheets().choose("puzzles"); });
        }
        wait(1.0);
        EXPECT_EQ(shelf().draft().goal, "YRG");
    }
}

TEST_F(EditorPageTest, WhatIsTypedBesideTheLinesGoesToTheEndOfOne)
{
    open("YR", "YRG");
    sheets().focusOn("make");
    type({ "B", "Backspace", "Backspace" });
    EXPECT_EQ(shelf().draft().root + '>' + shelf().draft().goal, "Y>YRG");
    type({ "Backspace", "x" });
    EXPECT_THAT(sheets().told(), HasSubstr(text("editor.oneYellow")));
}

} // namespace veyrand::controller
