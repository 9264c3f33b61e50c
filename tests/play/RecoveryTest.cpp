#include "play/Recovery.h"

#include "play/ActionText.h"

#include <gtest/gtest.h>

namespace veyrand::play {

using progress::Catalogue;
using progress::Mode;
using Found = Recovery::Found;

namespace {

// 1-1 to 11-10 all alike but for two places, and two Endless pairs of par 5 and one of 6.
Catalogue classic()
{
    Catalogue entries(progress::kClassicEntries, { "YR", "Y", 2 });
    entries[static_cast<std::size_t>(progress::catalogueIndex({ 5, 4 }))] = { "YRRR", "YGG", 3 };
    entries[static_cast<std::size_t>(progress::catalogueIndex({ 11, 10 }))] = { "YGR", "YGRGR", 2 };
    return entries;
}

Catalogue endless()
{
    return { { "YRRR", "YGG", 5 }, { "YGR", "YGRGR", 5 }, { "YGR", "YGRGR", 6 } };
}

constexpr Standing kClassic { Mode::Classic, { 5, 4 }, 470, 0 };
constexpr Standing kEndless { Mode::Endless, { 5, 4 }, 300, 0 };
const std::string kPuzzleLine = "puzzle 5-4 YRRR YGG 3 470 0";
const std::string kDraw = "puzzle endless YRRR YGG 5 300 0";

// What the journal of these actions comes to: through its text, as at launch.
Recovery recovered(const Standing& record, const std::vector<std::string>& actions)
{
    JournalWriter writer;
    Replay replay;
    std::string text = writer.head("New") + '\n';
    for (const std::string& action : actions) {
        EXPECT_EQ(replay.apply(*parse(action)), "") << action;
        text += writer.line({ *parse(action), replay.lastLine() }) + '\n';
    }
    const JournalText found = readJournal(text, "New");
    EXPECT_EQ(found.entries.size(), actions.size());
    return recover(record, record.mode == Mode::Endless ? endless() : classic(), found.entries);
}

Standing saved(Standing record, std::int64_t score, progress::Place place)
{
    record.score = score;
    record.place = place;
    return record;
}

} // namespace

TEST(Recovery, FindsNothingWhereNothingWasWritten)
{
    const Recovery recovery = recover(kClassic, classic(), {});
    EXPECT_EQ(recovery.found, Found::Nothing);
    EXPECT_EQ(recovery.fault, "");
}

TEST(Recovery, APuzzleThatWasBeingPlayedGoesOn)
{
    const Recovery recovery = recovered(kClassic, { kPuzzleLine, "move 2 0", "remove 1", "undo" });
    EXPECT_EQ(recovery.found, Found::InPlay);
    EXPECT_EQ(recovery.replay.lastLine(), "YG");
    EXPECT_EQ(recovery.standing, kClassic);
    EXPECT_TRUE(recovery.replay.canRedo());
}

TEST(Recovery, PiecesThatWereShownArePaidFor)
{
    const Recovery recovery = recovered(kClassic, { kPuzzleLine, "hint pieces" });
    EXPECT_EQ(recovery.found, Found::InPlay);
    EXPECT_EQ(recovery.replay.hintStage(), 2);
    EXPECT_EQ(recovery.replay.purse(), 420);
}

TEST(Recovery, PiecesThatWereFlyingAreALine)
{
    const Recovery recovery = recovered(kClassic, { kPuzzleLine, "hint pieces", "hint line 2 0" });
    EXPECT_EQ(recovery.found, Found::InPlay);
    EXPECT_EQ(recovery.replay.lastLine(), "YG");
    EXPECT_EQ(recovery.replay.purse(), 370);
}

TEST(Recovery, PiecesThatWereFlyingToTheGoalHaveSolvedIt)
{
    const Recovery recovery = recovered(
        kClassic, { kPuzzleLine, "move 2 0", "hint good", "hint pieces", "hint line 1 0" });
    EXPECT_EQ(recovery.found, Found::Solved);
    EXPECT_EQ(recovery.standing, saved(kClassic, 470 - 150 + 150, { 5, 5 }));
}

TEST(Recovery, AWalkBackHasArrived)
{
    const Recovery recovery
        = recovered(kClassic, { kPuzzleLine, "move 1 0", "remove 1", "move 1 0", "hint back 1" });
    EXPECT_EQ(recovery.found, Found::InPlay);
    EXPECT_EQ(recovery.replay.lastLine(), "YRRR");
    EXPECT_TRUE(recovery.replay.isMarked());
    EXPECT_EQ(recovery.replay.purse(), 420);
}

TEST(Recovery, ACelebrationCounts)
{
    const std::vector<std::string> solved { kPuzzleLine, "move 2 0", "move 1 0" };
    EXPECT_EQ(recovered(kClassic, solved).found, Found::Solved);
    EXPECT_EQ(recovered(kClassic, solved).standing, saved(kClassic, 620, { 5, 5 }));
    const Recovery drawn = recovered(kEndless, { kDraw, "move 2 0", "move 1 0" });
    EXPECT_EQ(drawn.found, Found::Solved);
    EXPECT_EQ(drawn.standing, saved(kEndless, 300 + 40 + 20, kEndless.place));
}

TEST(Recovery, TheLastPuzzleBringsItsPointsAlone)
{
    const Standing last { Mode::Classic, { 11, 10 }, 100, 0 };
    const Recovery recovery = recovered(last, { "puzzle 11-10 YGR YGRGR 2 100 0", "move 1 0" });
    EXPECT_EQ(recovery.found, Found::Solved);
    EXPECT_EQ(recovery.standing, saved(last, 250, { 11, 10 }));
}

TEST(Recovery, WhatTheRecordHasEarnedAlreadyCountsOnce)
{
    const std::vector<std::string> solved { kPuzzleLine, "hint pieces", "move 2 0", "move 1 0" };
    EXPECT_EQ(recovered(saved(kClassic, 570, { 5, 5 }), solved).found, Found::AlreadySaved);
    EXPECT_EQ(recovered(saved(kClassic, 570, { 5, 4 }), solved).found, Found::Misfit);
    EXPECT_EQ(recovered(saved(kClassic, 470, { 5, 5 }), solved).found, Found::Misfit);
    const std::vector<std::string> drawn { kDraw, "move 2 0", "move 1 0" };
    EXPECT_EQ(recovered(saved(kEndless, 360, { 5, 4 }), drawn).found, Found::AlreadySaved);
}

TEST(Recovery, APuzzleThatWasLeftIsLeft)
{
    const std::vector<std::string> left { kDraw, "hint pieces", "leave 6" };
    Standing chosen = kEndless;
    chosen.endlessPar = 6;
    // The record's par is saved at once, and its score when the next puzzle comes.
    for (const Standing& record : { kEndless, chosen }) {
        const Recovery recovery = recovered(record, left);
        EXPECT_EQ(recovery.found, Found::Left);
        EXPECT_EQ(recovery.standing, saved(chosen, 250, chosen.place));
    }
    EXPECT_EQ(recovered(saved(chosen, 250, chosen.place), left).found, Found::AlreadySaved);
}

TEST(Recovery, AJournalOfAnotherRecordIsAMisfit)
{
    const std::vector<std::string> played { kPuzzleLine, "move 2 0" };
    EXPECT_EQ(recovered(saved(kClassic, 480, { 5, 4 }), played).found, Found::Misfit);
    EXPECT_EQ(recovered(saved(kClassic, 470, { 5, 3 }), played).found, Found::Misfit);
    Standing hard = kEndless;
    hard.endlessPar = 6;
    EXPECT_EQ(recovered(hard, { kDraw, "move 2 0" }).found, Found::Misfit);
}

TEST(Recovery, AJournalOfAnotherCatalogueIsAMisfit)
{
    EXPECT_EQ(recovered(kClassic, { "puzzle 5-4 YRRR YGB 3 470 0" }).found, Found::Misfit);
    EXPECT_EQ(recovered(kClassic, { "puzzle 5-4 YRRR YGG 4 470 0" }).found, Found::Misfit);
    EXPECT_EQ(recovered(kEndless, { "puzzle endless YR YGG 5 300 0" }).found, Found::Misfit);
    const Standing nowhere { Mode::Classic, { 0, 0 }, 0, 0 };
    EXPECT_EQ(recovered(nowhere, { "puzzle 0-0 YR Y 2 0 0" }).found, Found::Misfit);
    const Standing beyond { Mode::Classic, { 12, 1 }, 0, 0 };
    EXPECT_EQ(recovered(beyond, { "puzzle 12-1 YR Y 2 0 0" }).found, Found::Misfit);
}

// The check of a line says that it was written so, not that a game can have gone like that.
TEST(Recovery, GoesAsFarAsAGameCanHaveGone)
{
    const JournalEntry puzzle { *parse(kPuzzleLine), "YRRR" };
    const JournalEntry move { *parse("move 2 0"), "YG" };
    const auto found = [&](const JournalEntry& third) {
        return recover(kClassic, classic(), { puzzle, move, third });
    };
    EXPECT_EQ(found({ *parse("move 1 0"), "YGG" }).replayed, 3U);
    for (const JournalEntry& wrong :
        { JournalEntry { *parse("move 2 0"), "YGG" }, JournalEntry { *parse("move 1 0"), "YGB" },
            JournalEntry { *parse("redo"), "YG" }, puzzle }) {
        const Recovery recovery = found(wrong);
        EXPECT_EQ(recovery.found, Found::InPlay) << print(wrong.action);
        EXPECT_EQ(recovery.replayed, 2U);
        EXPECT_EQ(recovery.replay.lastLine(), "YG");
        EXPECT_NE(recovery.fault, "");
    }
    const Recovery none = recover(kClassic, classic(), { move });
    EXPECT_EQ(none.found, Found::Nothing);
    EXPECT_EQ(none.fault, "no puzzle has been begun");
}

// One puzzle follows another where the record could not be saved: it may stand at any of them.
TEST(Recovery, GoesOnFromWhereverTheRecordStands)
{
    const std::vector<std::string> played { kPuzzleLine, "move 2 0", "move 1 0",
        "puzzle 5-5 YR Y 2 620 0", "move 1 0", "hint back 1" };
    for (const Standing& record : { kClassic, saved(kClassic, 620, { 5, 5 }) }) {
        const Recovery recovery = recovered(record, played);
        EXPECT_EQ(recovery.found, Found::InPlay);
        EXPECT_EQ(recovery.standing, saved(kClassic, 620, { 5, 5 }));
        EXPECT_EQ(recovery.replay.purse(), 570);
    }
    EXPECT_EQ(recovered(saved(kClassic, 630, { 5, 5 }), played).found, Found::Misfit);
    const Recovery draws
        = recovered(kEndless, { kDraw, "leave 6", "puzzle endless YGR YGRGR 6 300 0", "move 1 0" });
    EXPECT_EQ(draws.found, Found::Solved);
    EXPECT_EQ(draws.standing.endlessPar, 6);
    EXPECT_EQ(draws.standing.score, 300 + 50 + 40);
}

TEST(Recovery, NoPuzzleFollowsOneThatIsNotOverOrLedElsewhere)
{
    const auto fault = [](std::initializer_list<const char*> actions) {
        std::vector<JournalEntry> entries;
        for (const char* const action : actions) {
            entries.push_back({ *parse(action), {} });
        }
        return recover(kClassic, classic(), entries).fault;
    };
    EXPECT_EQ(
        fault({ kPuzzleLine.c_str(), "move 2 0", "move 1 0", "puzzle 5-5 YR Y 2 620 0" }), "");
    EXPECT_NE(fault({ kPuzzleLine.c_str(), "move 2 0", "puzzle 5-5 YR Y 2 470 0" }), "");
    EXPECT_NE(
        fault({ kPuzzleLine.c_str(), "move 2 0", "move 1 0", "puzzle 5-6 YR Y 2 620 0" }), "");
    EXPECT_NE(
        fault({ kPuzzleLine.c_str(), "move 2 0", "move 1 0", "puzzle 5-5 YR Y 2 630 0" }), "");
    EXPECT_NE(
        fault({ kPuzzleLine.c_str(), "move 2 0", "move 1 0", "puzzle endless YRRR YGG 5 620 0" }),
        "");
}

TEST(Recovery, WhatWasSpentBeforeIsStillSpent)
{
    const Recovery recovery
        = recovered(kClassic, { "puzzle 5-4 YRRR YGG 3 470 100", "hint pieces" });
    EXPECT_EQ(recovery.found, Found::InPlay);
    EXPECT_EQ(recovery.replay.purse(), 320);
}

} // namespace veyrand::play
