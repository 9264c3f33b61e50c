#include "catalogue/Criteria.h"
#include "catalogue/Curve.h"
#include "catalogue/Figures.h"
#include "progress/Catalogue.h"

#include <algorithm>
#include <array>
#include <map>

namespace veyrand::catalogue {

namespace {

constexpr int kFirstLevelOfCurve = 2;
constexpr std::size_t kMostOfOneSet = 5; // puzzles of a level that need the same late moves

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

void judgeMoves(int level, const Level& puzzles, Faults& faults)
{
    constexpr std::ptrdiff_t kEnough = 9;
    constexpr std::ptrdiff_t kEnoughOfLateMove = 3;
    constexpr std::size_t kFewestSets = 3;
    const auto needing = [&](unsigned move) {
        return std::count_if(puzzles.begin(), puzzles.end(), [move](const Evidence* evidence) {
            return (evidence->metrics.needed & only(move)) != 0;
        });
    };
    const std::optional<unsigned> newMove = newMoveOf(level);
    if (newMove && needing(*newMove) < kEnough) {
        faults.push_back(levelName(level) + "can do without its new move too often");
    }
    if (level < kFirstLevelOfAll) {
        return;
    }
    std::map<MoveSet, std::size_t> sets;
    for (const Evidence* evidence : puzzles) {
        ++sets[evidence->metrics.needed & kLateMoves];
    }
    const bool oneTooOften = std::any_of(
        sets.begin(), sets.end(), [](const auto& set) { return set.second > kMostOfOneSet; });
    if (oneTooOften || sets.size() < kFewestSets) {
        faults.push_back(levelName(level) + "needs the same late moves again and again");
    }
    for (unsigned move = 0; only(move) <= kLateMoves; ++move) {
        if ((kLateMoves & only(move)) != 0 && needing(move) < kEnoughOfLateMove) {
            faults.push_back(
                levelName(level) + "hardly needs the move of index " + std::to_string(move));
        }
    }
}

// A level rises, but for a breather or two.
void judgeRise(int level, const Level& puzzles, Faults& faults)
{
    constexpr int kMostBreathers = 2;
    int fallsOfMoves = 0;
    int fallsOfBits = 0;
    for (std::size_t i = 1; i < puzzles.size(); ++i) {
        const Evidence& before = *puzzles.at(i - 1);
        const Evidence& now = *puzzles.at(i);
        fallsOfMoves += now.puzzle.moves < before.puzzle.moves ? 1 : 0;
        fallsOfBits += now.metrics.bits < before.metrics.bits ? 1 : 0;
        if (now.metrics.bits <= 0) {
            faults.push_back(puzzleName(level, i, puzzles) + "is a single forced line");
        }
    }
    if (fallsOfMoves > kMostBreathers || fallsOfBits > kMostBreathers) {
        faults.push_back(levelName(level) + "falls more often than a breather or two");
    }
}

void judgeEnd(int level, const Level& puzzles, Faults& faults)
{
    const Evidence& last = *puzzles.back();
    const bool isHardest = std::all_of(puzzles.begin(), puzzles.end(),
        [&last](const Evidence* evidence) { return evidence->metrics.bits <= last.metrics.bits; });
    if (!isHardest || !isMemorable(last.puzzle)) {
        faults.push_back(puzzleName(level, puzzles.size() - 1, puzzles)
            + "is not the puzzle to end a level with");
    }
}

double medianBits(const Level& puzzles)
{
    std::array<double, progress::kLastStage> bits {};
    std::transform(puzzles.begin(), puzzles.end(), bits.begin(),
        [](const Evidence* evidence) { return evidence->metrics.bits; });
    std::sort(bits.begin(), bits.end());
    return (bits.at(bits.size() / 2) + bits.at(bits.size() / 2 - 1)) / 2;
}

unsigned sumOfMoves(const Level& puzzles)
{
    unsigned sum = 0;
    for (const Evidence* evidence : puzzles) {
        sum += evidence->puzzle.moves;
    }
    return sum;
}

void judgeRepetition(const std::vector<Evidence>& evidence, Faults& faults)
{
    constexpr int kMostUsesOfRoot = 3;
    std::map<std::string, int> roots;
    std::map<std::string, int> goals;
    const auto first
        = static_cast<std::size_t>(progress::catalogueIndex({ kFirstLevelOfCurve, 1 }));
    for (std::size_t entry = first; entry < evidence.size(); ++entry) {
        const Puzzle& puzzle = evidence[entry].puzzle;
        const std::string name = nameOf(Game::Classic, entry, puzzle);
        if (++roots[puzzle.root] > kMostUsesOfRoot) {
            faults.push_back(name + " starts where three others do");
        }
        if (++goals[puzzle.goal] > 1) {
            faults.push_back(name + " asks for the goal of another");
        }
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
        if (level < kFirstLevelOfCurve) {
            continue; // the tutorial's own
        }
        judgeMoves(level, puzzles, faults);
        judgeRise(level, puzzles, faults);
        judgeEnd(level, puzzles, faults);
        const Level before = levelOf(evidence, level - 1);
        if (medianBits(puzzles) <= medianBits(before) || sumOfMoves(puzzles) < sumOfMoves(before)) {
            faults.push_back(levelName(level) + "is no harder than the one before it");
        }
    }
    judgeRepetition(evidence, faults);
    return faults;
}

} // namespace veyrand::catalogue
