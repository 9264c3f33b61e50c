#include "controller/StatisticsSheet.h"
#include "headless/HeadlessGame.h"
#include "platform/fakes/MemoryJournal.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "progress/Settings.h"
#include "support/FolderResources.h"

#include <gtest/gtest.h>
#include <memory>

namespace veyrand::controller {
namespace {

// Who looks at the clock or not, at 1-4 (YR to YRRG) with 1-1 to 1-3 solved.
class PuzzleTimerTest : public ::testing::Test {
protected:
    PuzzleTimerTest()
    {
        progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
            { .level = 1, .stage = 4, .score = 310, .firstHintClick = false });
        wantTimes(true);
        launch();
    }

    void wantTimes(bool wants)
    {
        progress::Settings settings = progress::readSettings(m_preferences);
        settings.timePuzzles = wants;
        progress::writeSettings(m_preferences, settings);
    }
    void launch()
    {
        m_game.reset();
        m_game = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options {
            .store = &m_preferences, .resources = &test::gameResources(), .journal = &m_journal });
        m_game->launch();
        m_game->wait(3.0);
    }
    [[nodiscard]] GameController& game() { return m_game->controller(); }
    void wait(double seconds) { m_game->wait(seconds); }

    void practise() { ASSERT_TRUE(game().practice().play({ 1, 3 })); }
    void goOn()
    {
        game().flow().startClassicGame();
        game().messages().dismiss();
    }
    void click(unsigned row, unsigned column) { game().moves().mouseClick(row, column); }
    [[nodiscard]] std::uint64_t secondsOf(const std::string& name)
    {
        const auto* const result = game().book().results().of(name);
        return result != nullptr ? result->seconds : 0;
    }
    [[nodiscard]] std::string journal(const std::string& name)
    {
        return m_journal.read(name).contents.value_or(std::string());
    }

    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
};

} // namespace

TEST_F(PuzzleTimerTest, APuzzleTakesFromItsLayingOutToItsLastMove)
{
    practise();
    wait(42.0);
    click(0, 1);
    EXPECT_EQ(secondsOf("1-3"), 42U);
    wait(20.0);
    EXPECT_EQ(secondsOf("1-3"), 42U) << "what is celebrated is over";
    launch();
    EXPECT_EQ(secondsOf("1-3"), 42U) << "and kept";
}

TEST_F(PuzzleTimerTest, NobodyLooksAtTheClockUnlessItIsWanted)
{
    wantTimes(false);
    practise();
    wait(42.0);
    click(0, 1);
    EXPECT_EQ(secondsOf("1-3"), 0U);
    EXPECT_EQ(game().book().statistics().solved, 3U);
}

TEST_F(PuzzleTimerTest, ALongPauseCountsForFiveMinutes)
{
    goOn();
    wait(10.0);
    click(0, 0);
    wait(5.0 * 3600.0);
    click(1, 2);
    EXPECT_EQ(secondsOf("1-4"), 310U);
}

TEST_F(PuzzleTimerTest, APuzzleThatWasLeftGoesOnWhereItWas)
{
    goOn();
    wait(10.0);
    click(0, 0);
    wait(20.0);
    game().flow().returnToMenu();
    wait(1000.0);
    goOn();
    wait(5.0);
    click(1, 2);
    EXPECT_EQ(secondsOf("1-4"), 35U);
}

TEST_F(PuzzleTimerTest, OfAPuzzleOfAnEarlierLaunchNobodyKnows)
{
    goOn();
    wait(10.0);
    click(0, 0);
    wait(2.0);
    game().flow().returnToMenu();
    launch();
    goOn();
    wait(5.0);
    click(1, 2);
    ASSERT_NE(game().book().results().of("1-4"), nullptr);
    EXPECT_EQ(secondsOf("1-4"), 0U);
}

TEST_F(PuzzleTimerTest, RecordsAndJournalsAreAsWithoutIt)
{
    const auto playClassic = [this] {
        goOn();
        wait(10.0);
        click(0, 0);
        wait(20.0);
    };
    playClassic();
    const std::string journalInPlay = journal("New-classic.txt");
    click(1, 2);
    wait(20.0);
    const auto key = progress::playerRecordKey(progress::kDefaultPlayerName);
    const auto record = m_preferences.record(key);
    const std::string journalAfter = journal("New-classic.txt");
    const std::string results = journal("New-results.txt");
    EXPECT_FALSE(journalInPlay.empty());

    m_game.reset();
    m_journal.write("New-classic.txt", "");
    m_journal.write("New-results.txt", "");
    progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
        { .level = 1, .stage = 4, .score = 310, .firstHintClick = false });
    wantTimes(false);
    launch();
    playClassic();
    EXPECT_EQ(journal("New-classic.txt"), journalInPlay);
    click(1, 2);
    wait(20.0);
    EXPECT_EQ(m_preferences.record(key), record);
    EXPECT_EQ(journal("New-classic.txt"), journalAfter);
    EXPECT_NE(journal("New-results.txt"), results) << "where alone it is written";
}

TEST_F(PuzzleTimerTest, WhatItTookIsSaidInWords)
{
    const language::Texts& texts = game().context().texts;
    EXPECT_EQ(durationWords(texts, 7), "7 s");
    EXPECT_EQ(durationWords(texts, 60), "1 min 0 s");
    EXPECT_EQ(durationWords(texts, 3599), "59 min 59 s");
    EXPECT_EQ(durationWords(texts, 34800), "9 h 40 min");
}

TEST_F(PuzzleTimerTest, WhatAnEarlierSolutionTookIsForgotten)
{
    const auto leave = [this] {
        wait(100.0);
        click(0, 0);
        game().flow().returnToMenu();
    };
    const auto solve = [this] {
        goOn();
        wait(5.0);
        click(1, 2);
        return game().book().toReplay("1-4")->seconds;
    };
    goOn();
    leave();
    EXPECT_EQ(solve(), 105U);
    wait(20.0);
    game().flow().returnToMenu();

    // Once more, begun by somebody who did not look at the clock.
    progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
        { .level = 1, .stage = 4, .score = 310, .firstHintClick = false });
    wantTimes(false);
    goOn();
    leave();
    wantTimes(true);
    EXPECT_EQ(solve(), 0U);
}

TEST_F(PuzzleTimerTest, WhoNoLongerWantsTimesGetsNoneForThePuzzleInPlayOrOneThatWasLeft)
{
    goOn();
    wait(10.0);
    click(0, 0);
    wait(20.0);
    game().flow().returnToMenu();
    wantTimes(false);
    goOn();
    wait(5.0);
    wantTimes(true);
    click(1, 2);
    ASSERT_NE(game().book().results().of("1-4"), nullptr);
    EXPECT_EQ(secondsOf("1-4"), 0U);
    wait(20.0);
    practise();
    wait(42.0);
    wantTimes(false);
    click(0, 1);
    EXPECT_EQ(secondsOf("1-3"), 0U);
}

} // namespace veyrand::controller
