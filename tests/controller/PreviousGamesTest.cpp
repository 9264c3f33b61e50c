#include "platform/fakes/MemoryJournal.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/HeadlessPlay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veyrand::controller {

using progress::Mode;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

const std::string kJournal = "New-classic.txt";
const std::string kPrevious = "New-classic-previous.txt";

// A player at 2-4 (YRRRR to YR) who has made one move, started anew, and made one at 2-2.
class PreviousGamesTest : public ::testing::Test {
protected:
    PreviousGamesTest()
    {
        saveRecord(2, 4, 310);
        launch();
        goOn();
        m_game->controller().moves().mouseDrag(0, 1, 0, 3);
        m_game->wait(3.0);
        m_old = lines();
        m_game->controller().flow().returnToMenu();
        m_game->wait(1.0);
        m_game->controller().flow().newClassicGame();
        m_game->controller().dialogues().dialogueButtonClick(0);
        m_game->controller().flow().returnToMenu();
        saveRecord(2, 2, 40);
        goOn();
        m_game->controller().messages().dismiss();
        m_game->controller().moves().mouseClick(0, 0);
        m_game->wait(3.0);
        m_new = lines();
        m_game->controller().flow().returnToMenu();
        m_game->wait(1.0);
    }

    // As after a kill.
    void launch()
    {
        m_game.reset();
        m_game = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options {
            .store = &m_preferences, .resources = &test::gameResources(), .journal = &m_journal });
        m_game->launch();
    }
    void goOn() { m_game->controller().flow().startClassicGame(); }
    void saveRecord(int level, int stage, int score)
    {
        progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
            { .level = level, .stage = stage, .score = score, .firstHintClick = true });
    }
    [[nodiscard]] std::vector<std::string> lines() const
    {
        std::vector<std::string> lines;
        for (const engine::Theorem& line : m_game->controller().proof()->lines()) {
            lines.push_back(line.theorem());
        }
        return lines;
    }
    [[nodiscard]] std::string text(const std::string& name) const
    {
        return m_journal.read(name).contents.value_or("");
    }
    // What the next launch comes to: the game that goes on, then the one that can be brought back.
    void expectPlaces(
        const std::vector<std::string>& present, const std::vector<std::string>& other)
    {
        launch();
        goOn();
        EXPECT_EQ(lines(), present);
        launch();
        m_game->controller().previous().bringBack(progress::Mode::Classic);
        EXPECT_EQ(lines(), other);
    }

    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
    std::vector<std::string> m_old;
    std::vector<std::string> m_new;
};

} // namespace

TEST_F(PreviousGamesTest, TwoGamesChangePlacesAsOftenAsOneLikes)
{
    EXPECT_NE(m_old, m_new);
    for (int times = 0; times < 3; ++times) {
        m_game->controller().previous().bringBack(progress::Mode::Classic);
        EXPECT_EQ(lines(), m_old);
        m_game->controller().flow().returnToMenu();
        m_game->controller().previous().bringBack(progress::Mode::Classic);
        EXPECT_EQ(lines(), m_new);
        m_game->controller().flow().returnToMenu();
    }
    EXPECT_EQ(m_game->log().lines(), std::vector<std::string>());
}

// Between any two of the writes by which they change places.
TEST_F(PreviousGamesTest, NoEndWhileTheyChangePlacesCostsOne)
{
    const std::string journalBefore = text(kJournal);
    const std::string previousBefore = text(kPrevious);
    m_game->controller().previous().bringBack(progress::Mode::Classic);
    const std::string journalAfter = text(kJournal);
    const std::string previousAfter = text(kPrevious);
    const std::string both = previousAfter + previousBefore;
    ASSERT_THAT(journalAfter, Not(IsEmpty()));

    const auto ended = [&](bool recordIsSaved, const std::string& journal) {
        recordIsSaved ? saveRecord(2, 4, 310) : saveRecord(2, 2, 40);
        m_journal.remove(kJournal);
        if (!journal.empty()) {
            m_journal.write(kJournal, journal);
        }
        m_journal.write(kPrevious, both);
    };
    ended(false, journalBefore);
    expectPlaces(m_new, m_old);
    ended(true, journalBefore);
    expectPlaces(m_old, m_new);
    ended(true, "");
    expectPlaces(m_old, m_new);
    ended(true, journalAfter);
    expectPlaces(m_old, m_new);
}

TEST_F(PreviousGamesTest, TwoGamesAtOnePlaceAreToldApartByTheirPuzzles)
{
    // The old one again, as if it had come just as far.
    saveRecord(2, 2, 40);
    m_game->controller().previous().keep(progress::Mode::Classic);
    const std::string previousBefore = text(kPrevious);
    const std::string journalBefore = text(kJournal);
    goOn();
    m_game->controller().messages().dismiss();
    m_game->controller().deleteClick(1);
    m_game->wait(3.0);
    const auto further = lines();
    ASSERT_NE(further, m_new);
    m_game->controller().flow().returnToMenu();
    const std::string journalAfter = text(kJournal);
    m_game->controller().previous().keep(progress::Mode::Classic);
    const std::string both = text(kPrevious) + previousBefore;

    m_journal.write(kPrevious, both);
    m_journal.write(kJournal, journalAfter);
    expectPlaces(further, m_new);
    m_journal.write(kPrevious, both);
    m_journal.write(kJournal, journalBefore);
    expectPlaces(m_new, further);
}

TEST_F(PreviousGamesTest, WhatCannotBeKeptIsSaid)
{
    std::vector<std::string> told;
    m_game->controller().kept().setReporter(
        [&told](const std::string& message) { told.push_back(message); });
    m_journal.failWith("the disk is full");
    m_game->controller().previous().keep(progress::Mode::Classic);
    EXPECT_THAT(told, ElementsAre("The previous game cannot be kept: the disk is full."));
}

TEST_F(PreviousGamesTest, WhoLeavesTheOneGameIsOfferedTheOther)
{
    m_game->controller().previous().keep(progress::Mode::Endless);
    m_game->controller().previous().offer();
    platform::NotedAlerts& alerts = m_game->alerts();
    ASSERT_TRUE(alerts.isOpen());
    EXPECT_EQ(alerts.alert().message, "Bring back the previous Classic game?");
    alerts.close();
    ASSERT_TRUE(alerts.isOpen());
    EXPECT_EQ(alerts.alert().message, "Bring back the previous Endless game?");
    alerts.close();
    EXPECT_FALSE(alerts.isOpen()) << "there is no third";
}

TEST_F(PreviousGamesTest, WhereNothingIsKeptNothingComesBack)
{
    const std::string before = text(kJournal);
    m_game->controller().previous().bringBack(Mode::Endless);
    EXPECT_FALSE(m_game->controller().proof());
    EXPECT_EQ(text(kJournal), before);
    EXPECT_TRUE(m_game->controller().previous().previous(Mode::Classic));
}

} // namespace veyrand::controller
