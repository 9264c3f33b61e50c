#include "catalogue/HintSearch.h"

#include "catalogue/HintPlayer.h"
#include "catalogue/Steps.h"
#include "engine/HintHelper.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/RuleSets.h"
#include "support/Places.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace veyrand::catalogue {

namespace {

Puzzles classicPuzzles()
{
    std::ifstream file(test::sourceFolder() + "/assets/catalogues/Theorems.txt", std::ios::binary);
    return puzzlesIn(std::string(std::istreambuf_iterator<char>(file), {}));
}

// What the game itself would hint at with these lines on the board; an empty text to go back.
std::string hintOfGame(const HintSearch::Lines& lines, const std::string& goal)
{
    static const auto kRules = std::make_shared<const engine::Rules>(progress::advancedRules());
    const auto proof = std::make_shared<engine::Proof>(
        engine::Theorem(lines[0].text()), engine::Theorem(goal), kRules);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        proof->appendLine(engine::Theorem(lines[i].text()));
    }
    const auto next = engine::HintHelper(proof).nextTheorem();
    return next ? next->theorem() : "";
}

std::string hintOfSearch(
    HintSearch& search, const HintSearch::Lines& lines, const std::string& goal)
{
    const auto next = search.nextLine(lines, packed(goal));
    return next ? next->text() : "";
}

} // namespace

// On the way and off it: the lines of a game with a detour, one after the other.
TEST(HintSearch, AnswersWhatTheGameAnswers)
{
    HintSearch search;
    std::size_t backwards = 0;
    const Puzzles puzzles = classicPuzzles();
    for (std::size_t entry = 1; entry < puzzles.size(); ++entry) {
        const Puzzle& puzzle = puzzles[entry];
        platform::SeededRandom random(static_cast<std::uint32_t>(entry));
        HintSearch::Lines lines { packed(puzzle.root) };
        while (lines.size() < 4 && lines.back() != packed(puzzle.goal)) {
            const std::string hint = hintOfGame(lines, puzzle.goal);
            EXPECT_EQ(hintOfSearch(search, lines, puzzle.goal), hint) << puzzle.goal;
            backwards += hint.empty() ? 1 : 0;
            const std::vector<Step> steps = stepsFrom(lines.back(), kAllMoves);
            if (steps.empty()) {
                break;
            }
            lines.push_back(steps[random.next() % steps.size()].line);
        }
    }
    EXPECT_GT(backwards, 5U); // or nothing was tried
}

TEST(HintSearch, LeavesNoWayThatDoesNotFitOnTheBoard)
{
    HintSearch search;
    const HintSearch::Lines full(12, packed("YR"));
    EXPECT_TRUE(search.solution(full, packed("YRG")));
    EXPECT_FALSE(search.solution(full, packed("YRRG")));
}

TEST(HintPlayer, SolvesAtParWhatTheHintsKnow)
{
    HintSearch hints;
    const HintPlayer::Game game = HintPlayer(hints, 3).play({ "YR", "YRGG", 4 });
    EXPECT_TRUE(game.solved);
    EXPECT_EQ(game.lines.size(), 5U);
    EXPECT_FALSE(HintPlayer(hints, 2).play({ "YR", "YRGG", 4 }).solved); // three reds are not open
}

TEST(HintPlayer, ComesBackFromEveryDetour)
{
    HintSearch hints;
    HintPlayer player(hints, 3);
    unsigned strayed = 0;
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        platform::SeededRandom random(seed);
        const HintPlayer::Game game = player.playWithDetour({ "YR", "YRGG", 4 }, random);
        EXPECT_TRUE(game.solved);
        strayed += game.strayed ? 1 : 0;
    }
    EXPECT_EQ(strayed, 20U);
    // Where doubling is all there is, there is no way to stray.
    platform::SeededRandom random(1);
    EXPECT_FALSE(HintPlayer(hints, 1).playWithDetour({ "YG", "YGGGG", 2 }, random).strayed);
}

} // namespace veyrand::catalogue
