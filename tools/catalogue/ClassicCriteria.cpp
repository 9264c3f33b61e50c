#include "catalogue/Certificate.h"
#include "catalogue/Criteria.h"
#include "catalogue/Curve.h"
#include "catalogue/Figures.h"
#include "progress/Catalogue.h"

#include <algorithm>
#include <map>

namespace veyrand::catalogue {

namespace {

std::size_t firstOfCurve()
{
    return static_cast<std::size_t>(progress::catalogueIndex({ kFirstLevelOfPromise, 1 }));
}

std::string levelName(int level)
{
    return "level " + std::to_string(level) + ' ';
}

std::string puzzleName(int level, std::size_t index, const Level& puzzles)
{
    return nameOf(Place { level, static_cast<int>(index) + 1 }) + ' '
        + puzzles.at(index)->puzzle.root + ' ' + puzzles.at(index)->puzzle.goal + ' ';
}

void judgeGivenPuzzles(int level, const Level& puzzles, Faults& faults)
{
    for (std::size_t i = 0; i < puzzles.size(); ++i) {
        const auto given = givenPuzzle({ level, static_cast<int>(i) + 1 });
        if (given && *given != puzzles.at(i)->puzzle) {
            faults.push_back(
                puzzleName(level, i, puzzles) + "is not the one the tutorial's pages speak of");
        }
    }
}

void judgeBlue(int level, const Level& puzzles, Faults& faults)
{
    for (std::size_t i = 0; i < puzzles.size() && level < kFirstLevelWithBlue; ++i) {
        if ((puzzles.at(i)->puzzle.root + puzzles.at(i)->puzzle.goal).find('B')
            != std::string::npos) {
            faults.push_back(puzzleName(level, i, puzzles) + "has a blue chip too early");
        }
    }
}

std::string figure(double value)
{
    return textOfBits(value);
}

void judgeMoves(int level, const Level& puzzles, Faults& faults)
{
    constexpr std::ptrdiff_t kEnough = 9;
    const std::optional<unsigned> newMove = newMoveOf(level);
    const auto needing
        = std::count_if(puzzles.begin(), puzzles.end(), [&](const Evidence* evidence) {
              return newMove && (evidence->metrics.needed & only(*newMove)) != 0;
          });
    if (newMove && needing < kEnough) {
        faults.push_back(levelName(level) + "can do without its new move too often");
    }
    for (std::size_t i = 0; i < puzzles.size(); ++i) {
        if (puzzles.at(i)->metrics.bits <= 0) {
            faults.push_back(puzzleName(level, i, puzzles) + "is a single forced line");
        }
    }
}

void judgePromise(int level, const Level& puzzles, Faults& faults)
{
    const auto keeping = [&puzzles](Promise promise) {
        return std::count_if(puzzles.begin(), puzzles.end(), [promise](const Evidence* evidence) {
            return keeps(evidence->puzzle, evidence->metrics.needed, promise);
        });
    };
    constexpr std::size_t kEnough = 9;
    constexpr std::size_t kEnoughEarly = 7;
    if (promisesKept(level, puzzles) < (level < kFirstLevelOfAll ? kEnoughEarly : kEnough)) {
        faults.push_back(
            levelName(level) + "does not keep its promise: " + nameOf(promiseOf(level)));
    }
    for (int later = level + 1; later <= progress::kLastLevel; ++later) {
        const Promise promise = promiseOf(later);
        const std::ptrdiff_t most = promise == Promise::WithoutYellow ? 0 : 2;
        if (keeping(promise) > most) {
            faults.push_back(levelName(level) + "gives away what level " + std::to_string(later)
                + " is about: " + nameOf(promise));
        }
    }
}

// Neighbours are not worlds apart, a level has its breather, and ends with one of its hardest.
void judgeRise(int level, const Level& puzzles, Faults& faults)
{
    constexpr double kWorldsApart = 8;
    const auto steps = [&puzzles](std::size_t i) { return stepsOf(*puzzles.at(i)); };
    const std::size_t last = puzzles.size() - 1;
    for (std::size_t i = 1; i < last; ++i) {
        if (timesApart(*puzzles.at(i - 1), *puzzles.at(i)) >= kWorldsApart) {
            faults.push_back(puzzleName(level, i, puzzles) + "takes "
                + std::to_string(puzzles.at(i)->steps) + " steps, its neighbour "
                + std::to_string(puzzles.at(i - 1)->steps));
        }
    }
    const std::size_t breather = kBreatherStage - 1;
    if (steps(breather) * 2 > steps(breather - 1)) {
        faults.push_back(levelName(level) + "takes no breath at stage 7");
    }
    const auto harder = std::count_if(puzzles.begin(), puzzles.end(),
        [&](const Evidence* evidence) { return stepsOf(*evidence) > steps(last); });
    if (harder > 1 || steps(last - 1) >= steps(last) * kWorldsApart) {
        faults.push_back(
            puzzleName(level, last, puzzles) + "is not the puzzle to end a level with");
    }
    constexpr double kEnough = 0.8;
    if (const double rank = rankCorrelation(puzzles); rank < kEnough) {
        faults.push_back(levelName(level) + "does not rise: rank correlation " + figure(rank));
    }
}

// Ways that are alike, and ends that are.
void judgeLikeness(const std::vector<Evidence>& evidence, Faults& faults)
{
    constexpr double kAlike = 0.78;
    constexpr std::size_t kLong = 5; // moves
    for (std::size_t i = firstOfCurve(); i < evidence.size(); ++i) {
        for (std::size_t j = firstOfCurve(); j < i; ++j) {
            const Way& a = evidence[i].way;
            const Way& b = evidence[j].way;
            const double alike = likeness(a, b);
            if (alike > kAlike || (a.moves.size() >= kLong && a.moves == b.moves)) {
                faults.push_back(nameOf(Game::Classic, i, evidence[i].puzzle) + " is like "
                    + nameOf(placeOfEntry(j)) + ": " + figure(alike)
                    + (a.moves == b.moves ? ", the same moves" : ""));
            }
        }
    }
    constexpr std::size_t kEnd = 3;
    constexpr int kMostOfOneEnd = 3;
    for (int level = kFirstLevelOfPromise; level <= progress::kLastLevel; ++level) {
        std::map<std::string, int> ends;
        for (const Evidence* puzzle : levelOf(evidence, level)) {
            const std::string& moves = puzzle->way.moves;
            if (moves.size() >= kEnd && ++ends[moves.substr(moves.size() - kEnd)] > kMostOfOneEnd) {
                faults.push_back(levelName(level) + "ends too often in the same three moves");
            }
        }
    }
}

void judgeKindness(const std::vector<Evidence>& evidence, Faults& faults)
{
    for (std::size_t i = firstOfCurve(); i < evidence.size(); ++i) {
        const Kindness& kindness = evidence[i].kindness;
        const Place place = placeOfEntry(i);
        if (place.level < kFirstLevelOfAll && !givenPuzzle(place) && kindness.wrongSteps > 0
            && kindness.deadSteps == kindness.wrongSteps) {
            faults.push_back(nameOf(Game::Classic, i, evidence[i].puzzle) + " forgives nothing");
        }
    }
}

void judgeFigures(const Figures& figures, Faults& faults)
{
    constexpr std::size_t kEnoughGuessed = 45;
    constexpr std::size_t kEnoughNearPar = 75;
    constexpr std::size_t kMostJumps = 6;
    constexpr double kMostDead = 0.62;
    constexpr std::size_t kEnoughOfLateMove = 15;
    const auto expect = [&faults](bool holds, const std::string& otherwise) {
        if (!holds) {
            faults.push_back(otherwise);
        }
    };
    expect(figures.guessed >= kEnoughGuessed,
        "only " + std::to_string(figures.guessed) + " of 60 puzzles tell their level");
    expect(figures.nearPar >= kEnoughNearPar,
        "only " + std::to_string(figures.nearPar) + " of 100 have a solution near par");
    expect(figures.jumps <= kMostJumps,
        std::to_string(figures.jumps) + " neighbours are 8 times apart");
    expect(figures.dead <= kMostDead, "too many wrong steps are dead: " + figure(figures.dead));
    for (const auto& [move, count] : figures.needing) {
        expect(count >= kEnoughOfLateMove,
            "the move of index " + std::to_string(move) + " is hardly needed from level 6 on");
    }
    for (std::size_t level = 1; level < figures.medianBits.size(); ++level) {
        const double before = figures.medianSteps[level - 1];
        const double now = figures.medianSteps[level];
        constexpr double kLeastRise = 1.3;
        constexpr double kMostRise = 4;
        const std::string name = levelName(static_cast<int>(level) + kFirstLevelOfPromise);
        expect(figures.medianBits[level] > figures.medianBits[level - 1],
            name + "is no harder than the one before it: " + figure(figures.medianBits[level])
                + " bits");
        expect(now >= before * kLeastRise && now <= before * kMostRise,
            name + "takes " + figure(now) + " steps after " + figure(before));
    }
}

// A goal may come back once, from a shorter start or at twice the par.
void judgeRepetition(const std::vector<Evidence>& evidence, Faults& faults)
{
    constexpr std::size_t kShort = 3; // chips
    constexpr int kMostUsesOfRoot = 3;
    constexpr int kMostUsesOfShortRoot = 5;
    std::map<std::string, int> roots;
    std::map<std::string, std::vector<const Puzzle*>> goals;
    for (std::size_t entry = firstOfCurve(); entry < evidence.size(); ++entry) {
        const Puzzle& puzzle = evidence[entry].puzzle;
        const std::string name = nameOf(Game::Classic, entry, puzzle);
        const int most = puzzle.root.size() <= kShort ? kMostUsesOfShortRoot : kMostUsesOfRoot;
        if (++roots[puzzle.root] > most) {
            faults.push_back(name + " starts where too many others do");
        }
        std::vector<const Puzzle*>& before = goals[puzzle.goal];
        if (before.size() > 1
            || (before.size() == 1 && puzzle.moves < before[0]->moves * 2
                && puzzle.root.size() >= before[0]->root.size())) {
            faults.push_back(name + " asks for the goal of another");
        }
        before.push_back(&puzzle);
    }
}

} // namespace

Faults classicFaults(const std::vector<Evidence>& evidence)
{
    if (evidence.size() != progress::kClassicEntries) {
        return { "there are " + std::to_string(evidence.size()) + " entries, not "
            + std::to_string(progress::kClassicEntries) };
    }
    Faults faults;
    for (int level = 1; level <= progress::kLastLevel; ++level) {
        const Level puzzles = levelOf(evidence, level);
        judgeGivenPuzzles(level, puzzles, faults);
        judgeBlue(level, puzzles, faults);
        if (level < kFirstLevelOfPromise) {
            continue; // the tutorial's own
        }
        judgeMoves(level, puzzles, faults);
        judgePromise(level, puzzles, faults);
        judgeRise(level, puzzles, faults);
    }
    judgeLikeness(evidence, faults);
    judgeKindness(evidence, faults);
    judgeRepetition(evidence, faults);
    judgeFigures(figuresOf(evidence), faults);
    return faults;
}

} // namespace veyrand::catalogue
