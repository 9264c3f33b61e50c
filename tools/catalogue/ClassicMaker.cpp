#include "catalogue/ClassicMaker.h"

#include "catalogue/Candidates.h"
#include "catalogue/Curve.h"
#include "platform/fakes/SeededRandom.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <set>
#include <stdexcept>
#include <utility>

namespace veyrand::catalogue {

namespace {

constexpr int kFirstLevelMade = 2;
constexpr std::size_t kPools = kFirstLevelOfAll - kFirstLevelMade + 1;

// The levels from 6 on share one pool; each of those before has its own moves, and its own.
std::size_t poolOf(int level)
{
    return static_cast<std::size_t>(std::min(level, kFirstLevelOfAll) - kFirstLevelMade);
}

// How many lines to look at for each root and distance. Roots without blue are few, and serve the
// early levels alone.
constexpr std::size_t kDrawn = 20;
constexpr std::size_t kDrawnFarAway = 40; // where the search loses sight of many goals
constexpr std::size_t kDrawnWithoutBlue = 60;
constexpr unsigned kFarAway = 10;
constexpr unsigned kMostMovesOfNewMove = 7; // in the levels that bring one

bool hasBlue(const std::string& line)
{
    return line.find('B') != std::string::npos;
}

// Candidates for every level.
class Pools {
public:
    Pools(platform::Random& random, const Progress& progress)
        : m_source(random)
    {
        const std::vector<std::string> all = roots("RGB", 1, 6);
        for (std::size_t i = 0; i < all.size(); ++i) {
            m_source.explore(all[i]);
            for (int level = kFirstLevelMade; level <= kFirstLevelOfAll; ++level) {
                fill(level, all[i]);
            }
            progress(i + 1, all.size());
        }
    }

    [[nodiscard]] const Candidates& of(int level) const { return m_pools.at(poolOf(level)); }

private:
    void fill(int level, const std::string& root)
    {
        const bool blue = level >= kFirstLevelWithBlue;
        if (hasBlue(root) && !blue) {
            return;
        }
        const std::optional<unsigned> newMove = newMoveOf(level);
        const unsigned mostMoves = newMove ? kMostMovesOfNewMove : kMostMoves;
        for (unsigned moves = 1; moves <= mostMoves; ++moves) {
            const std::size_t most = !hasBlue(root) ? kDrawnWithoutBlue
                : moves >= kFarAway                 ? kDrawnFarAway
                                                    : kDrawn;
            const Candidates drawn = m_source.draw(moves, most, progress::highestRuleAt(level, 1));
            for (const Candidate& candidate : drawn) {
                const bool needsNew = !newMove || (candidate.metrics.needed & only(*newMove)) != 0;
                if (needsNew && (blue || !hasBlue(candidate.puzzle.goal))) {
                    m_pools.at(poolOf(level)).push_back(candidate);
                }
            }
        }
    }

    CandidateSource m_source;
    std::array<Candidates, kPools> m_pools;
};

// Takes one candidate for each place, in order of play, and remembers what was taken so that the
// next is different.
class Maker {
public:
    explicit Maker(const Pools& pools)
        : m_pools(pools)
    {
        for (int level = 1; level <= progress::kLastLevel; ++level) {
            for (int stage = 1; stage <= progress::kLastStage; ++stage) {
                if (const auto given = givenPuzzle({ level, stage })) {
                    remember(*given, level);
                }
            }
        }
    }

    // The puzzle to remember comes first, for it is the hardest to find: the others stay below it.
    Puzzles makeLevel(int level)
    {
        m_lateMoves.clear();
        m_last = 0;
        m_hardest = 0;
        m_end = std::numeric_limits<double>::max();
        const Puzzle last = make({ level, progress::kLastStage });
        m_end = std::exchange(m_hardest, 0);
        Puzzles puzzles;
        for (int stage = 1; stage < progress::kLastStage; ++stage) {
            const std::optional<Puzzle> given = givenPuzzle({ level, stage });
            puzzles.push_back(given ? *given : make({ level, stage }));
        }
        puzzles.push_back(last);
        return puzzles;
    }

private:
    Puzzle make(Place place)
    {
        // The wish for bits is met within a bit if it can be, else within a few.
        for (const double bitsAround : { 1.0, 2.0, 3.0, 4.0 }) {
            for (const Candidate* candidate : ranked(place, bitsAround)) {
                if (m_gate.passes(candidate->puzzle)) {
                    take(*candidate, place);
                    return candidate->puzzle;
                }
            }
        }
        throw std::runtime_error("no puzzle for " + nameOf(place));
    }

    static constexpr double kBitsAbove = 1.0; // a wish may be passed by, to leave room for the next
    static constexpr std::size_t kMostUsesOfRoot = 3;
    static constexpr std::size_t kMostUsesOfLateMoves = 4; // of one set of them, in a level

    // The candidates that may stand at a place, best first.
    std::vector<const Candidate*> ranked(Place place, double bitsAround) const
    {
        std::vector<std::pair<double, const Candidate*>> possible;
        for (const Candidate& candidate : m_pools.of(place.level)) {
            if (isPossible(candidate, place, bitsAround)) {
                possible.emplace_back(worth(candidate, place), &candidate);
            }
        }
        std::stable_sort(possible.begin(), possible.end(),
            [](const auto& a, const auto& b) { return a.first > b.first; });
        std::vector<const Candidate*> ranked;
        ranked.reserve(possible.size());
        for (const auto& [worth, candidate] : possible) {
            ranked.push_back(candidate);
        }
        return ranked;
    }

    bool isPossible(const Candidate& candidate, Place place, double bitsAround) const
    {
        const Wish wish = wishAt(place);
        const double bits = candidate.metrics.bits;
        const Puzzle& puzzle = candidate.puzzle;
        if (puzzle.moves != wish.moves || bits < wish.bits - bitsAround
            || bits > wish.bits + (wish.isLast ? bitsAround : kBitsAbove) || bits > m_end
            || (!wish.isBreather && bits < m_hardest) || m_goals.contains(puzzle.goal)) {
            return false;
        }
        const auto uses = m_roots.find(puzzle.root);
        if (uses != m_roots.end()
            && (uses->second.size() >= kMostUsesOfRoot || uses->second.back() == place.level)) {
            return false;
        }
        return wish.isLast ? isMemorable(puzzle) : variesLateMoves(candidate, place);
    }

    // Where no move is new, neighbours differ in the late moves they cannot do without.
    bool variesLateMoves(const Candidate& candidate, Place place) const
    {
        if (place.level < kFirstLevelOfAll) {
            return true;
        }
        const MoveSet late = candidate.metrics.needed & kLateMoves;
        const auto uses = m_lateMoves.find(late);
        return late != 0 && late != m_last
            && (uses == m_lateMoves.end() || uses->second < kMostUsesOfLateMoves);
    }

    double worth(const Candidate& candidate, Place place) const
    {
        constexpr double kCostOfUsedRoot = 1.0;
        constexpr double kCostOfUsedMoves = 0.4;
        constexpr double kCostOfLikeness = 0.6;
        constexpr double kValueOfLooks = 1.5; // where a puzzle should be remembered
        constexpr unsigned kAlike = 2; // chips of difference
        const Puzzle& puzzle = candidate.puzzle;
        double worth = candidate.interest;
        if (place.stage == progress::kLastStage) {
            worth += kValueOfLooks * (looks(puzzle.root) + looks(puzzle.goal));
        }
        const auto root = m_roots.find(puzzle.root);
        worth -= root != m_roots.end() ? kCostOfUsedRoot * static_cast<double>(root->second.size())
                                       : 0;
        const auto late = m_lateMoves.find(candidate.metrics.needed & kLateMoves);
        worth -= late != m_lateMoves.end() && place.level >= kFirstLevelOfAll
            ? kCostOfUsedMoves * static_cast<double>(late->second)
            : 0;
        for (const Puzzle& other : m_latest) {
            worth -= difference(other.goal, puzzle.goal) <= kAlike ? kCostOfLikeness : 0;
            worth -= difference(other.root, puzzle.root) <= 1 ? kCostOfLikeness : 0;
        }
        return worth;
    }

    void take(const Candidate& candidate, Place place)
    {
        remember(candidate.puzzle, place.level);
        m_last = candidate.metrics.needed & kLateMoves;
        ++m_lateMoves[m_last];
        m_hardest = std::max(m_hardest, candidate.metrics.bits);
        m_latest.push_back(candidate.puzzle);
        if (m_latest.size() > progress::kLastStage) {
            m_latest.erase(m_latest.begin());
        }
    }

    void remember(const Puzzle& puzzle, int level)
    {
        if (level >= kFirstLevelMade) {
            m_roots[puzzle.root].push_back(level);
        }
        m_goals.insert(puzzle.goal);
    }

    const Pools& m_pools;
    HintGate m_gate;
    std::map<std::string, std::vector<int>> m_roots; // and the levels that use them
    std::set<std::string> m_goals;
    std::map<MoveSet, std::size_t> m_lateMoves; // of the level at hand
    std::vector<Puzzle> m_latest;
    MoveSet m_last = 0;
    double m_hardest = 0; // of the level at hand so far, in bits
    double m_end = 0; // bits of the last one of the level
};

} // namespace

Puzzles classicPuzzles(std::uint32_t seed, const Progress& progress)
{
    platform::SeededRandom random(seed);
    const Pools pools(random, progress);
    Maker maker(pools);
    Puzzles puzzles { { "YR", "YRG", 1 } };
    for (int stage = 1; stage <= progress::kLastStage; ++stage) {
        puzzles.push_back(givenPuzzle({ 1, stage }).value());
    }
    for (int level = kFirstLevelMade; level <= progress::kLastLevel; ++level) {
        const Puzzles made = maker.makeLevel(level);
        puzzles.insert(puzzles.end(), made.begin(), made.end());
    }
    return puzzles;
}

} // namespace veyrand::catalogue
