#include "play/Replay.h"

#include "play/ActionText.h"

#include <gtest/gtest.h>
#include <random>

namespace veyrand::play {

using progress::Mode;

namespace {

const Puzzle kPuzzle { Mode::Classic, { 5, 4 }, "YRRR", "YRBRR", 6, 470, 0 };

// Applies the texts, one after another; each must be possible.
Replay after(const std::vector<std::string>& texts)
{
    Replay replay;
    EXPECT_EQ(replay.apply(kPuzzle), "");
    for (const std::string& text : texts) {
        const auto action = parse(text);
        EXPECT_TRUE(action.has_value()) << text;
        EXPECT_EQ(replay.apply(*action), "") << text;
    }
    return replay;
}

std::vector<std::string> linesOf(const Replay& replay)
{
    std::vector<std::string> lines;
    for (const Replay::Line& line : replay.lines()) {
        lines.push_back(line.chips);
    }
    return lines;
}

std::string faultAfter(const std::vector<std::string>& texts, const std::string& text)
{
    Replay replay = after(texts);
    const std::uint64_t before = replay.hash();
    std::string fault = replay.apply(*parse(text));
    EXPECT_EQ(replay.hash() == before, !fault.empty()) << text;
    return fault;
}

using Lines = std::vector<std::string>;

} // namespace

TEST(Replay, MakesAndTakesBackLines)
{
    EXPECT_EQ(linesOf(after({ "move 1 0" })), (Lines { "YRRR", "YRRRRRR" }));
    const Replay replay = after({ "move 2 0", "move 1 0", "move 5 0", "remove 2" });
    EXPECT_EQ(linesOf(replay), (Lines { "YRRR", "YG" }));
    EXPECT_EQ(replay.lastLine(), "YG");
}

TEST(Replay, UndoesAndDoesAgain)
{
    const std::vector<std::string> played { "move 2 0", "move 1 0", "remove 1" };
    EXPECT_EQ(linesOf(after({ "move 2 0", "undo" })), (Lines { "YRRR" }));
    EXPECT_EQ(linesOf(after({ "move 2 0", "undo", "redo" })), (Lines { "YRRR", "YG" }));
    EXPECT_EQ(linesOf(after({ "move 2 0", "move 1 0", "remove 1", "undo" })),
        (Lines { "YRRR", "YG", "YGG" }));
    EXPECT_EQ(
        linesOf(after({ "move 2 0", "move 1 0", "remove 1", "undo", "redo" })), (Lines { "YRRR" }));
    EXPECT_EQ(faultAfter({}, "undo"), "nothing can be undone");
    EXPECT_EQ(faultAfter(played, "redo"), "nothing can be done again");
    EXPECT_EQ(faultAfter({ "move 2 0", "undo", "move 1 0" }, "redo"), "nothing can be done again");
}

TEST(Replay, PaysForHintsAndKeepsTheirStage)
{
    const Replay marked = after({ "move 2 0", "hint good" });
    EXPECT_EQ(marked.hintStage(), 1);
    EXPECT_TRUE(marked.isMarked());
    EXPECT_EQ(marked.balance(), -50);
    EXPECT_EQ(marked.purse(), 420);
    const Replay shown = after({ "move 2 0", "hint good", "hint pieces" });
    EXPECT_EQ(shown.hintStage(), 2);
    EXPECT_FALSE(shown.isMarked());
    const Replay line = after({ "move 2 0", "hint good", "hint pieces", "hint line 1 0" });
    EXPECT_EQ(linesOf(line), (Lines { "YRRR", "YG", "YGG" }));
    EXPECT_EQ(line.hintStage(), 1);
    EXPECT_FALSE(line.isMarked());
    EXPECT_EQ(line.balance(), -150);
    const Replay back = after({ "move 2 0", "move 1 0", "hint back 1" });
    EXPECT_EQ(linesOf(back), (Lines { "YRRR" }));
    EXPECT_EQ(back.hintStage(), 1);
    EXPECT_TRUE(back.isMarked());
    EXPECT_EQ(after({ "hint nothing" }).hintStage(), 1);
}

TEST(Replay, AnyStepEndsTheHintAndNoneGivesPointsBack)
{
    for (const char* const step : { "move 1 0", "remove 1", "undo" }) {
        const Replay replay = after({ "move 2 0", "hint good", "hint pieces", step });
        EXPECT_EQ(replay.hintStage(), 0) << step;
        EXPECT_FALSE(replay.isMarked());
        EXPECT_EQ(replay.balance(), -100);
    }
    const Replay line = after({ "hint pieces", "hint line 2 0", "undo", "redo" });
    EXPECT_EQ(line.hintStage(), 1);
    EXPECT_FALSE(line.isMarked());
    EXPECT_EQ(line.balance(), -100);
    const Replay back = after({ "move 2 0", "hint back 1", "undo", "redo" });
    EXPECT_TRUE(back.isMarked());
}

TEST(Replay, CountsTheSolvedPuzzleAndEndsThere)
{
    // YRRR -> YG -> YGG -> YGBG -> YGBGGBG would go on; a short one is enough.
    Replay replay;
    ASSERT_EQ(replay.apply(Puzzle { Mode::Classic, { 1, 1 }, "YGR", "YGRGR", 2, 0, 0 }), "");
    ASSERT_EQ(replay.apply(Move { 1, 0 }), "");
    EXPECT_TRUE(replay.isSolved());
    EXPECT_EQ(replay.balance(), 150);
    EXPECT_FALSE(replay.canUndo());
    EXPECT_EQ(replay.apply(Undo {}), "the puzzle is over");
    EXPECT_EQ(replay.apply(Move { 1, 0 }), "the puzzle is over");
    ASSERT_EQ(replay.apply(Puzzle { Mode::Endless, {}, "YGR", "YGRGR", 2, 40, 10 }), "");
    EXPECT_EQ(replay.purse(), 30);
    ASSERT_EQ(replay.apply(Move { 1, 0 }), "");
    EXPECT_EQ(replay.balance(), 10);
}

TEST(Replay, LeavesAnEndlessPuzzleForAnotherPar)
{
    Replay replay;
    ASSERT_EQ(replay.apply(Puzzle { Mode::Endless, {}, "YGR", "YGRGR", 5, 40, 0 }), "");
    ASSERT_EQ(replay.apply(Leave { 6 }), "");
    EXPECT_EQ(replay.leftFor(), 6);
    EXPECT_EQ(replay.lastLine(), "");
    EXPECT_EQ(replay.apply(Redo {}), "the puzzle is over");
    EXPECT_EQ(faultAfter({}, "leave 6"), "only an Endless puzzle can be left");
}

TEST(Replay, RefusesWhatCannotHaveHappened)
{
    Replay replay;
    EXPECT_EQ(replay.apply(Move { 1, 0 }), "no puzzle has been begun");
    EXPECT_EQ(faultAfter({}, "move 3 0"), "the last line has no such move");
    EXPECT_EQ(faultAfter({}, "move 2 1"), "the last line has no such move");
    EXPECT_EQ(faultAfter({}, "move 7 0"), "the last line has no such move");
    EXPECT_EQ(faultAfter({ "move 1 0" }, "move 1 0"), "the line would be too long");
    EXPECT_EQ(faultAfter({}, "remove 0"), "there is no such row");
    EXPECT_EQ(faultAfter({ "move 1 0" }, "remove 2"), "there is no such row");
    EXPECT_EQ(faultAfter({ "move 1 0" }, "hint back 2"), "this is not what a hint would come to");
    EXPECT_EQ(faultAfter({}, "hint line 3 0"), "this is not what a hint would come to");
    ASSERT_EQ(replay.apply(Puzzle { Mode::Classic, { 1, 1 }, "YGR", "YGRGR", 2, 99, 50 }), "");
    EXPECT_EQ(
        replay.apply(Hint { Hint::Kind::Pieces, 0, {} }), "there are too few points for a hint");
}

TEST(Replay, OnlyTheGoalFitsOnTheLastLine)
{
    Replay replay;
    ASSERT_EQ(replay.apply(Puzzle { Mode::Classic, { 5, 1 }, "YYYYRRRRRRRR", "Y", 2, 50, 0 }), "");
    for (unsigned line = 2; line <= kMostLines - 1; ++line) {
        ASSERT_EQ(replay.apply(Move { 4, 0 }), "") << line;
    }
    EXPECT_EQ(replay.lines().size(), kMostLines - 1);
    EXPECT_EQ(replay.apply(Move { 4, 0 }), "the board is full");
    EXPECT_EQ(replay.apply(Hint { Hint::Kind::Line, 0, { 4, 0 } }),
        "this is not what a hint would come to");
}

// A hash that forgot something would let two different games pass for one.
TEST(Replay, TheHashSeesEachThingAlone)
{
    const std::vector<Replay> different { Replay(), after({}), after({ "move 2 0" }),
        after({ "move 1 0" }), after({ "move 2 0", "undo" }), after({ "move 2 0", "hint good" }),
        after({ "move 2 0", "hint good", "hint pieces" }), after({ "hint nothing" }),
        after({ "hint nothing", "hint nothing" }), after({ "hint pieces" }),
        after({ "hint pieces", "hint line 2 0" }),
        after({ "hint pieces", "hint nothing", "move 2 0" }), after({ "move 2 0", "remove 1" }),
        after({ "move 2 0", "hint back 1" }), after({ "move 2 0", "remove 1", "undo" }) };
    for (std::size_t one = 0; one < different.size(); ++one) {
        for (std::size_t other = 0; other < one; ++other) {
            EXPECT_NE(different[one].hash(), different[other].hash()) << one << ' ' << other;
        }
    }
    for (auto change : std::vector<void (*)(Puzzle&)> { [](Puzzle& p) { p.place.stage = 5; },
             [](Puzzle& p) { p.mode = Mode::Endless; }, [](Puzzle& p) { p.par = 7; },
             [](Puzzle& p) { p.root = "YRR"; }, [](Puzzle& p) { p.goal = "YR"; },
             [](Puzzle& p) { p.saved += 10; } }) {
        Puzzle puzzle = kPuzzle;
        change(puzzle);
        Replay replay;
        ASSERT_EQ(replay.apply(puzzle), "");
        EXPECT_NE(replay.hash(), after({}).hash()) << print(puzzle);
    }
    // The same purse, come by otherwise.
    Puzzle poorer = kPuzzle;
    poorer.saved += 100;
    poorer.spent += 100;
    Replay replay;
    ASSERT_EQ(replay.apply(poorer), "");
    EXPECT_EQ(replay.hash(), after({}).hash());
}

namespace {

// The shortened list, which must come to the very same.
std::vector<Action> shortened(const Replay& replay)
{
    std::vector<Action> shorter = replay.compact();
    Replay again;
    for (const Action& action : shorter) {
        EXPECT_EQ(again.apply(action), "") << print(action);
    }
    EXPECT_EQ(again.hash(), replay.hash());
    EXPECT_EQ(linesOf(again), linesOf(replay));
    EXPECT_EQ(again.purse(), replay.purse());
    return shorter;
}

} // namespace

// At random, for journals are begun anew with it.
TEST(Replay, AShortenedListComesToTheSame)
{
    std::mt19937 random(11);
    const auto pick = [&random](unsigned count) { return static_cast<unsigned>(random() % count); };
    unsigned compared = 0;
    for (int game = 0; game < 5; ++game) {
        Replay replay;
        ASSERT_EQ(replay.apply(Puzzle { Mode::Endless, {}, "YRRGB", "B", 6, 20000, 0 }), "");
        std::size_t longest = 0;
        for (int tries = 0; tries < 600; ++tries) {
            const std::vector<Action> all { Move { pick(7), pick(2) }, Move { pick(7), 0 },
                Move { pick(7), 0 }, Remove { 1 + pick(6) }, Hint { Hint::Kind::Good, 0, {} },
                Hint { Hint::Kind::Back, 1 + pick(3), {} }, Hint { Hint::Kind::Pieces, 0, {} },
                Hint { Hint::Kind::Line, 0, { pick(7), 0 } }, Hint { Hint::Kind::Nothing, 0, {} },
                Undo {}, Undo {}, Redo {}, Redo {} };
            if (!replay.apply(all[pick(static_cast<unsigned>(all.size()))]).empty()
                || replay.isOver() || tries % 19 != 0) {
                continue;
            }
            ++compared;
            longest = std::max(longest, shortened(replay).size());
            Replay left = replay;
            ASSERT_EQ(left.apply(Leave { 7 }), "");
            shortened(left);
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_LE(longest, 2 * kMostSteps + 4);
    }
    EXPECT_GT(compared, 25U);
}

// By a move, and by a hint's line, with hints and a removal before them.
TEST(Replay, AShortenedListSolvesWhatWasSolved)
{
    for (const bool isHinted : { false, true }) {
        Replay replay;
        ASSERT_EQ(replay.apply(Puzzle { Mode::Classic, { 2, 4 }, "YRRRR", "YGR", 4, 310, 50 }), "");
        for (const Action& action : { Action(Move { 1, 0 }), Action(Hint { Hint::Kind::Back, 1 }),
                 Action(Hint { Hint::Kind::Pieces }),
                 isHinted ? Action(Hint { Hint::Kind::Line, 0, { 2, 0 } })
                          : Action(Move { 2, 0 }) }) {
            ASSERT_EQ(replay.apply(action), "");
        }
        ASSERT_TRUE(replay.isSolved());
        EXPECT_GT(replay.earned(), 0);
        EXPECT_LE(shortened(replay).size(), 5U);
    }
}

TEST(Replay, FoldsItsOldestStepsAndNothingElse)
{
    Replay replay;
    ASSERT_EQ(replay.apply(Puzzle { Mode::Classic, { 5, 1 }, "YYRGB", "B", 2, 0, 0 }), "");
    for (std::size_t i = 0; i < 3 * kMostSteps; ++i) {
        ASSERT_EQ(replay.apply(i % 2 == 0 ? Action(Move { 4, 1 }) : Action(Remove { 1 })), "");
    }
    EXPECT_LE(replay.compact().size(), kMostSteps + 1);
    std::size_t undone = 0;
    while (replay.canUndo()) {
        ASSERT_EQ(replay.apply(Undo {}), "");
        ++undone;
    }
    EXPECT_GT(undone, kMostSteps / 2 - 2);
    EXPECT_EQ(linesOf(replay), (Lines { "YYRGB" }));
}

// What stood after each action is found again on the way back, until the oldest half begins, of
// which the lines standing then are left.
TEST(Replay, GoesBackThroughEveryStepThatWasNotFolded)
{
    Replay replay;
    ASSERT_EQ(replay.apply(Puzzle { Mode::Classic, { 5, 1 }, "YYRGB", "B", 2, 0, 0 }), "");
    const std::vector<Action> round { Move { 4, 1 }, Move { 4, 0 }, Move { 4, 0 }, Remove { 2 },
        Move { 4, 0 }, Remove { 1 } };
    std::vector<Lines> stood { linesOf(replay) };
    while (stood.size() <= kMostSteps + 1) {
        for (const Action& action : round) {
            if (stood.size() <= kMostSteps + 1) {
                ASSERT_EQ(replay.apply(action), "") << print(action) << " after " << stood.size();
                stood.push_back(linesOf(replay));
            }
        }
    }
    const std::size_t kept = kMostSteps + 1 - kMostSteps / 2;
    for (std::size_t undone = 0; undone <= kept; ++undone) {
        ASSERT_EQ(linesOf(replay), stood[stood.size() - 1 - undone]) << undone;
        ASSERT_EQ(replay.apply(Undo {}), "") << undone;
    }
    Lines left = linesOf(replay);
    while (replay.canUndo()) {
        left = linesOf(replay);
        ASSERT_EQ(replay.undoes(), Replay::StepKind::Move);
        ASSERT_EQ(replay.apply(Undo {}), "");
        left.pop_back();
        EXPECT_EQ(linesOf(replay), left);
    }
    EXPECT_EQ(linesOf(replay), stood.front());
}

TEST(Replay, AStepDoneAgainIsTheHintThatItWas)
{
    Replay replay = after({});
    const auto again = [&replay](const Action& action) {
        EXPECT_EQ(replay.apply(action), "") << print(action);
        EXPECT_EQ(replay.apply(Undo {}), "");
        EXPECT_EQ(replay.hintStage(), 0);
        EXPECT_FALSE(replay.isMarked());
        EXPECT_EQ(replay.apply(Redo {}), "");
        return std::pair(replay.hintStage(), replay.isMarked());
    };
    EXPECT_EQ(again(Move { 1, 0 }), std::pair(0, false));
    EXPECT_EQ(again(Hint { Hint::Kind::Line, 0, { 2, 0 } }), std::pair(1, false));
    EXPECT_EQ(again(Hint { Hint::Kind::Back, 1, {} }), std::pair(1, true));
    EXPECT_EQ(again(Move { 2, 0 }), std::pair(0, false));
    EXPECT_EQ(again(Remove { 1 }), std::pair(0, false));
}

} // namespace veyrand::play
