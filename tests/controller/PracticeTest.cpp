#include "controller/ReplaySheet.h"
#include "headless/HeadlessGame.h"
#include "platform/fakes/MemoryJournal.h"
#include "progress/PlayerKeys.h"
#include "progress/PlayerRecord.h"
#include "support/FolderResources.h"
#include "support/Places.h"

#include <gtest/gtest.h>
#include <memory>

namespace veyrand::controller {
namespace {

// A player at 3-4 with an unfinished puzzle in both modes.
class PracticeTest : public ::testing::Test {
protected:
    PracticeTest()
    {
        progress::updatePlayerRecord(m_preferences, progress::kDefaultPlayerName,
            { .level = 3,
                .stage = 4,
                .score = 310,
                .firstHintClick = false,
                .endlessScore = 120,
                .endlessPar = 4 });
        m_preferences.setValue(progress::kEndlessGameUnlockedKey, true);
        launch();
        game().flow().startClassicGame();
        game().flow().returnToMenu();
        m_game->currentGame().newPlayer(
            std::string(progress::kDefaultPlayerName), progress::CurrentGame::Mode::Endless);
        game().flow().startEndlessGame();
        game().flow().returnToMenu();
        m_game->wait(3.0);
    }

    void launch()
    {
        m_game.reset();
        m_game = std::make_unique<headless::HeadlessGame>(headless::HeadlessGame::Options {
            .store = &m_preferences, .resources = &test::gameResources(), .journal = &m_journal });
        m_game->launch();
    }
    [[nodiscard]] GameController& game() { return m_game->controller(); }

    // Everything that is Classic's and Endless's, to the byte.
    [[nodiscard]] std::string kept() const
    {
        std::string all;
        for (const auto& [name, text] : m_journal.texts()) {
            const bool isBeside = name.find("results") != std::string::npos
                || name.find("puzzles") != std::string::npos;
            all += isBeside ? "" : name + '\n' + text;
        }
        const auto record
            = m_preferences.record(progress::playerRecordKey(progress::kDefaultPlayerName));
        for (const auto& [key, value] : record.value()) {
            all += key + '=' + std::to_string(platform::integerForKey(*record, key)) + '\n';
        }
        return all;
    }

    // Whatever can be played.
    void playSomething()
    {
        const play::Gesture gesture = game().actions().front();
        if (const auto* const click = std::get_if<play::Click>(&gesture)) {
            game().moves().mouseClick(click->row, click->column);
        } else if (const auto* const drag = std::get_if<play::Drag>(&gesture)) {
            game().moves().mouseDrag(drag->fromRow, drag->from, drag->toRow, drag->to);
        }
    }

    void solveByHints()
    {
        for (int click = 0; click < 60 && game().proof() && !game().proof()->checkSolved();
             ++click) {
            game().hints().lightBulbClick();
            m_game->wait(3.0);
        }
    }

    platform::MemoryPreferences m_preferences;
    platform::MemoryJournal m_journal;
    std::unique_ptr<headless::HeadlessGame> m_game;
};

} // namespace

TEST_F(PracticeTest, LeavesBothGamesAsTheyAreToTheByte)
{
    const std::string before = kept();
    ASSERT_NE(before.find("New-classic.txt"), std::string::npos);
    ASSERT_NE(before.find("New-endless.txt"), std::string::npos);
    ASSERT_TRUE(game().practice().play({ 2, 5 }));
    m_game->wait(2.0);
    solveByHints();
    m_game->wait(8.0);
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(game().practice().openDaily({ 2026, 11, 16 }), "");
    m_game->wait(2.0);
    game().closePage();
    m_game->wait(1.0);
    solveByHints();
    m_game->wait(8.0);
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(game().practice().open("3373NECJ"), "");
    m_game->wait(2.0);
    game().moves().mouseClick(0, 0);
    m_game->wait(2.0);
    game().history().undo();
    m_game->wait(2.0);
    game().flow().returnToMenu();
    EXPECT_EQ(kept(), before);
    launch();
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(game().book().results().all().size(), 2U);
    EXPECT_EQ(m_game->currentGame().practice().has_value(), false);
}

TEST_F(PracticeTest, LeavesBothGamesAsTheyAreOnEveryPageBesideThem)
{
    const std::string before = kept();
    const auto key = [this](const char* keys) {
        m_game->key(keys);
        m_game->wait(1.0);
    };
    game().sheets().openEditor();
    for (const char* const keys : { "R", "G", "Down", "Y", "R", "R", "G" }) {
        key(keys);
    }
    game().sheets().choose("make");
    m_game->wait(1.0);
    game().sheets().choose("save");
    game().sheets().choose("play");
    m_game->wait(3.0);
    EXPECT_TRUE(game().practice().isOn());
    game().closePage();
    m_game->wait(1.0);
    solveByHints();
    m_game->wait(8.0);
    game().sheets().openMine();
    game().sheets().choose("play");
    m_game->wait(3.0);
    game().flow().returnToMenu();
    game().sheets().openDaily();
    key("PgUp");
    key("Ctrl+C");
    game().sheets().choose("play");
    m_game->wait(3.0);
    game().flow().returnToMenu();
    game().sheets().openStatistics();
    key("Esc");
    EXPECT_EQ(kept(), before);
    launch();
    EXPECT_EQ(kept(), before);
    EXPECT_EQ(game().shelf().puzzles().all().size(), 1U);
}

TEST_F(PracticeTest, LeavesThemSoWhenTheBoardIsAskedAndASolutionLookedAt)
{
    const std::string before = kept();
    ASSERT_TRUE(game().practice().play({ 2, 5 }));
    m_game->wait(2.0);
    ASSERT_TRUE(game().guide().ask());
    playSomething();
    m_game->wait(3.0);
    EXPECT_TRUE(game().guide().advice());
    solveByHints();
    m_game->wait(8.0);
    game().sheets().openReplay("2-5");
    ASSERT_EQ(game().sheets().name(), "replay");
    for (const char* const key : { "Right", "End", "Home", "PgDown", "PgUp", "Return" }) {
        game().sheets().key(key);
    }
    m_game->wait(12.0);
    game().sheets().close();
    EXPECT_EQ(kept(), before);
    launch();
    EXPECT_EQ(kept(), before);
}

TEST_F(PracticeTest, TellsNoShortestWayOfThePuzzleThatClassicAsks)
{
    const auto* const next = game().practice().entryAt({ 3, 4 });
    const auto* const other = game().practice().entryAt({ 3, 5 });
    play::Results results;
    for (const auto* const entry : { next, other }) {
        results.add(play::codeOf(entry->root, entry->goal).value(),
            { .puzzle = { entry->root, entry->goal }, .par = 3, .moves = {} });
    }
    game().book().join(results);
    EXPECT_FALSE(replaySubject(game(), play::codeOf(next->root, next->goal).value())->mayTell);
    EXPECT_TRUE(replaySubject(game(), play::codeOf(other->root, other->goal).value())->mayTell);
    EXPECT_FALSE(replaySubject(game(), "3-4")); // not solved
    EXPECT_FALSE(replaySubject(game(), "9-9")); // not reached
    EXPECT_TRUE(replaySubject(game(), "3-3"));
    // What does not end with the goal is no solution to be shown.
    EXPECT_TRUE(
        replaySubject(game(), play::codeOf(other->root, other->goal).value())->yours.empty());
}

TEST_F(PracticeTest, ShowsTheSolutionPlayedLastAndKeepsTheBest)
{
    const auto* const entry = game().practice().entryAt({ 1, 3 }); // YR to YRG
    for (const std::size_t doublings : { 0U, 2U }) {
        ASSERT_TRUE(game().practice().play({ 1, 3 }));
        m_game->wait(2.0);
        m_game->currentGame().placePuzzle({ .root = entry->root,
            .goal = entry->goal,
            .par = entry->par,
            .level = 1,
            .stage = 3,
            .practice
            = progress::CurrentGame::Practice { .open = 7, .caption = "1-3", .purse = 1000 } });
        game().flow().layOutPuzzle();
        for (unsigned row = 0; row < doublings; ++row) {
            game().moves().mouseClick(row, 0);
            m_game->wait(3.0);
        }
        if (doublings == 0) {
            game().moves().mouseClick(0, 1);
        } else {
            game().moves().mouseDrag(2, 2, 2, 4); // three reds of YRRRR
        }
        m_game->wait(8.0);
    }
    EXPECT_EQ(game().book().toReplay("1-3")->moves.size(), 3U);
    EXPECT_EQ(game().book().results().of("1-3")->moves.size(), 1U);
    EXPECT_EQ(game().book().toReplay("1-5"), nullptr);
}

TEST_F(PracticeTest, LeavesAPuzzleInPlayWhereItIsFoundAgain)
{
    game().flow().startClassicGame();
    m_game->wait(2.0);
    game().closePage();
    m_game->wait(1.0);
    playSomething();
    m_game->wait(3.0);
    const auto lines = game().proof()->lines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(game().practice().open("3373NECJ"), "");
    EXPECT_EQ(game().proof()->lines(), lines); // it is asked first
    m_game->alerts().answer({ .button = platform::AlertAnswer::Button::Default });
    EXPECT_EQ(game().proof()->goal().theorem(), "YRRG");
    game().flow().returnToMenu();
    game().flow().startClassicGame();
    EXPECT_EQ(game().proof()->lines(), lines);
}

TEST_F(PracticeTest, KeepsTheBetterOfTwoResults)
{
    for (const bool detour : { true, false, true }) {
        ASSERT_TRUE(game().practice().play({ 1, 3 })); // YR to YRG
        m_game->wait(2.0);
        if (detour) {
            game().moves().mouseClick(0, 0);
            m_game->wait(2.0);
            game().deleteClick(1);
            m_game->wait(2.0);
            game().hints().lightBulbClick();
            m_game->wait(2.0);
        }
        game().moves().mouseClick(0, 1);
        m_game->wait(8.0);
    }
    const play::Result* const result = game().book().results().of("1-3");
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->moves.size(), 1U);
    EXPECT_EQ(result->hints, 0U);
    EXPECT_EQ(result->solvedOn, (progress::CalendarDate { 2026, 11, 21 }));
}

TEST_F(PracticeTest, KeepsWhatIsSolvedInClassicToo)
{
    progress::updatePlayerRecord(
        m_preferences, progress::kDefaultPlayerName, { .level = 1, .stage = 4 });
    launch();
    game().flow().startClassicGame();
    m_game->wait(2.0);
    game().closePage();
    m_game->wait(1.0);
    ASSERT_EQ(game().proof()->goal().theorem(), "YRRG"); // from YR
    game().moves().mouseClick(0, 0);
    m_game->wait(3.0);
    game().moves().mouseClick(1, 2);
    const play::Result* const result = game().book().results().of("1-4");
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->puzzle.goal, "YRRG");
    EXPECT_EQ(result->moves.size(), 2U);
    EXPECT_EQ(result->hints, 0U);
}

TEST_F(PracticeTest, GivesNoHintsForThePuzzleThatClassicAsks)
{
    game().flow().startClassicGame();
    const auto code
        = play::codeOf(game().proof()->root().theorem(), game().proof()->goal().theorem());
    game().flow().returnToMenu();
    EXPECT_EQ(game().practice().open(code.value()), "");
    m_game->wait(2.0);
    game().closePage();
    m_game->wait(1.0);
    EXPECT_FALSE(game().practice().givesHints());
    game().hints().lightBulbClick();
    EXPECT_EQ(game().messages().page(), "hintsInClassicMessageWindow");
    EXPECT_EQ(game().hints().hintMode(), 0);
}

TEST_F(PracticeTest, SaysWhichResultsAreDamaged)
{
    ASSERT_TRUE(game().practice().play({ 1, 3 }));
    m_game->wait(2.0);
    game().moves().mouseClick(0, 1);
    m_game->wait(8.0);
    std::string text = m_journal.read("New-results.txt").contents.value();
    text[text.find("1-3") + 2] = '4';
    m_journal.write("New-results.txt", text);
    launch();
    std::vector<std::string> told;
    game().kept().setReporter([&told](const std::string& message) { told.push_back(message); });
    EXPECT_EQ(told,
        (std::vector<std::string> {
            "The results in New-results.txt cannot be read in full: 1 damaged. The file is kept as "
            "New-results.txt.damaged-1." }));
    EXPECT_TRUE(game().book().results().all().empty());
}

TEST_F(PracticeTest, SaysWhyACodeIsNoPuzzleOfThisGame)
{
    const language::Texts& texts = m_game->game().texts();
    EXPECT_EQ(game().practice().open("X3333T7"), texts.text("practice.codeNewer"));
    const std::string twoYellows = play::codeOf("YRY", "Y").value();
    EXPECT_EQ(game().practice().open(twoYellows), texts.text("practice.badStart"));
    EXPECT_EQ(game().practice().whyNot(twoYellows), texts.text("practice.badStart"));
    EXPECT_EQ(game().practice().whyNot("X3333T7"), texts.text("practice.codeNewer"));
    EXPECT_FALSE(game().proof());
}

TEST_F(PracticeTest, OnePuzzleFollowsAnotherWithoutAQuestion)
{
    ASSERT_TRUE(game().practice().play({ 2, 5 }));
    game().practice().choose({ 2, 4 });
    EXPECT_FALSE(m_game->alerts().isOpen());
    EXPECT_EQ(game().practice().nameInPlay(), "2-4");
    game().practice().choose({ 9, 9 });
    EXPECT_EQ(game().practice().nameInPlay(), "2-4") << "which has not been reached";
}

} // namespace veyrand::controller
