#include "engine/HintHelper.h"
#include "platform/fakes/MemoryJournal.h"
#include "play/Decide.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/KeptPlay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::controller {

using progress::Mode;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

const std::string kFile = "New-classic.txt";

class KeptGamesTest : public test::KeptPlay {
protected:
    KeptGamesTest() { launch(); }

    // Doubles what follows the yellow of the last line.
    void playOneMove()
    {
        const auto row = m_game->controller().lineCount() - 1;
        m_game->controller().moves().mouseClick(row, 0);
        m_game->wait(3.0);
    }
    void mergeReds()
    {
        const auto row = m_game->controller().lineCount() - 1;
        m_game->controller().moves().mouseDrag(row, 1, row, 3);
        m_game->wait(3.0);
    }

    // The next move of a shortest way.
    void playBestMove(double wait = 8.0)
    {
        const auto proof = m_game->controller().proof();
        m_game->controller().messages().dismiss();
        const auto gesture
            = play::gestureFor({ .lines = proof->lines(), .goal = proof->goal(), .open = 7 },
                engine::HintHelper(proof).nextTheorem().value().theorem());
        if (const auto* const drag = std::get_if<play::Drag>(&gesture.value())) {
            m_game->controller().moves().mouseDrag(
                drag->fromRow, drag->from, drag->toRow, drag->to);
        } else {
            const auto& click = std::get<play::Click>(*gesture);
            m_game->controller().moves().mouseClick(click.row, click.column);
        }
        m_game->wait(wait);
    }
    // To the next puzzle's start.
    void solve()
    {
        for (const auto proof = m_game->controller().proof();
             m_game->controller().proof() == proof;) {
            playBestMove();
        }
    }

    [[nodiscard]] KeptGames& kept() { return m_game->controller().kept(); }
    [[nodiscard]] std::string text(const std::string& name = kFile)
    {
        return m_journal.read(name).contents.value_or("(none)");
    }
    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const auto& [name, contents] : m_journal.texts()) {
            names.push_back(name);
        }
        return names;
    }
};

} // namespace

TEST_F(KeptGamesTest, WritesEachActionBeforeItIsShown)
{
    goOn();
    EXPECT_THAT(text(), HasSubstr("puzzle 2-4 YRRRR YR 4 310 0"));
    m_game->controller().moves().mouseDrag(0, 1, 0, 3);
    EXPECT_THAT(text(), HasSubstr("move 2 0 = YGR #"));
    m_game->controller().deleteClick(1);
    EXPECT_THAT(text(), HasSubstr("remove 1 = YRRRR #"));
    EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(KeptGamesTest, GoesOnWithTheSameFile)
{
    goOn();
    mergeReds();
    const std::string before = text();
    launch();
    goOn();
    EXPECT_EQ(text(), before);
    playOneMove();
    EXPECT_EQ(text().substr(0, before.size()), before);
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR", "YGRGR"));
    EXPECT_THAT(names(), ElementsAre(kFile));
    EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(KeptGamesTest, ADamagedLineTakesWhatFollowsAndIsSaid)
{
    goOn();
    mergeReds();
    playOneMove();
    std::string damaged = text();
    damaged[damaged.find("move 1 0")] = 'M';
    m_journal.write(kFile, damaged);
    launch();
    EXPECT_THAT(m_told,
        ElementsAre("The unfinished puzzle in New-classic.txt cannot be read to its end: line 4 is "
                    "damaged. It is kept as New-classic.txt.damaged-1."));
    EXPECT_EQ(text(kFile + ".damaged-1"), damaged);
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR"));
    playOneMove();
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR", "YGRGR"));
    EXPECT_THAT(m_told, IsEmpty()) << "it has been told";
}

// Whatever stands in the file, the game starts, and loses no more than it must.
TEST_F(KeptGamesTest, AnyByteMayBeWrong)
{
    goOn();
    mergeReds();
    playOneMove();
    const std::string whole = text();
    for (std::size_t at = 0; at < whole.size(); at += 5) {
        m_journal.write(kFile, whole);
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x15);
        m_journal.write(kFile, damaged);
        launch();
        const auto line
            = std::count(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at), '\n');
        ASSERT_EQ(m_told.size(), 1U) << at;
        goOn();
        ASSERT_EQ(lines().size(), line < 3 ? 1U : 2U) << at;
    }
}

TEST_F(KeptGamesTest, ALineThatWasNeverEndedIsWrittenAnew)
{
    goOn();
    mergeReds();
    m_journal.write(kFile, text() + "move 1 0 = YGR");
    launch();
    EXPECT_THAT(m_told, IsEmpty());
    goOn();
    playOneMove();
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR", "YGRGR"));
    EXPECT_THAT(names(), ElementsAre(kFile));
}

TEST_F(KeptGamesTest, WhatDoesNotFitTheRecordIsKeptAside)
{
    goOn();
    mergeReds();
    progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName, { .score = 400 });
    launch();
    EXPECT_THAT(m_told, IsEmpty());
    EXPECT_THAT(names(), ElementsAre(kFile + ".aside-1"));
    EXPECT_THAT(m_game->log().lines(), ::testing::Contains(HasSubstr("New-classic.txt")));
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR"));
}

TEST_F(KeptGamesTest, ALaterFormatIsLeftToALaterVersion)
{
    m_journal.write(kFile, "veyrand-actions 2 New\n");
    launch();
    EXPECT_THAT(names(), ElementsAre(kFile + ".newer-1"));
    ASSERT_EQ(m_told.size(), 1U);
    EXPECT_THAT(m_told.front(), HasSubstr("a later version of the game has written it"));
}

TEST_F(KeptGamesTest, AFailedWriteIsToldOnceAndAgainAtTheEnd)
{
    goOn();
    m_journal.failWith("No space left on device");
    mergeReds();
    playOneMove();
    EXPECT_THAT(
        m_told, ElementsAre("The unfinished puzzle cannot be kept: No space left on device."));
    EXPECT_EQ(
        kept().lastWords(), "The unfinished puzzle could not be kept: No space left on device.");
    m_told.clear();
    m_journal.failWith("");
    playOneMove();
    EXPECT_THAT(m_told, ElementsAre("The unfinished puzzle is kept again."));
    EXPECT_EQ(kept().lastWords(), "");
    const auto before = lines();
    ASSERT_EQ(before.size(), 4U);
    const std::uint64_t hash = m_game->controller().flow().session()->hash();
    launch();
    goOn();
    EXPECT_EQ(lines(), before);
    EXPECT_EQ(m_game->controller().flow().session()->hash(), hash);
    EXPECT_THAT(m_told, IsEmpty());
}

// Somebody tidies up, or a sync fails: nothing is lost that need be told.
TEST_F(KeptGamesTest, AJournalThatCannotGrowIsWrittenAnew)
{
    goOn();
    mergeReds();
    m_journal.remove(kFile);
    playOneMove();
    EXPECT_THAT(m_told, IsEmpty());
    EXPECT_THAT(m_game->log().lines(), ::testing::Contains(HasSubstr("is written anew")));
    playOneMove();
    const auto before = lines();
    launch();
    goOn();
    EXPECT_EQ(lines(), before);
    EXPECT_EQ(kept().lastWords(), "");
}

TEST_F(KeptGamesTest, WhatCouldNotBeWrittenIsTriedAgainAtTheEnd)
{
    goOn();
    m_journal.failWith("No space left on device");
    mergeReds();
    m_journal.failWith("");
    m_game->controller().flow().returnToMenu();
    EXPECT_EQ(kept().lastWords(), "");
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR"));
}

// No success in the other game makes up for what failed in this one.
TEST_F(KeptGamesTest, EachGameIsToldOfByItself)
{
    goOn();
    m_journal.failWith("No space left on device");
    mergeReds();
    m_game->controller().flow().returnToMenu();
    m_told.clear();
    m_journal.failWith("");
    m_game->currentGame().newPlayer(std::string(progress::kDefaultPlayerName), Mode::Endless);
    m_game->controller().flow().startEndlessGame();
    m_game->wait(1.0);
    playBestMove();
    EXPECT_THAT(m_told, IsEmpty());
    m_journal.failWith("No space left on device");
    EXPECT_EQ(
        kept().lastWords(), "The unfinished puzzle could not be kept: No space left on device.");
}

TEST_F(KeptGamesTest, ASolutionCountsThoughTheMovesBeforeItCouldNotBeWritten)
{
    goOn();
    m_journal.failWith("No space left on device");
    mergeReds();
    m_game->controller().deleteClick(1);
    m_game->wait(3.0);
    playBestMove();
    playBestMove();
    m_journal.failWith("");
    playBestMove(0.1);
    ASSERT_TRUE(m_game->controller().flow().session()->settled().isSolved());
    const auto score = m_game->currentGame().score();
    ASSERT_GT(score, 310);
    launch(); // while it is celebrated
    goOn();
    EXPECT_EQ(m_game->currentGame().score(), score);
    EXPECT_EQ(m_game->currentGame().stage(), 5);
}

// The journal there is leads from the record on the disk; one that began here would not.
TEST_F(KeptGamesTest, AJournalThatTheRecordNeedsIsNotReplaced)
{
    bool isSaved = false;
    kept().setRecordTest([&] { return isSaved; });
    goOn();
    solve();
    ASSERT_EQ(m_game->currentGame().stage(), 5);
    const std::string before = text();
    m_journal.failWith("No space left on device");
    playBestMove();
    m_journal.failWith("");
    solve();
    EXPECT_EQ(text(), before) << "nor by that of the next puzzle";
    EXPECT_NE(kept().lastWords(), "");
    isSaved = true;
    playBestMove();
    EXPECT_NE(text(), before);
    EXPECT_EQ(kept().lastWords(), "");
}

// Were the par saved, the journal would no longer fit the record.
TEST_F(KeptGamesTest, AnEndlessPuzzleIsFoundAgainAfterAParThatCouldNotBeChosen)
{
    progress::updatePlayerRecord(
        m_preferences, progress::kDefaultPlayerName, { .endlessScore = 500, .endlessPar = 4 });
    m_game->currentGame().newPlayer(std::string(progress::kDefaultPlayerName), Mode::Endless);
    m_game->controller().flow().startEndlessGame();
    m_game->wait(1.0);
    playBestMove();
    m_game->controller().hints().lightBulbClick(); // marked
    m_game->wait(1.0);
    m_game->controller().hints().lightBulbClick(); // in pieces
    m_game->wait(1.0);
    m_game->controller().hints().lightBulbClick(); // which fly
    ASSERT_EQ(m_game->controller().flow().phase(), play::Phase::HintFlying);
    m_game->controller().flow().harderButtonClick();
    const std::uint64_t hash = m_game->controller().flow().session()->hash();
    EXPECT_EQ(kept().standingOf(Mode::Endless).endlessPar, 4);
    launch();
    m_game->currentGame().newPlayer(std::string(progress::kDefaultPlayerName), Mode::Endless);
    m_game->controller().flow().startEndlessGame();
    EXPECT_EQ(m_game->controller().flow().session()->hash(), hash);
    EXPECT_EQ(m_game->currentGame().endlessScore(), 350);
    EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(KeptGamesTest, TheFirstOfTwoParsCounts)
{
    progress::updatePlayerRecord(
        m_preferences, progress::kDefaultPlayerName, { .endlessScore = 500, .endlessPar = 4 });
    m_game->currentGame().newPlayer(std::string(progress::kDefaultPlayerName), Mode::Endless);
    m_game->controller().flow().startEndlessGame();
    m_game->controller().flow().harderButtonClick();
    m_game->controller().flow().easierButtonClick();
    EXPECT_EQ(kept().standingOf(Mode::Endless).endlessPar, 5);
    m_game->wait(4.0);
    EXPECT_EQ(m_game->currentGame().par(), 5);
    launch();
    EXPECT_NE(kept().keptOf(Mode::Endless), nullptr);
}

// The preferences' disk is full, the journal's is not.
TEST_F(KeptGamesTest, ARecordThatCouldNotBeSavedIsMadeGoodByTheJournal)
{
    const auto saved
        = m_preferences.record(progress::playerRecordKey(progress::kDefaultPlayerName));
    kept().setRecordTest([] { return false; });
    goOn();
    mergeReds();
    m_game->controller().deleteClick(1);
    m_game->wait(3.0);
    solve();
    EXPECT_EQ(m_game->currentGame().stage(), 5);
    solve();
    EXPECT_EQ(m_game->currentGame().stage(), 6);
    playBestMove();
    const auto before = lines();
    const auto score = m_game->currentGame().score();
    ASSERT_GT(before.size(), 1U);

    // What the disk still says: 2-4.
    m_preferences.setRecord(progress::playerRecordKey(progress::kDefaultPlayerName), *saved);
    launch();
    goOn();
    EXPECT_EQ(m_game->currentGame().stage(), 6);
    EXPECT_EQ(m_game->currentGame().score(), score);
    EXPECT_EQ(lines(), before);
    EXPECT_THAT(m_told, IsEmpty());
    EXPECT_THAT(names(), ElementsAre(kFile, "New-results.txt"));

    // Had it been saved on the way, nothing would count twice.
    saveRecord(2, 5, 310 + 150);
    launch();
    goOn();
    EXPECT_EQ(m_game->currentGame().stage(), 6);
    EXPECT_EQ(m_game->currentGame().score(), score);
    EXPECT_EQ(lines(), before);
}

TEST_F(KeptGamesTest, AnEndOnTheTitlePageLosesNothing)
{
    goOn();
    mergeReds();
    const auto before = lines();
    m_game->controller().flow().returnToMenu();
    launch();
    goOn();
    EXPECT_EQ(lines(), before);
    // Nor one before anything was chosen there.
    launch();
    launch();
    goOn();
    EXPECT_EQ(lines(), before);
}

TEST_F(KeptGamesTest, AnEndUnderAQuestionLosesNothing)
{
    goOn();
    mergeReds();
    const auto before = lines();
    // The question whether to go on, or to begin anew.
    m_game->controller().flow().returnToMenu();
    m_game->wait(1.0);
    m_game->controller().flow().newClassicGame();
    m_game->wait(1.0);
    ASSERT_NE(m_game->controller().dialogues().dialogueState(), 0);
    launch();
    goOn();
    EXPECT_EQ(lines(), before);
    // The one whether to leave for the title page, and the page of too few points.
    m_game->controller().pages().show("stopHintClick");
    m_game->wait(1.0);
    launch();
    goOn();
    EXPECT_EQ(lines(), before);
    EXPECT_THAT(m_told, IsEmpty());
}

TEST_F(KeptGamesTest, ALongJournalIsBegunAnew)
{
    goOn();
    for (int i = 0; i < 600; ++i) { // which a mouse would take too long for
        for (const play::Action& action :
            { play::Action(play::Move { 1, 0 }), play::Action(play::Remove { 1 }) }) {
            ASSERT_TRUE(
                std::holds_alternative<play::Outcome>(m_game->controller().flow().apply(action)));
        }
    }
    mergeReds();
    const auto count
        = [](const std::string& lines) { return std::count(lines.begin(), lines.end(), '\n'); };
    EXPECT_LE(count(text()), 1000);
    const std::uint64_t hash = m_game->controller().flow().session()->hash();
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR"));
    EXPECT_EQ(m_game->controller().flow().session()->hash(), hash);
}

TEST_F(KeptGamesTest, EachPlayerHasHisOwn)
{
    goOn();
    mergeReds();
    m_preferences.setValue(progress::kPlayerNameKey, std::string("Zoë"));
    progress::updatePlayerRecord(m_preferences, "Zoë", { .level = 2, .stage = 4, .score = 310 });
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR"));
    m_preferences.setValue(progress::kPlayerNameKey, std::string("New"));
    launch();
    goOn();
    EXPECT_THAT(lines(), ElementsAre("YRRRR", "YGR"));
}

} // namespace veyrand::controller
