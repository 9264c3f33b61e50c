#include "ClassicPuzzles.h"

#include "progress/RuleSets.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>

namespace veyrand::quick_catalogue {

namespace {

constexpr int kLevels = 11;
constexpr int kStages = 10;
constexpr int kFirstLevelWithBlue = 4;
constexpr int kLastLevelWithNewMove = 5;
constexpr std::size_t kGoalsTried = 40; // of one root, before the next is taken

struct Place {
    int level;
    int stage;
    friend bool operator<(const Place& a, const Place& b)
    {
        return std::pair(a.level, a.stage) < std::pair(b.level, b.stage);
    }
};

// The puzzles the tutorial's pages lead through: all of level 1, and the first of each level that
// brings a new move.
const std::map<Place, Puzzle>& givenPuzzles()
{
    static const std::map<Place, Puzzle> kGiven {
        { { 1, 1 }, { "YGR", "YGRGR", 1 } },
        { { 1, 2 }, { "YG", "YGGGG", 2 } },
        { { 1, 3 }, { "YR", "YRG", 1 } },
        { { 1, 4 }, { "YR", "YRRG", 2 } },
        { { 1, 5 }, { "YR", "YRGRG", 2 } },
        { { 1, 6 }, { "YR", "YRRGRRG", 3 } },
        { { 1, 7 }, { "YGR", "YGRGRGRGRG", 3 } },
        { { 1, 8 }, { "YRRR", "YG", 1 } },
        { { 1, 9 }, { "YRRRRRR", "YGG", 2 } },
        { { 1, 10 }, { "YR", "YRGG", 4 } },
        { { 2, 1 }, { "YRGGR", "YRR", 1 } },
        { { 3, 1 }, { "YRG", "GRY", 1 } },
        { { 4, 1 }, { "YRGG", "YRGBG", 1 } },
        { { 5, 1 }, { "YBRGB", "YBB", 1 } },
    };
    return kGiven;
}

// Each level begins easier than the one before it ended, and ends a little harder.
unsigned movesAt(Place place)
{
    struct Slope {
        unsigned first;
        unsigned last;
    };
    static const std::map<int, Slope> kSlopes { { 2, { 1, 6 } }, { 3, { 1, 6 } }, { 4, { 1, 7 } },
        { 5, { 1, 7 } }, { 6, { 3, 7 } }, { 7, { 4, 8 } }, { 8, { 5, 8 } }, { 9, { 5, 9 } },
        { 10, { 6, 10 } }, { 11, { 7, 10 } } };
    const Slope slope = kSlopes.at(place.level);
    const auto step = static_cast<unsigned>(place.stage - 1);
    return slope.first + (slope.last - slope.first) * step / (kStages - 1);
}

// The index of the move the level is about, if it brings one.
std::optional<unsigned> newMoveOf(int level)
{
    if (level > kLastLevelWithNewMove) {
        return std::nullopt;
    }
    return static_cast<unsigned>(progress::highestRuleAt(level, 1)) - 1;
}

// Finds the puzzle of one place after the other. No root and no goal is used twice.
class Maker {
public:
    explicit Maker(platform::Random& random)
        : m_random(random)
    {
        for (const auto& [place, puzzle] : givenPuzzles()) {
            m_used.insert({ puzzle.root, puzzle.goal });
        }
    }

    Puzzle make(Place place)
    {
        auto starts = roots(place.level < kFirstLevelWithBlue ? "RG" : "RGB", 2, 6);
        shuffle(starts, m_random);
        for (const std::string& root : starts) {
            if (m_used.contains(root)) {
                continue;
            }
            if (const auto goal = goalFrom(root, place)) {
                m_used.insert({ root, *goal });
                return { root, *goal, movesAt(place) };
            }
        }
        throw std::runtime_error(
            "no puzzle for " + std::to_string(place.level) + '-' + std::to_string(place.stage));
    }

private:
    // The most interesting goal that fits, if any does.
    std::optional<std::string> goalFrom(const std::string& root, Place place)
    {
        const Derivations derivations(root, m_rules);
        engine::Nodes candidates = derivations.goals(movesAt(place));
        shuffle(candidates, m_random);
        candidates.resize(std::min(candidates.size(), kGoalsTried));
        std::optional<std::string> best;
        int bestScore = 0;
        for (const engine::NodePtr& node : candidates) {
            const int score = derivations.score(node);
            if ((!best || score > bestScore) && fits(derivations, node, place)) {
                best = node->theorem().theorem();
                bestScore = score;
            }
        }
        return best;
    }

    bool fits(const Derivations& derivations, const engine::NodePtr& node, Place place) const
    {
        const std::string& goal = node->theorem().theorem();
        if (goal.size() < 2 || m_used.contains(goal)) {
            return false;
        }
        const std::string sequence = derivations.ruleSequence(node);
        const auto lastOpen
            = static_cast<char>('0' + progress::highestRuleAt(place.level, place.stage) - 1);
        const bool allOpen = std::all_of(
            sequence.begin(), sequence.end(), [&](char rule) { return rule <= lastOpen; });
        const auto newMove = newMoveOf(place.level);
        return allOpen && (!newMove || needs(*newMove, derivations.root(), goal, sequence));
    }

    // Whether every solution of that many moves uses the move.
    bool needs(unsigned move, const std::string& root, const std::string& goal,
        const std::string& sequence) const
    {
        if (sequence.find(static_cast<char>('0' + move)) == std::string::npos) {
            return false;
        }
        engine::Rules others = *m_rules;
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(move));
        const unsigned moves
            = shortestSolution(root, goal, std::make_shared<const engine::Rules>(others));
        return moves == 0 || moves > sequence.size();
    }

    platform::Random& m_random;
    engine::SharedRules m_rules = std::make_shared<const engine::Rules>(progress::advancedRules());
    std::set<std::string> m_used;
};

} // namespace

Puzzles classicPuzzles(platform::Random& random, const Progress& progress)
{
    Maker maker(random);
    Puzzles puzzles { { "YR", "YRG", 1 } };
    for (int level = 1; level <= kLevels; ++level) {
        for (int stage = 1; stage <= kStages; ++stage) {
            const auto given = givenPuzzles().find({ level, stage });
            puzzles.push_back(
                given != givenPuzzles().end() ? given->second : maker.make({ level, stage }));
            progress(puzzles.size() - 1, std::size_t { kLevels } * kStages);
        }
    }
    return puzzles;
}

} // namespace veyrand::quick_catalogue
