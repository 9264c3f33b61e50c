#include "catalogue/EndlessMaker.h"

#include "catalogue/Candidates.h"
#include "catalogue/HumanSolver.h"
#include "catalogue/Kindness.h"
#include "catalogue/Likeness.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/Catalogue.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <set>
#include <stdexcept>

namespace veyrand::catalogue {

namespace {

constexpr std::size_t kLongestRoot = 7; // in chips
constexpr std::array<std::size_t, kLongestRoot + 1> kDrawn { 0, 0, 90, 60, 40, 20, 8, 4 };

// Asks the dear questions of a puzzle that is about to be taken, the cheapest first.
class Gate {
public:
    [[nodiscard]] bool passes(const Puzzle& puzzle)
    {
        const engine::PackedLine root = packed(puzzle.root);
        const engine::PackedLine goal = packed(puzzle.goal);
        m_reach.explore(root, puzzle.moves);
        const std::optional<ShortestWays> ways = ShortestWays::find(m_reach, goal);
        if (!ways) {
            return false;
        }
        const std::string moves = wayOf(*ways, kAllMoves).moves;
        if (puzzle.moves > 1 && m_ofMoves[moves] == kMostOfEndlessWay) {
            return false;
        }
        if (puzzle.moves >= kFewestMovesWithoutGreed && fallsToGreed(root, goal, kAllMoves)) {
            return false;
        }
        const StepsWanted wanted = endlessStepsOfMoves(puzzle.moves);
        const unsigned steps
            = HumanSolver(root, goal, kAllMoves).medianSteps(HumanSolver::kTries, wanted.most + 1);
        if (steps < wanted.fewest || steps > wanted.most || !m_hints.leadsAllTheWay(*ways)) {
            return false;
        }
        ++m_ofMoves[moves];
        return true;
    }

private:
    Reach m_reach;
    HintSearch m_hints;
    std::map<std::string, std::size_t> m_ofMoves; // puzzles solved by the same moves in order
};

// Fills the numbers that are wanted of each par, always from the length of root that is furthest
// from what is wanted of it.
class Maker {
public:
    explicit Maker(const Puzzles& taken)
    {
        for (const Puzzle& puzzle : taken) {
            m_goals.insert(puzzle.goal);
        }
    }

    void collect(CandidateSource& source, const std::string& root)
    {
        for (unsigned moves = 1; moves <= kMostMoves; ++moves) {
            Candidates& pool = m_pools[{ moves, root.size() }];
            const Candidates drawn
                = source.draw(moves, kDrawn.at(root.size()), progress::kMoveCount);
            pool.insert(pool.end(), drawn.begin(), drawn.end());
        }
    }

    [[nodiscard]] Puzzles make(const Progress& progress)
    {
        Puzzles puzzles;
        for (unsigned moves = 1; moves <= kMostMoves; ++moves) {
            for (std::size_t i = 0; i < endlessPuzzlesOfMoves().at(moves); ++i) {
                puzzles.push_back(next(moves));
                progress(puzzles.size(), progress::kEndlessEntries);
            }
        }
        return puzzles;
    }

private:
    Puzzle next(unsigned moves)
    {
        std::array<std::size_t, kLongestRoot - 1> lengths {};
        std::iota(lengths.begin(), lengths.end(), 2);
        std::stable_sort(lengths.begin(), lengths.end(),
            [this](std::size_t a, std::size_t b) { return filled(a) < filled(b); });
        for (const std::size_t length : lengths) {
            if (const auto puzzle = best(m_pools[{ moves, length }])) {
                ++m_ofLength.at(length);
                ++m_uses[puzzle->root];
                m_goals.insert(puzzle->goal);
                return *puzzle;
            }
        }
        throw std::runtime_error("too few puzzles of " + std::to_string(moves) + " moves");
    }

    [[nodiscard]] double filled(std::size_t length) const
    {
        return static_cast<double>(m_ofLength.at(length))
            / static_cast<double>(endlessPuzzlesOfRootLength().at(length));
    }

    // The most interesting that is left, from a root that has not served often. What is refused
    // once is refused for ever: goals, uses of roots and of ways only grow.
    std::optional<Puzzle> best(Candidates& pool)
    {
        constexpr double kCostOfUse = 0.4;
        const auto worth = [this](const Candidate& candidate) {
            return candidate.interest - kCostOfUse * static_cast<double>(uses(candidate.puzzle));
        };
        pool.erase(std::remove_if(pool.begin(), pool.end(),
                       [this](const Candidate& candidate) {
                           return m_goals.contains(candidate.puzzle.goal)
                               || uses(candidate.puzzle) >= mostUsesOfEndlessRoot();
                       }),
            pool.end());
        while (!pool.empty()) {
            const auto found = std::max_element(pool.begin(), pool.end(),
                [&](const Candidate& a, const Candidate& b) { return worth(a) < worth(b); });
            const Puzzle puzzle = found->puzzle;
            pool.erase(found);
            if (m_gate.passes(puzzle)) {
                return puzzle;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] std::size_t uses(const Puzzle& puzzle) const
    {
        const auto found = m_uses.find(puzzle.root);
        return found == m_uses.end() ? 0 : found->second;
    }

    Gate m_gate;
    std::map<std::pair<unsigned, std::size_t>, Candidates> m_pools; // by moves and root length
    std::map<std::string, std::size_t> m_uses; // of each root
    std::set<std::string> m_goals;
    std::array<std::size_t, kLongestRoot + 1> m_ofLength {};
};

} // namespace

Puzzles endlessPuzzles(std::uint32_t seed, const Puzzles& taken, const Progress& progress)
{
    platform::SeededRandom random(seed);
    CandidateSource source(random);
    Maker maker(taken);
    for (const std::string& root : roots("RGB", 1, kLongestRoot - 1)) {
        source.explore(root);
        maker.collect(source, root);
    }
    Puzzles puzzles = maker.make(progress);
    shuffle(puzzles, random);
    return puzzles;
}

const std::vector<std::size_t>& endlessPuzzlesOfMoves()
{
    static const std::vector<std::size_t> kWanted { 0, 30, 80, 220, 250, 260, 270, 270, 260, 240,
        200, 88 };
    return kWanted;
}

const std::vector<std::size_t>& endlessPuzzlesOfRootLength()
{
    static const std::vector<std::size_t> kWanted { 0, 0, 40, 170, 440, 500, 509, 509 };
    return kWanted;
}

StepsWanted endlessStepsOfMoves(unsigned moves)
{
    static const std::array<StepsWanted, kMostMoves + 1> kWanted { { { 0, 0 }, { 1, 4 }, { 2, 8 },
        { 3, 12 }, { 4, 21 }, { 12, 107 }, { 15, 164 }, { 24, 360 }, { 47, 700 }, { 99, 1480 },
        { 178, 2660 }, { 369, 5500 } } };
    return kWanted.at(moves);
}

std::size_t mostUsesOfEndlessRoot()
{
    constexpr std::size_t kPerHundred = 100;
    return progress::kEndlessEntries / kPerHundred;
}

} // namespace veyrand::catalogue
