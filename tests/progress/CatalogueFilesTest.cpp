#include "engine/Analysis.h"
#include "progress/Catalogue.h"
#include "progress/RuleSets.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>

// The puzzles that are played: that each can be solved, in as many moves as its par says.

namespace veyrand::progress {

namespace {

constexpr std::size_t kPuzzlesPerLevel = 10;

Catalogue read(const std::string& name)
{
    std::ifstream file(VEYRAND_CATALOGUES "/" + name, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    const ParsedCatalogue parsed = parseCatalogueText(text);
    EXPECT_EQ(parsed.error, "") << name;
    return parsed.entries;
}

int levelOf(std::size_t entry)
{
    return static_cast<int>((entry - 1) / kPuzzlesPerLevel) + 1;
}

int stageOf(std::size_t entry)
{
    return static_cast<int>((entry - 1) % kPuzzlesPerLevel) + 1;
}

// The moves open at a place: doubling comes before the move of index 0.
engine::Rules openRules(int highestRule)
{
    const engine::Rules all = advancedRules();
    if (highestRule == 1) {
        return { all[kDoubling] };
    }
    return { all.begin(), all.begin() + highestRule };
}

// Lines of the solution the game's search finds; 0 for none.
int linesOfSolution(const CatalogueEntry& puzzle, engine::Rules rules)
{
    const engine::Analysis analysis(
        nullptr, std::make_shared<const engine::Rules>(std::move(rules)));
    const auto path = analysis.findSolutionPathFromTheorem(
        engine::Theorem(puzzle.root), engine::Theorem(puzzle.goal));
    return path ? static_cast<int>(path->size()) : 0;
}

std::string nameOf(const CatalogueEntry& puzzle)
{
    return puzzle.root + " to " + puzzle.goal;
}

std::size_t differentGoals(Catalogue::const_iterator begin, Catalogue::const_iterator end)
{
    std::set<std::string> goals;
    for (; begin != end; ++begin) {
        goals.insert(begin->goal);
    }
    return goals.size();
}

} // namespace

TEST(ClassicCatalogue, HoldsThePuzzlesTheTutorialSpeaksOf)
{
    const Catalogue puzzles = read("Theorems.txt");
    ASSERT_EQ(puzzles.size(), kClassicEntries);
    const Catalogue firstLevel { { "YR", "YRG", 2 }, { "YGR", "YGRGR", 2 }, { "YG", "YGGGG", 3 },
        { "YR", "YRG", 2 }, { "YR", "YRRG", 3 }, { "YR", "YRGRG", 3 }, { "YR", "YRRGRRG", 4 },
        { "YGR", "YGRGRGRGRG", 4 }, { "YRRR", "YG", 2 }, { "YRRRRRR", "YGG", 3 },
        { "YR", "YRGG", 5 } };
    EXPECT_EQ(Catalogue(puzzles.begin(), puzzles.begin() + 11), firstLevel);
    EXPECT_EQ(puzzles[11], (CatalogueEntry { "YRGGR", "YRR", 2 }));
    EXPECT_EQ(puzzles[21], (CatalogueEntry { "YRG", "GRY", 2 }));
    EXPECT_EQ(puzzles[31], (CatalogueEntry { "YRGG", "YRGBG", 2 }));
    EXPECT_EQ(puzzles[41], (CatalogueEntry { "YBRGB", "YBB", 2 }));
}

TEST(ClassicCatalogue, StatesTheParTheSearchFinds)
{
    for (const CatalogueEntry& puzzle : read("Theorems.txt")) {
        EXPECT_EQ(linesOfSolution(puzzle, advancedRules()), puzzle.par) << nameOf(puzzle);
    }
}

TEST(ClassicCatalogue, IsSolvedAtParWithTheMovesThatAreOpen)
{
    const Catalogue puzzles = read("Theorems.txt");
    for (std::size_t i = 1; i < puzzles.size(); ++i) {
        const engine::Rules open = openRules(highestRuleAt(levelOf(i), stageOf(i)));
        EXPECT_EQ(linesOfSolution(puzzles[i], open), puzzles[i].par) << nameOf(puzzles[i]);
    }
}

TEST(ClassicCatalogue, NeedsTheNewMoveInTheLevelThatBringsIt)
{
    const Catalogue puzzles = read("Theorems.txt");
    for (std::size_t i = kPuzzlesPerLevel + 1; levelOf(i) <= 5; ++i) {
        engine::Rules others = openRules(highestRuleAt(levelOf(i), stageOf(i)));
        others.pop_back();
        EXPECT_NE(linesOfSolution(puzzles[i], others), puzzles[i].par) << nameOf(puzzles[i]);
    }
}

TEST(ClassicCatalogue, HasNoBlueBeforeLevelFour)
{
    const Catalogue puzzles = read("Theorems.txt");
    for (std::size_t i = 0; i <= 3 * kPuzzlesPerLevel; ++i) {
        EXPECT_EQ((puzzles[i].root + puzzles[i].goal).find('B'), std::string::npos)
            << nameOf(puzzles[i]);
    }
}

TEST(ClassicCatalogue, GrowsHarderFromPuzzleToPuzzleAndFromLevelToLevel)
{
    const Catalogue puzzles = read("Theorems.txt");
    int sumBefore = 0;
    for (int level = 2; level <= 11; ++level) {
        int sum = 0;
        for (std::size_t i = 1; i <= kPuzzlesPerLevel; ++i) {
            const std::size_t entry = static_cast<std::size_t>(level - 1) * kPuzzlesPerLevel + i;
            sum += puzzles[entry].par;
            EXPECT_TRUE(i == 1 || puzzles[entry].par >= puzzles[entry - 1].par)
                << nameOf(puzzles[entry]);
        }
        EXPECT_GE(sum, sumBefore) << "level " << level;
        sumBefore = sum;
    }
}

TEST(ClassicCatalogue, AsksForNoGoalTwice)
{
    const Catalogue puzzles = read("Theorems.txt");
    EXPECT_EQ(differentGoals(puzzles.begin() + 1, puzzles.end()), puzzles.size() - 1);
}

TEST(EndlessCatalogue, PassesTheGateAndAsksForNoGoalTwice)
{
    const Catalogue puzzles = read("EndlessTheorems.txt");
    EXPECT_EQ(catalogueFault(puzzles, CatalogueKind::Endless), std::nullopt);
    EXPECT_EQ(differentGoals(puzzles.begin(), puzzles.end()), puzzles.size());
}

TEST(EndlessCatalogue, StatesTheParTheSearchFinds)
{
    for (const CatalogueEntry& puzzle : read("EndlessTheorems.txt")) {
        EXPECT_EQ(linesOfSolution(puzzle, advancedRules()), puzzle.par) << nameOf(puzzle);
    }
}

} // namespace veyrand::progress
