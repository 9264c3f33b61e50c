#include "EndlessPuzzles.h"

#include "progress/Catalogue.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <set>
#include <stdexcept>

namespace veyrand::quick_catalogue {

namespace {

constexpr unsigned kMostMoves = 11;
constexpr std::size_t kGoalsTried = 8;
constexpr int kPuzzlesOfOneRoot = 3; // on one walk through the roots

// How many puzzles of each number of moves, from 0. One move is for beginners of the mode alone:
// nobody can ask for it with the buttons.
constexpr std::array<std::size_t, kMostMoves + 1> kWanted { 0, 24, 124, 230, 240, 240, 240, 240,
    240, 230, 220, 140 };

// Fills the wanted numbers from one root after the other.
class Maker {
public:
    explicit Maker(platform::Random& random)
        : m_random(random)
    {
    }

    [[nodiscard]] const Puzzles& puzzles() const { return m_puzzles; }

    void takeFrom(const Derivations& derivations)
    {
        for (int i = 0; i < kPuzzlesOfOneRoot && m_puzzles.size() < progress::kEndlessEntries;
             ++i) {
            const auto moves = scarcest(derivations);
            const auto goal = moves ? goalAt(derivations, *moves) : std::nullopt;
            if (!goal) {
                return;
            }
            m_goals.insert(*goal);
            m_puzzles.push_back({ derivations.root(), *goal, *moves });
            ++m_made.at(*moves);
        }
    }

private:
    // Of the numbers of moves the root has goals for, the one that is furthest from complete: few
    // roots lead far, and they would else spend themselves on what every root can give.
    std::optional<unsigned> scarcest(const Derivations& derivations) const
    {
        const auto missing = [this](unsigned moves) {
            const auto wanted = static_cast<double>(kWanted.at(moves));
            return (wanted - static_cast<double>(m_made.at(moves))) / wanted;
        };
        std::optional<unsigned> best;
        for (unsigned moves = kMostMoves; moves >= 1; --moves) {
            if (!derivations.goals(moves).empty() && missing(moves) > 0
                && (!best || missing(moves) > missing(*best))) {
                best = moves;
            }
        }
        return best;
    }

    // The most interesting of a few goals that have not been used.
    std::optional<std::string> goalAt(const Derivations& derivations, unsigned moves) const
    {
        engine::Nodes candidates = derivations.goals(moves);
        shuffle(candidates, m_random);
        std::optional<std::string> best;
        int bestScore = 0;
        std::size_t tried = 0;
        for (const engine::NodePtr& node : candidates) {
            const std::string& goal = node->theorem().theorem();
            if (goal.size() < 2 || m_goals.contains(goal)) {
                continue;
            }
            const int score = derivations.score(node);
            if (!best || score > bestScore) {
                best = goal;
                bestScore = score;
            }
            if (++tried == kGoalsTried) {
                break;
            }
        }
        return best;
    }

    platform::Random& m_random;
    Puzzles m_puzzles;
    std::set<std::string> m_goals;
    std::array<std::size_t, kMostMoves + 1> m_made {};
};

} // namespace

Puzzles endlessPuzzles(platform::Random& random, const Progress& progress)
{
    const auto rules = std::make_shared<const engine::Rules>(progress::advancedRules());
    Maker maker(random);
    auto starts = roots("RGB", 1, 6);
    for (int walk = 0; walk < 4 && maker.puzzles().size() < progress::kEndlessEntries; ++walk) {
        shuffle(starts, random);
        for (const std::string& root : starts) {
            if (maker.puzzles().size() == progress::kEndlessEntries) {
                break;
            }
            maker.takeFrom(Derivations(root, rules));
            progress(maker.puzzles().size(), progress::kEndlessEntries);
        }
    }
    if (maker.puzzles().size() < progress::kEndlessEntries) {
        throw std::runtime_error("the roots give too few Endless puzzles");
    }
    Puzzles puzzles = maker.puzzles();
    shuffle(puzzles, random);
    return puzzles;
}

} // namespace veyrand::quick_catalogue
