#include "catalogue/Criteria.h"
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
    return faults;
}

} // namespace veyrand::catalogue
