#include "progress/CurrentGame.h"

#include "platform/MemoryPreferences.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/PlayerKeys.h"
#include "progress/RuleSets.h"
#include "support/MemoryResources.h"

#include <deque>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace veyrand::progress {

namespace {

using Mode = CurrentGame::Mode;
using platform::PreferenceRecord;

// Draws what it was told to; to ask for more is an error.
class ScriptedRandom final : public platform::Random {
public:
    std::uint32_t next() override
    {
        const std::uint32_t number = numbers.at(0);
        numbers.pop_front();
        return number;
    }
    std::deque<std::uint32_t> numbers;
};

// The goal of each puzzle tells its index: as many greens as its tens, as many reds as its ones.
std::string goalOf(std::size_t index)
{
    return "Y" + std::string(index / 10, 'G') + std::string(index % 10, 'R');
}

std::string classicText()
{
    std::string text;
    for (std::size_t i = 0; i < kClassicEntries; ++i) {
        text += (i == 0 ? "" : "\n") + std::string("YR\n") + goalOf(i) + '\n'
            + std::to_string(i % 11 + 1);
    }
    return text;
}

// Each par in turn from 2 (index 0) to 12 (index 10), and again.
std::string endlessText()
{
    std::string text;
    for (std::size_t i = 0; i < kEndlessEntries; ++i) {
        text += (i == 0 ? "" : "\n") + std::string("YRR\n") + goalOf(i % 100) + '\n'
            + std::to_string(i % 11 + 1);
    }
    return text;
}

class BothCatalogues final : public test::MemoryResources {
public:
    BothCatalogues()
    {
        add("Theorems", "txt", catalogueBytes(classicText()));
        add("EndlessTheorems", "txt", catalogueBytes(endlessText()));
    }
};

class CurrentGameTest : public testing::Test {
protected:
    void store(const std::string& name, std::int64_t level, std::int64_t stage)
    {
        preferences.setRecord(playerRecordKey(name),
            PreferenceRecord { { std::string(kLevelKey), level }, { std::string(kStageKey), stage },
                { std::string(kScoreKey), kScore },
                { std::string(kEndlessScoreKey), kEndlessScore },
                { std::string(kEndlessParKey), std::int64_t { 7 } } });
    }

    void playFrom(std::int64_t level, std::int64_t stage)
    {
        store("Ada", level, stage);
        game.newPlayer("Ada");
    }

    // Where the player stands, as the counter shows it, and the goal of the puzzle in play.
    [[nodiscard]] std::string place() const
    {
        return std::to_string(game.level()) + '-' + std::to_string(game.stage()) + ' '
            + game.proof()->goal().theorem();
    }

    static constexpr std::int64_t kScore = 5'000'000'000;
    static constexpr std::int64_t kEndlessScore = -70;

    platform::MemoryPreferences preferences;
    ScriptedRandom random;
    BothCatalogues resources;
    CurrentGame game { preferences, random, resources };
};

} // namespace

TEST_F(CurrentGameTest, StartsEmpty)
{
    EXPECT_EQ(game.proof(), nullptr);
    EXPECT_EQ(game.playerName(), "");
    EXPECT_EQ(game.score(), 0);
    EXPECT_EQ(game.endlessScore(), 0);
    EXPECT_EQ(game.level(), 0);
    EXPECT_EQ(game.stage(), 0);
    EXPECT_EQ(game.par(), 0);
    EXPECT_EQ(game.endlessPar(), 0);
    EXPECT_FALSE(game.endlessGame());
    EXPECT_FALSE(game.ruleActive(0));
    EXPECT_EQ(game.catalogueErrors(), "");
}

TEST_F(CurrentGameTest, ReadsThePlayersRecord)
{
    playFrom(3, 4);
    EXPECT_EQ(game.playerName(), "Ada");
    EXPECT_EQ(game.score(), kScore);
    EXPECT_EQ(game.endlessScore(), kEndlessScore);
    EXPECT_EQ(game.endlessPar(), 7);
    EXPECT_EQ(place(), "3-4 " + goalOf(24));
    EXPECT_EQ(game.proof()->root().theorem(), "YR");
    EXPECT_EQ(game.par(), 24 % 11 + 2);
}

TEST_F(CurrentGameTest, ReadsTheRegisteredDefaultsOfTheDefaultPlayer)
{
    preferences.registerDefaults(registeredDefaults());
    game.newPlayer(std::string(kDefaultPlayerName));
    EXPECT_EQ(place(), "1-1 " + goalOf(1));
    EXPECT_EQ(game.score(), 0);
}

TEST_F(CurrentGameTest, HasNoClassicPuzzleForAPlayerWithoutARecord)
{
    playFrom(3, 4);
    EXPECT_THROW(game.newPlayer("Nobody"), std::out_of_range);
    EXPECT_EQ(game.playerName(), "Nobody");
    EXPECT_EQ(game.score(), 0);
    EXPECT_EQ(game.level(), 0);
}

// 2^32 + 1 must not be taken for 1.
TEST_F(CurrentGameTest, NumbersThatAreTooLargeStayAbsurd)
{
    const std::int64_t large = (std::int64_t { 1 } << 32) + 1;
    EXPECT_THROW(playFrom(large, 1), std::out_of_range);
    EXPECT_THROW(playFrom(1, large), std::out_of_range);
    EXPECT_THROW(playFrom(-large, -large), std::out_of_range);
    EXPECT_LT(game.level(), 0);
}

TEST_F(CurrentGameTest, HasNoClassicPuzzleBeyondTheCatalogue)
{
    EXPECT_THROW(playFrom(12, 1), std::out_of_range);
}

TEST_F(CurrentGameTest, LoadingAPlayerLeavesThePuzzleInPlay)
{
    playFrom(1, 1);
    const auto proof = game.proof();
    store("Bea", 5, 6);
    game.loadPlayer("Bea", Mode::Endless);
    EXPECT_EQ(game.proof(), proof);
    EXPECT_EQ(game.playerName(), "Bea");
    EXPECT_EQ(game.level(), 5);
    EXPECT_TRUE(game.endlessGame());
}

TEST_F(CurrentGameTest, TheFirstAndTheLastPuzzleAreEntries1And110)
{
    playFrom(1, 1);
    EXPECT_EQ(place(), "1-1 " + goalOf(1));
    playFrom(11, 10);
    EXPECT_EQ(place(), "11-10 " + goalOf(110));
}

TEST_F(CurrentGameTest, AdvancesWithinALevel)
{
    playFrom(2, 3);
    game.nextLevel();
    EXPECT_EQ(place(), "2-4 " + goalOf(14));
}

TEST_F(CurrentGameTest, AdvancesToTheNextLevelAfterItsTenth)
{
    playFrom(1, 10);
    game.nextLevel();
    EXPECT_EQ(place(), "2-1 " + goalOf(11));
}

TEST_F(CurrentGameTest, PlaysTheLastPuzzleAgain)
{
    playFrom(11, 10);
    const auto proof = game.proof();
    game.nextLevel();
    EXPECT_EQ(place(), "11-10 " + goalOf(110));
    EXPECT_NE(game.proof(), proof) << "each puzzle is a new object";
}

TEST_F(CurrentGameTest, EveryPuzzleHasAllSevenMoves)
{
    playFrom(1, 1);
    EXPECT_EQ(game.proof()->rules(), advancedRules());
    EXPECT_TRUE(game.ruleActive(0));
    EXPECT_TRUE(game.ruleActive(6));
    EXPECT_FALSE(game.ruleActive(7));
}

TEST_F(CurrentGameTest, OpensTheMovesOfThePlace)
{
    playFrom(1, 8);
    EXPECT_EQ(game.highestRule(), 3);
}

TEST_F(CurrentGameTest, OpensEveryMoveInAnEndlessGameWhereverTheClassicOneStands)
{
    store("Ada", 1, 1);
    random.numbers = { 5 };
    game.newPlayer("Ada", Mode::Endless);
    EXPECT_EQ(game.highestRule(), 7);
}

TEST_F(CurrentGameTest, DrawsUntilAnEndlessPuzzleHasThePar)
{
    store("Ada", 2, 2);
    random.numbers = { 3, 10, 4, kEndlessEntries + 16, 1 };
    game.newPlayer("Ada", Mode::Endless);
    EXPECT_TRUE(game.endlessGame());
    EXPECT_EQ(game.par(), 7);
    EXPECT_EQ(game.proof()->root().theorem(), "YRR");
    EXPECT_EQ(game.proof()->goal().theorem(), goalOf(16)) << "the number wraps at 2168";
    EXPECT_EQ(random.numbers.size(), 1U);
}

TEST_F(CurrentGameTest, BringsTheWantedParIntoTheCatalogues)
{
    struct Case {
        int wanted;
        int given;
    };
    for (const Case& par : { Case { 0, 5 }, Case { 1, 2 }, Case { -3, 2 }, Case { 2, 2 },
             Case { 6, 6 }, Case { 12, 12 }, Case { 13, 12 }, Case { 20, 12 } }) {
        random.numbers = { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 };
        game.generateEndlessProofForPar(par.wanted);
        EXPECT_EQ(game.par(), par.given) << "wanted " << par.wanted;
    }
}

TEST_F(CurrentGameTest, FindsEveryParWithNumbersLikeThePlayers)
{
    platform::SeededRandom seeded(7);
    CurrentGame seededGame(preferences, seeded, resources);
    for (int par = kSmallestPar; par <= kGreatestPar; ++par) {
        seededGame.generateEndlessProofForPar(par);
        EXPECT_EQ(seededGame.par(), par);
    }
}

TEST_F(CurrentGameTest, AddsToTheScoreOfTheModeInProgress)
{
    playFrom(1, 1);
    game.addToScore(150);
    EXPECT_EQ(game.score(), kScore + 150);
    EXPECT_EQ(game.endlessScore(), kEndlessScore);

    game.loadPlayer("Ada", Mode::Endless);
    game.addToScore(-50);
    EXPECT_EQ(game.score(), kScore);
    EXPECT_EQ(game.endlessScore(), kEndlessScore - 50);
}

TEST_F(CurrentGameTest, NeverWritesTheRecord)
{
    playFrom(1, 9);
    const auto before = preferences.record(playerRecordKey("Ada"));
    game.addToScore(10);
    game.nextLevel();
    game.setEndlessPar(9);
    game.setEndlessScore(1);
    EXPECT_EQ(game.endlessPar(), 9);
    EXPECT_EQ(game.endlessScore(), 1);
    EXPECT_EQ(preferences.record(playerRecordKey("Ada")), before);
}

TEST_F(CurrentGameTest, PlaysAPuzzleOfNoCatalogue)
{
    playFrom(1, 1);
    game.placePuzzle({ "YGG", "Y", 2, 4, 3, Mode::Classic });
    EXPECT_EQ(place(), "4-3 Y");
    EXPECT_EQ(game.par(), 2);
    EXPECT_EQ(game.highestRule(), 6);
    EXPECT_EQ(game.proof()->root().theorem(), "YGG");
    game.placePuzzle({ "YGG", "Y", 2, 4, 3, Mode::Endless });
    EXPECT_TRUE(game.endlessGame());
}

TEST(CurrentGameWithoutCatalogues, SaysSoAndFailsOnlyWhenPlayed)
{
    const platform::MemoryPreferences preferences;
    platform::SeededRandom random(1);
    test::MemoryResources resources;
    resources.add("EndlessTheorems", "txt", "YR\nYRG\n1");
    CurrentGame game(preferences, random, resources);
    EXPECT_THAT(game.catalogueErrors(), testing::HasSubstr("Theorems.txt: cannot be read\n"));
    EXPECT_THAT(game.catalogueErrors(), testing::HasSubstr("EndlessTheorems.txt: "));
    EXPECT_THROW(game.newPlayer("Ada"), std::out_of_range);
    EXPECT_THROW(game.generateEndlessProofForPar(5), std::out_of_range);
}

// A short catalogue would end the game at its end, and a lopsided one draw for ever.
TEST(CurrentGameWithTooLittle, SaysSoAndPlaysNothingOfIt)
{
    const platform::MemoryPreferences preferences;
    platform::SeededRandom random(1);
    test::MemoryResources resources;
    std::string onePar = "YR\nYRG\n1";
    for (std::size_t i = 1; i < kEndlessEntries; ++i) {
        onePar += "\nYR\nYRG\n1";
    }
    resources.add("Theorems", "txt", catalogueBytes("YR\nYRG\n1\nYR\nYRG\n1"));
    resources.add("EndlessTheorems", "txt", catalogueBytes(onePar));
    CurrentGame game(preferences, random, resources);
    EXPECT_THAT(game.catalogueErrors(),
        testing::HasSubstr("Theorems.txt: line 6: ends after 2 puzzles; the game needs 111\n"));
    EXPECT_THAT(game.catalogueErrors(),
        testing::HasSubstr("EndlessTheorems.txt: line 6504: no puzzle of 2 moves among the first"));
    EXPECT_THROW(game.generateEndlessProofForPar(5), std::out_of_range);
}

TEST(CurrentGameSample, IsTheSameForEveryPlace)
{
    EXPECT_EQ(CurrentGame::proofForStage(1, 1).root, "YR");
    EXPECT_EQ(CurrentGame::proofForStage(1, 1).goal, "Y");
    EXPECT_EQ(CurrentGame::proofForStage(7, 4), CurrentGame::proofForStage(1, 1));
}

TEST(CurrentGameShared, IsMadeOnceFromTheFirstCallsArguments)
{
    // Static, as the shared game keeps them to the end of the process.
    static const platform::MemoryPreferences kPreferences;
    static platform::SeededRandom random(1);
    static const BothCatalogues kResources;
    CurrentGame& game = CurrentGame::sharedInstance(kPreferences, random, kResources);
    const test::MemoryResources none;
    EXPECT_EQ(&CurrentGame::sharedInstance(kPreferences, random, none), &game);
    EXPECT_EQ(game.catalogueErrors(), "");
}

} // namespace veyrand::progress
