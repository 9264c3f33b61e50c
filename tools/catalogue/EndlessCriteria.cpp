#include "catalogue/Criteria.h"
#include "catalogue/EndlessMaker.h"
#include "catalogue/Figures.h"
#include "progress/Catalogue.h"

#include <map>
#include <set>

namespace veyrand::catalogue {

namespace {

struct Share {
    std::size_t least; // in a thousand puzzles
    std::size_t most;
};

// By moves: most players ask for 3 to 10.
Share shareOfMoves(unsigned moves)
{
    constexpr unsigned kFewestUsual = 3;
    constexpr unsigned kMostUsual = 10;
    return moves < kFewestUsual || moves > kMostUsual ? Share { 1, 60 } : Share { 80, 150 };
}

// By the root's chips: there are only three roots of two chips, and nine of three.
Share shareOfLength(std::size_t length)
{
    switch (length) {
    case 2:
        return { 10, 30 };
    case 3:
        return { 50, 90 };
    default:
        return { 170, 250 };
    }
}

void judgeShare(
    const std::string& what, std::size_t count, std::size_t all, Share share, Faults& faults)
{
    constexpr std::size_t kThousand = 1000;
    if (count * kThousand < share.least * all || count * kThousand > share.most * all) {
        faults.push_back(std::to_string(count) + " puzzles have " + what);
    }
}

// Whoever asks for a par gets what he expects, by a way that he does not know by heart.
void judgeSteps(const std::vector<Evidence>& evidence, Faults& faults)
{
    constexpr double kMostSpread = 15;
    std::map<unsigned, std::pair<const Evidence*, const Evidence*>> ends; // easiest and hardest
    std::map<std::string, std::size_t> ways;
    for (std::size_t entry = 0; entry < evidence.size(); ++entry) {
        const Evidence& one = evidence[entry];
        const std::string name = nameOf(Game::Endless, entry, one.puzzle);
        if (one.puzzle.moves > 1 && ++ways[one.way.moves] > kMostOfEndlessWay) {
            faults.push_back(name + " is solved by the moves of too many others");
        }
        if (one.puzzle.moves >= kFewestMovesWithoutGreed
            && fallsToGreed(packed(one.puzzle.root), packed(one.puzzle.goal), kAllMoves)) {
            faults.push_back(name + " falls to whoever goes by looks alone");
        }
        auto& [easiest, hardest] = ends.try_emplace(one.puzzle.moves, &one, &one).first->second;
        easiest = stepsOf(one) < stepsOf(*easiest) ? &one : easiest;
        hardest = stepsOf(one) > stepsOf(*hardest) ? &one : hardest;
    }
    for (const auto& [moves, ofMoves] : ends) {
        const auto& [easiest, hardest] = ofMoves;
        if (timesApart(*easiest, *hardest) > kMostSpread) {
            faults.push_back("par " + std::to_string(moves)
                + " lies too far apart: " + easiest->puzzle.root + ' ' + easiest->puzzle.goal
                + " takes " + std::to_string(easiest->steps) + " steps, " + hardest->puzzle.root
                + ' ' + hardest->puzzle.goal + ' ' + std::to_string(hardest->steps));
        }
    }
}

} // namespace

Faults endlessFaults(const std::vector<Evidence>& evidence)
{
    constexpr std::size_t kHundred = 100;
    constexpr std::size_t kShortestRoot = 2;
    constexpr std::size_t kLongestRoot = 7;
    Faults faults;
    const std::size_t all = evidence.size();
    if (all < progress::kEndlessEntries) {
        faults.push_back("there are " + std::to_string(all) + " entries, fewer than "
            + std::to_string(progress::kEndlessEntries));
    }
    std::map<unsigned, std::size_t> ofMoves;
    std::map<std::size_t, std::size_t> ofLength;
    std::map<std::string, std::size_t> ofRoot;
    std::set<std::pair<std::string, std::string>> pairs;
    for (std::size_t entry = 0; entry < all; ++entry) {
        const Puzzle& puzzle = evidence[entry].puzzle;
        ++ofMoves[puzzle.moves];
        ++ofLength[puzzle.root.size()];
        ++ofRoot[puzzle.root];
        if (!pairs.insert({ puzzle.root, puzzle.goal }).second) {
            faults.push_back(nameOf(Game::Endless, entry, puzzle) + " stands there twice");
        }
    }
    for (unsigned moves = 1; moves <= kMostMoves; ++moves) {
        judgeShare(
            "par " + std::to_string(moves), ofMoves[moves], all, shareOfMoves(moves), faults);
    }
    for (std::size_t length = kShortestRoot; length <= kLongestRoot; ++length) {
        judgeShare("a root of " + std::to_string(length) + " chips", ofLength[length], all,
            shareOfLength(length), faults);
    }
    for (const auto& [root, count] : ofRoot) {
        if (count * kHundred > all) {
            faults.push_back("the root " + root + " serves " + std::to_string(count) + " puzzles");
        }
        if (root.size() < kShortestRoot || root.size() > kLongestRoot) {
            faults.push_back("the root " + root + " has too few chips or too many");
        }
    }
    judgeSteps(evidence, faults);
    return faults;
}

} // namespace veyrand::catalogue
