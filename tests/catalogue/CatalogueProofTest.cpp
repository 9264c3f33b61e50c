#include "catalogue/Check.h"
#include "catalogue/Criteria.h"
#include "catalogue/HintSearch.h"
#include "support/Places.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <set>

// The puzzles that are played, and what becomes of them when one is spoiled.

namespace veyrand::catalogue {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

void inSilence(std::size_t /*done*/, std::size_t /*all*/) { }

Puzzles read(const std::string& name)
{
    std::ifstream file(test::sourceFolder() + "/assets/catalogues/" + name, std::ios::binary);
    return puzzlesIn(std::string(std::istreambuf_iterator<char>(file), {}));
}

const std::vector<Evidence>& classic()
{
    static const std::vector<Evidence> kEvidence
        = measureAll(Game::Classic, read("Theorems.txt"), inSilence);
    return kEvidence;
}

std::size_t entryAt(int level, int stage)
{
    return static_cast<std::size_t>(progress::catalogueIndex({ level, stage }));
}

// The faults of the Classic catalogue after one puzzle has been spoiled.
template <class Spoil> Faults faultsAfter(int level, int stage, const Spoil& spoil)
{
    std::vector<Evidence> evidence = classic();
    spoil(evidence.at(entryAt(level, stage)));
    return classicFaults(evidence);
}

// The faults of one puzzle standing at a place.
Faults faultsOf(const Puzzle& puzzle, int level, int stage)
{
    Puzzles puzzles(entryAt(level, stage), { "YR", "YRG", 1 });
    puzzles.push_back(puzzle);
    Faults all;
    (void)gatherEvidence(Game::Classic, puzzles, all, inSilence);
    const std::string name = nameOf(Game::Classic, puzzles.size() - 1, puzzle);
    Faults its;
    for (const std::string& fault : all) {
        if (fault.compare(0, name.size(), name) == 0) {
            its.push_back(fault);
        }
    }
    return its;
}

} // namespace

TEST(ClassicCatalogue, HoldsUpToEveryCheck)
{
    EXPECT_THAT(check(Game::Classic, read("Theorems.txt"), inSilence).faults, IsEmpty());
}

TEST(EndlessCatalogue, HoldsUpToEveryCheck)
{
    EXPECT_THAT(check(Game::Endless, read("EndlessTheorems.txt"), inSilence).faults, IsEmpty());
}

TEST(EndlessCatalogue, AsksForNoGoalTwiceNorForOneOfClassic)
{
    std::set<std::string> goals;
    for (const Evidence& evidence : classic()) {
        goals.insert(evidence.puzzle.goal);
    }
    const std::size_t ofClassic = goals.size();
    const Puzzles endless = read("EndlessTheorems.txt");
    for (const Puzzle& puzzle : endless) {
        goals.insert(puzzle.goal);
    }
    EXPECT_EQ(goals.size(), ofClassic + endless.size());
}

TEST(ClassicChecks, MissAPuzzleOfTheTutorial)
{
    EXPECT_THAT(faultsAfter(3, 1, [](Evidence& e) { e.puzzle.goal = "GRYG"; }),
        Contains(HasSubstr("not the one the tutorial's pages speak of")));
}

TEST(ClassicChecks, MissTheNewMove)
{
    std::vector<Evidence> evidence = classic();
    evidence.at(entryAt(3, 4)).metrics.needed = 0;
    EXPECT_THAT(classicFaults(evidence), IsEmpty()); // one in ten may do without
    evidence.at(entryAt(3, 5)).metrics.needed = 0;
    EXPECT_THAT(classicFaults(evidence), Contains(HasSubstr("level 3 can do without")));
}

TEST(ClassicChecks, SeeTheSameLateMovesAgainAndAgain)
{
    std::vector<Evidence> evidence = classic();
    for (int stage = 1; stage <= 10; ++stage) {
        evidence.at(entryAt(7, stage)).metrics.needed = only(4) | only(5);
    }
    const Faults faults = classicFaults(evidence);
    EXPECT_THAT(faults, Contains(HasSubstr("level 7 needs the same late moves")));
    EXPECT_THAT(faults, Contains(HasSubstr("level 7 hardly needs the move of index 6")));
}

TEST(ClassicChecks, SeeABlueChipTooEarly)
{
    EXPECT_THAT(faultsAfter(3, 4, [](Evidence& e) { e.puzzle.root = "YBGGRGG"; }),
        Contains(HasSubstr("has a blue chip too early")));
}

TEST(ClassicChecks, SeeASingleForcedLine)
{
    EXPECT_THAT(faultsAfter(2, 2, [](Evidence& e) { e.metrics.bits = 0; }),
        Contains(HasSubstr("is a single forced line")));
}

TEST(ClassicChecks, SeeALevelThatFallsTooOften)
{
    std::vector<Evidence> evidence = classic();
    evidence.at(entryAt(6, 4)).metrics.bits = 1;
    evidence.at(entryAt(6, 9)).metrics.bits = 1;
    EXPECT_THAT(classicFaults(evidence), Contains(HasSubstr("level 6 falls more often")));
}

TEST(ClassicChecks, SeeALevelThatIsNoHarder)
{
    std::vector<Evidence> evidence = classic();
    for (int stage = 1; stage <= 10; ++stage) {
        evidence.at(entryAt(8, stage)) = evidence.at(entryAt(7, stage));
    }
    EXPECT_THAT(classicFaults(evidence), Contains(HasSubstr("level 8 is no harder")));
}

TEST(ClassicChecks, SeeRootsAndGoalsAgain)
{
    std::vector<Evidence> evidence = classic();
    for (int level = 5; level <= 8; ++level) {
        evidence.at(entryAt(level, 3)).puzzle.root = "YBBBBBB";
    }
    evidence.at(entryAt(9, 3)).puzzle.goal = evidence.at(entryAt(8, 3)).puzzle.goal;
    const Faults faults = classicFaults(evidence);
    EXPECT_THAT(faults, Contains(HasSubstr("starts where three others do")));
    EXPECT_THAT(faults, Contains(HasSubstr("asks for the goal of another")));
}

TEST(ClassicChecks, WantALevelToEndWithItsHardestAndAPleasingPuzzle)
{
    EXPECT_THAT(
        faultsAfter(9, 10, [](Evidence& e) { e.metrics.bits = 5; }), Contains(HasSubstr("9-10")));
    EXPECT_THAT(faultsAfter(9, 10,
                    [](Evidence& e) {
                        e.puzzle = { "YRRGBGR", "RGBBRRYB", 10 };
                    }),
        Contains(HasSubstr("is not the puzzle to end a level with")));
}

TEST(ClassicChecks, CountTheEntries)
{
    std::vector<Evidence> evidence = classic();
    evidence.pop_back();
    EXPECT_THAT(classicFaults(evidence), Contains(HasSubstr("there are 110 entries, not 111")));
}

TEST(EndlessChecks, SeeWhatIsOutOfProportion)
{
    std::vector<Evidence> evidence;
    for (int i = 0; i < 100; ++i) {
        evidence.push_back({ { "YRRG", "YRG", 4 }, {}, {} });
    }
    const Faults faults = endlessFaults(evidence);
    EXPECT_THAT(faults, Contains(HasSubstr("there are 100 entries, fewer than 2168")));
    EXPECT_THAT(faults, Contains(HasSubstr("stands there twice")));
    EXPECT_THAT(faults, Contains("100 puzzles have par 4"));
    EXPECT_THAT(faults, Contains("0 puzzles have par 11"));
    EXPECT_THAT(faults, Contains("0 puzzles have a root of 7 chips"));
    EXPECT_THAT(faults, Contains("the root YRRG serves 100 puzzles"));
}

TEST(PuzzleChecks, SeeAWrongPar)
{
    EXPECT_THAT(faultsOf({ "YR", "YRRG", 3 }, 2, 2), Contains(HasSubstr("takes 2 moves, not 3")));
    EXPECT_THAT(parFaults(Game::Classic, { { "YR", "YRRG", 3 } }, inSilence),
        Contains(HasSubstr("is not exactly 3 moves away")));
    EXPECT_THAT(parFaults(Game::Classic, { { "YR", "YRRG", 1 } }, inSilence),
        Contains(HasSubstr("is not exactly 1 moves away")));
    EXPECT_THAT(faultsOf({ "YR", "YB", 3 }, 2, 2), Contains(HasSubstr("has no solution")));
}

TEST(PuzzleChecks, SeeAMoveThatIsNotOpen)
{
    EXPECT_THAT(faultsOf({ "YRG", "GRY", 1 }, 3, 1), IsEmpty());
    const Faults tooEarly = faultsOf({ "YRG", "GRY", 1 }, 2, 1);
    EXPECT_THAT(tooEarly, Contains(HasSubstr("a move not open")));
    EXPECT_THAT(tooEarly, Contains(HasSubstr("a step that no gesture makes")));
    EXPECT_THAT(tooEarly, Contains(HasSubstr("is not solved at par by its hints")));
}

// Eleven moves, as far as any: the game's search gives up before it has seen the goal.
TEST(PuzzleChecks, SeeHintsThatLoseTheirWay)
{
    Reach reach;
    HintSearch hints;
    reach.explore(packed("YGBGGR"), kMostMoves);
    const Reach::Span furthest = reach.atDistance(kMostMoves);
    std::size_t lost = furthest.first;
    const auto leads = [&](std::size_t line) {
        const auto ways = ShortestWays::find(reach, reach.line(line));
        return ways && hints.leadsAllTheWay(*ways);
    };
    while (lost < furthest.last && leads(lost)) {
        ++lost;
    }
    ASSERT_LT(lost, furthest.last);
    EXPECT_THAT(faultsOf({ "YGBGGR", reach.line(lost).text(), kMostMoves }, 11, 10),
        Contains(HasSubstr("that the hints leave")));
}

} // namespace veyrand::catalogue
