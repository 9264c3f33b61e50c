#include "platform/fakes/MemoryJournal.h"
#include "play/JournalText.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/KeptPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

namespace {

const std::string kClassicFile = "New-classic.txt";

// What a launch makes of a journal that is none of this player's, or cannot have been played.
using JournalsAsideTest = test::KeptPlay;

} // namespace

TEST_F(JournalsAsideTest, AnothersJournalUnderThisNameIsKeptAside)
{
    play::JournalWriter writer;
    m_journal.write(kClassicFile, writer.head("Other") + '\n');
    launch();
    EXPECT_EQ(m_journal.texts().count(kClassicFile), 0U);
    EXPECT_EQ(m_journal.texts().size(), 1U) << "it is there under another name";
    EXPECT_THAT(m_told, IsEmpty()) << "the player has lost nothing";
}

TEST_F(JournalsAsideTest, AnActionThatCannotHaveBeenIsSaidWithItsLine)
{
    launch();
    m_game->controller().flow().startClassicGame();
    const std::string begun = m_journal.texts().at(kClassicFile);
    play::JournalWriter writer(play::readJournal(begun).checks.back());
    m_journal.write(kClassicFile, begun + writer.line({ play::Move { 3, 5 }, {} }) + '\n');
    launch();
    EXPECT_THAT(m_told, ElementsAre(HasSubstr("line 3: ")));
}

TEST_F(JournalsAsideTest, OneThatIsTooLargeIsKeptAside)
{
    m_journal.write(kClassicFile, std::string(platform::Journal::kMostBytes + 1, ' '));
    launch();
    EXPECT_THAT(m_told, ElementsAre(HasSubstr("too large")));
    EXPECT_EQ(m_journal.texts().count(kClassicFile), 0U);
    EXPECT_EQ(m_journal.texts().size(), 1U) << "it is there under another name";
}

TEST_F(JournalsAsideTest, OneThatCannotBeMovedAsideIsSaidToBeInTheWay)
{
    m_journal.write(kClassicFile, "?\n");
    m_journal.failWith("No space left on device");
    launch();
    ASSERT_THAT(m_told, Not(IsEmpty()));
    EXPECT_EQ(m_told.front(),
        m_game->game().texts().text("saving.unreadableInTheWay",
            { { "file", kClassicFile }, { "why", std::string("line 1 is damaged") } }));
}

TEST_F(JournalsAsideTest, NothingIsWrittenOverWhatCannotBeMovedAside)
{
    m_journal.write(kClassicFile, "?\n");
    m_journal.mayKeepAside(false);
    launch();
    ASSERT_THAT(m_told, SizeIs(1));
    goOn();
    m_game->controller().moves().mouseDrag(0, 1, 0, 3);
    EXPECT_EQ(m_journal.texts().at(kClassicFile), "?\n");
    EXPECT_THAT(m_told,
        ElementsAre(HasSubstr("New-classic.txt"),
            HasSubstr("what stands in New-classic.txt cannot be set aside")));
    m_game->controller().kept().replace(progress::Mode::Classic, std::nullopt);
    EXPECT_EQ(m_journal.texts().at(kClassicFile), "?\n") << "nor is it removed";
}

TEST_F(JournalsAsideTest, WhatIsInTheWayIsMovedAsideAsSoonAsItCanBe)
{
    launch();
    goOn();
    const std::string begun = m_journal.texts().at(kClassicFile);
    m_journal.write(kClassicFile, begun + "?\n");
    m_journal.mayKeepAside(false);
    launch();
    EXPECT_THAT(m_told, SizeIs(2)) << "damaged, and not kept";
    EXPECT_EQ(m_journal.texts().at(kClassicFile), begun + "?\n");
    m_journal.mayKeepAside(true);
    goOn();
    m_game->controller().moves().mouseDrag(0, 1, 0, 3);
    EXPECT_THAT(m_told, SizeIs(3)) << "kept again";
    EXPECT_THAT(m_journal.texts().at(kClassicFile), HasSubstr("move 2 0"));
    EXPECT_EQ(m_journal.texts().at(kClassicFile + ".damaged-1"), begun + "?\n");
}

TEST_F(JournalsAsideTest, AnothersJournalStaysWhereItCannotBeMovedFrom)
{
    play::JournalWriter writer;
    const std::string others = writer.head("Other") + '\n';
    m_journal.write(kClassicFile, others);
    m_journal.mayKeepAside(false);
    launch();
    EXPECT_THAT(m_told, IsEmpty());
    goOn();
    EXPECT_THAT(m_told, ElementsAre(HasSubstr("cannot be set aside")));
    EXPECT_EQ(m_journal.texts().at(kClassicFile), others);
}

TEST_F(JournalsAsideTest, ResultsThatCannotBeMovedAsideStay)
{
    const std::string results = "New-results.txt";
    m_journal.write(results, "?\n?\n");
    m_journal.mayKeepAside(false);
    launch();
    EXPECT_EQ(m_journal.texts().at(results), "?\n?\n");
    EXPECT_THAT(m_told,
        ElementsAre(HasSubstr("It cannot be set aside either."),
            HasSubstr("what stands in New-results.txt cannot be set aside")));
    m_journal.mayKeepAside(true);
    m_game->controller().book().load();
    EXPECT_EQ(m_journal.texts().at(results + ".damaged-1"), "?\n?\n");
}

TEST_F(JournalsAsideTest, WhoWantsNoneKeptIsToldOfNoneThatIsMissing)
{
    m_preferences.setRecord(progress::kSettingsKey, { { "KeepUnfinishedPuzzles", false } });
    launch();
    m_game->controller().flow().startClassicGame();
    m_journal.failWith("No space left on device");
    EXPECT_EQ(m_game->controller().kept().lastWords(), "");
    EXPECT_EQ(m_journal.texts().count(kClassicFile), 0U);
}

TEST_F(JournalsAsideTest, APuzzleOfOnesOwnThatCannotBeKeptIsSaidOnce)
{
    launch();
    m_journal.failWith("No space left on device");
    PuzzleShelf& shelf = m_game->controller().shelf();
    EXPECT_EQ(shelf.add("3373NECJ"), play::MyPuzzles::Saving::Saved);
    shelf.rename("3373NECJ", "Mine");
    EXPECT_THAT(m_told, ElementsAre(HasSubstr("No space left on device")));
    m_journal.failWith("");
    shelf.rename("3373NECJ", "Ours");
    EXPECT_THAT(m_told, SizeIs(1)) << "there is room again";
    EXPECT_THAT(m_journal.texts().at("New-puzzles.txt"), HasSubstr("Ours"));
}

TEST_F(JournalsAsideTest, ResultsThatCannotBeReadAreSaidAndKeptAsideWhereThatCanBe)
{
    const std::string results = "New-results.txt";
    m_journal.write(results, std::string(platform::Journal::kMostBytes + 1, ' '));
    launch();
    EXPECT_THAT(m_told, ElementsAre(AllOf(HasSubstr("too large"), HasSubstr("kept as"))));
    m_journal.write(results, "?\n?\n");
    m_journal.failWith("No space left on device");
    launch();
    ASSERT_THAT(m_told, Not(IsEmpty()));
    EXPECT_THAT(m_told.front(), AllOf(HasSubstr("damaged"), Not(HasSubstr("kept as"))));
}

TEST_F(JournalsAsideTest, WhoWantsPuzzlesKeptFromNowOnHasNoneThatIsSolvedOrGone)
{
    const auto want = [this](bool isWanted) {
        m_preferences.setRecord(progress::kSettingsKey, { { "KeepUnfinishedPuzzles", isWanted } });
        m_game->controller().kept().settingsChanged();
    };
    launch();
    want(false);
    want(true);
    EXPECT_EQ(m_journal.texts().count(kClassicFile), 0U) << "there is no puzzle";
    want(false);
    m_game->controller().flow().startClassicGame();
    EXPECT_EQ(m_journal.texts().count(kClassicFile), 0U);
    want(true);
    EXPECT_EQ(m_journal.texts().count(kClassicFile), 1U);
    want(true);
    EXPECT_EQ(m_journal.texts().count(kClassicFile), 1U);
}

} // namespace veyrand::controller
