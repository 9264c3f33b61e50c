#include "catalogue/Check.h"
#include "catalogue/Criteria.h"
#include "catalogue/Figures.h"
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
using ::testing::Not;

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

// The faults after every puzzle from one level to another has been spoiled.
template <class Spoil> Faults faultsAfterAll(int first, int last, const Spoil& spoil)
{
    std::vector<Evidence> evidence = classic();
    for (int level = first; level <= last; ++level) {
        for (int stage = 1; stage <= progress::kLastStage; ++stage) {
            spoil(evidence.at(entryAt(level, stage)), stage);
        }
    }
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

// In figures what the checks hold it to: by what a level is told, how it rises and what it
// forgives.
TEST(ClassicCatalogue, MeetsItsFigures)
{
    const Figures figures = figuresOf(classic());
    for (std::size_t level = 0; level < figures.kept.size(); ++level) {
        EXPECT_GE(figures.kept[level], level < 4 ? 7U : 9U) << "level " << level + 2;
        EXPECT_GE(figures.ranks[level], 0.8) << "level " << level + 2;
        if (level > 0) {
            EXPECT_GT(figures.medianSteps[level], figures.medianSteps[level - 1]);
            EXPECT_GT(figures.medianBits[level], figures.medianBits[level - 1]);
        }
    }
    EXPECT_GE(figures.guessed, 45U);
    EXPECT_LE(figures.jumps, 6U);
    EXPECT_LE(figures.alike, 0.78);
    EXPECT_GE(figures.nearPar, 75U);
    EXPECT_LE(figures.dead, 0.62);
    EXPECT_THAT(classicFaults(classic()), IsEmpty());
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

TEST(ClassicChecks, WantTheLateMovesOften)
{
    const Faults faults
        = faultsAfterAll(6, 11, [](Evidence& e, int /*stage*/) { e.metrics.needed &= only(5); });
    EXPECT_THAT(faults, Contains(HasSubstr("the move of index 6 is hardly needed")));
    EXPECT_THAT(faults, Not(Contains(HasSubstr("the move of index 5"))));
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

TEST(ClassicChecks, SeeABrokenPromise)
{
    std::vector<Evidence> evidence = classic();
    evidence.at(entryAt(7, 4)).puzzle.goal = "YRG";
    EXPECT_THAT(classicFaults(evidence), Not(Contains(HasSubstr("its promise")))); // nine are left
    evidence.at(entryAt(7, 5)).puzzle.goal = "YGR";
    EXPECT_THAT(classicFaults(evidence), Contains("level 7 does not keep its promise: repainted"));
}

TEST(ClassicChecks, SeeALaterPromiseGivenAway)
{
    EXPECT_THAT(faultsAfter(6, 4, [](Evidence& e) { e.puzzle.goal = "GRR"; }),
        Contains("level 6 gives away what level 9 is about: without the yellow"));
    const auto bothSidesAlike
        = [](Evidence& e, int stage) { e.puzzle.goal = stage <= 3 ? "GYG" : e.puzzle.goal; };
    EXPECT_THAT(faultsAfterAll(10, 10, bothSidesAlike),
        Contains("level 10 gives away what level 11 is about: both sides alike"));
}

TEST(ClassicChecks, SeeNeighboursWorldsApart)
{
    EXPECT_THAT(faultsAfter(5, 5, [](Evidence& e) { e.steps = 100000; }),
        Contains(HasSubstr("takes 100000 steps, its neighbour")));
    const auto upAndDown = [](Evidence& e, int stage) { e.steps = stage % 2 == 0 ? 1000 : 10; };
    EXPECT_THAT(faultsAfterAll(6, 6, upAndDown), Contains("9 neighbours are 8 times apart"));
}

TEST(ClassicChecks, WantABreather)
{
    std::vector<Evidence> evidence = classic();
    evidence.at(entryAt(8, 7)).steps = evidence.at(entryAt(8, 6)).steps;
    EXPECT_THAT(classicFaults(evidence), Contains("level 8 takes no breath at stage 7"));
}

TEST(ClassicChecks, WantALevelToRiseAndToEndWithOneOfItsHardest)
{
    EXPECT_THAT(faultsAfter(9, 10, [](Evidence& e) { e.steps = 50; }),
        Contains(HasSubstr("is not the puzzle to end a level with")));
    const auto falling
        = [](Evidence& e, int stage) { e.steps = static_cast<unsigned>(20 - stage) * 10; };
    EXPECT_THAT(
        faultsAfterAll(9, 9, falling), Contains("level 9 does not rise: rank correlation -1.00"));
}

TEST(ClassicChecks, SeeALevelThatIsNoHarder)
{
    std::vector<Evidence> evidence = classic();
    for (int stage = 1; stage <= 10; ++stage) {
        evidence.at(entryAt(8, stage)) = evidence.at(entryAt(7, stage));
    }
    const Faults faults = classicFaults(evidence);
    EXPECT_THAT(faults, Contains(HasSubstr("level 8 is no harder")));
    EXPECT_THAT(faults, Contains(HasSubstr("level 8 takes ")));
}

TEST(ClassicChecks, SeeKin)
{
    std::vector<Evidence> evidence = classic();
    evidence.at(entryAt(10, 8)).way = evidence.at(entryAt(6, 3)).way;
    EXPECT_THAT(classicFaults(evidence), Contains(HasSubstr("is like 6-3: 1.00, the same moves")));
    const auto endAlike = [](Evidence& e, int stage) { e.way.moves += stage <= 4 ? "717" : ""; };
    EXPECT_THAT(faultsAfterAll(10, 10, endAlike),
        Contains("level 10 ends too often in the same three moves"));
}

TEST(ClassicChecks, WantPuzzlesThatForgive)
{
    EXPECT_THAT(
        faultsAfter(4, 5, [](Evidence& e) { e.kindness.deadSteps = e.kindness.wrongSteps; }),
        Contains(HasSubstr("forgives nothing")));
    EXPECT_THAT(
        faultsAfterAll(6, 11,
            [](Evidence& e, int /*stage*/) { e.kindness.deadSteps = e.kindness.wrongSteps; }),
        Contains("too many wrong steps are dead: 1.00"));
    EXPECT_THAT(faultsAfterAll(2, 11, [](Evidence& e, int /*stage*/) { e.kindness = {}; }),
        Contains("only 0 of 100 have a solution near par"));
}

TEST(ClassicChecks, WantALevelThatCanBeTold)
{
    std::vector<Evidence> evidence = classic();
    for (int level = 7; level <= 11; ++level) {
        for (int stage = 1; stage <= 10; ++stage) {
            evidence.at(entryAt(level, stage)) = evidence.at(entryAt(6, stage));
        }
    }
    EXPECT_THAT(classicFaults(evidence), Contains(HasSubstr("of 60 puzzles tell their level")));
}

TEST(ClassicChecks, SeeRootsAndGoalsAgain)
{
    std::vector<Evidence> evidence = classic();
    for (int level = 5; level <= 8; ++level) {
        evidence.at(entryAt(level, 3)).puzzle.root = "YBBBBBB";
    }
    Puzzle& again = evidence.at(entryAt(9, 3)).puzzle;
    const Puzzle& before = evidence.at(entryAt(8, 3)).puzzle;
    again = { "YBBBBBR", before.goal, before.moves };
    const Faults faults = classicFaults(evidence);
    EXPECT_THAT(faults, Contains(HasSubstr("starts where too many others do")));
    EXPECT_THAT(faults, Contains(HasSubstr("9-3 YBBBBBR BBRBRRY asks for the goal of another")));
    again.moves = before.moves * 2; // a goal may come back when it is another puzzle altogether
    EXPECT_THAT(classicFaults(evidence), Not(Contains(HasSubstr("asks for the goal of another"))));
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

TEST(EndlessChecks, SeeWhatIsTooEasyOrTooHardForItsPar)
{
    const auto taking
        = [](const char* root, const char* goal, unsigned moves, unsigned steps, const char* way) {
              Evidence evidence { { root, goal, moves }, {}, {} };
              evidence.steps = steps;
              evidence.way.moves = way;
              return evidence;
          };
    const Faults faults = endlessFaults(
        { taking("YR", "YRGG", 4, 10, "1123"), taking("YRR", "YGGRR", 4, 151, "1133"),
            taking("YGGGR", "RGGGY", 5, 10, "24515"), taking("YRRRR", "YRR", 5, 150, "24515") });
    EXPECT_THAT(
        faults, Contains("par 4 lies too far apart: YR YRGG takes 10 steps, YRR YGGRR 151"));
    EXPECT_THAT(faults, Not(Contains(HasSubstr("par 5 lies too far apart"))));
    EXPECT_THAT(faults, Contains("2 YGGGR RGGGY falls to whoever goes by looks alone"));
    EXPECT_THAT(faults, Not(Contains(HasSubstr("YR YRGG falls"))));
    EXPECT_THAT(faults, Not(Contains(HasSubstr("is solved by the moves of too many"))));
}

TEST(EndlessChecks, SeeTheSameMovesTooOften)
{
    std::vector<Evidence> evidence(4, { { "YR", "YRRG", 2 }, {}, {} });
    evidence[3].puzzle.root = "YG";
    for (Evidence& one : evidence) {
        one.way.moves = "12";
    }
    EXPECT_THAT(
        endlessFaults(evidence), Contains("3 YG YRRG is solved by the moves of too many others"));
    evidence[0].way.moves = "21";
    EXPECT_THAT(
        endlessFaults(evidence), Not(Contains(HasSubstr("solved by the moves of too many"))));
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
