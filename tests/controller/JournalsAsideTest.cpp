#include "platform/fakes/MemoryJournal.h"
#include "play/JournalText.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>

namespace veyrand::controller {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

const std::string kClassicFile = "New-classic.txt";

// What a launch makes of a journal that is none of this player's, or cannot have been played.
class JournalsAsideTest : public ::testing::Test {
protected:
    JournalsAsideTest()
    {
        progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
            { .level = 2, .stage = 4, .score = 310, .firstHintClick = true });
    }

    void launch()
    {
        m_game.reset();
        m_told.clear();
        m_game = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options {
            .store = &m_preferences, .resources = &test::gameResources(), .journal = &m_journal });
        m_game->launch();
        m_game->controller().kept().setReporter(
            [this](const std::string& message) { m_told.push_back(message); });
    }

    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
    std::vector<std::string> m_told;
};

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

} // namespace veyrand::controller
