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
