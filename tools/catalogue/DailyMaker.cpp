#include "catalogue/DailyMaker.h"

#include "catalogue/Candidates.h"
#include "platform/fakes/SeededRandom.h"
#include "play/DailyPuzzles.h"
#include "play/PuzzleCode.h"
#include "progress/RuleSets.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <stdexcept>

namespace veyrand::catalogue {

namespace {

constexpr std::size_t kDaysOfWeek = 7;
constexpr std::size_t kWeeks = play::DailyPuzzles::kDays / kDaysOfWeek;
constexpr std::size_t kMostUsesOfRoot = 3;
constexpr std::size_t kRoots = 420; // explored, of all
constexpr std::size_t kFewestChips = 3;
constexpr std::size_t kMostChipsOfRoot = 7;
constexpr std::size_t kDrawnOfPar = 14; // from each root

constexpr std::array<DailyWish, kDaysOfWeek> kWishes { {
    { 3, 4, 4.0, 6.5 },
    { 4, 5, 6.5, 9.0 },
    { 5, 6, 9.0, 11.5 },
    { 6, 7, 11.5, 14.0 },
    { 7, 8, 14.0, 16.5 },
    { 8, 9, 16.5, 19.0 },
    { 9, 11, 19.0, 24.0 },
} };

bool doesFit(const Candidate& candidate, const DailyWish& wish)
{
    return candidate.puzzle.moves >= wish.fewest && candidate.puzzle.moves <= wish.most
        && candidate.metrics.bits >= wish.fromBits && candidate.metrics.bits < wish.toBits;
}

// The best of what was found for one day of the week, in the order of interest.
class Days {
public:
    Days(std::set<std::string>& goals, std::map<std::string, std::size_t>& uses, HintGate& gate)
        : m_goals(goals)
        , m_uses(uses)
        , m_gate(gate)
    {
    }

    [[nodiscard]] Puzzles best(Candidates pool)
    {
        std::stable_sort(pool.begin(), pool.end(),
            [](const Candidate& a, const Candidate& b) { return a.interest > b.interest; });
        Puzzles puzzles;
        for (const Candidate& candidate : pool) {
            const Puzzle& puzzle = candidate.puzzle;
            if (puzzles.size() == kWeeks) {
                break;
            }
            if (!m_goals.contains(puzzle.goal) && m_uses[puzzle.root] < kMostUsesOfRoot
                && m_gate.passes(puzzle)) {
                m_goals.insert(puzzle.goal);
                ++m_uses[puzzle.root];
                puzzles.push_back(puzzle);
            }
        }
        if (puzzles.size() < kWeeks) {
            throw std::runtime_error("too few puzzles for one day of the week");
        }
        return puzzles;
    }

private:
    std::set<std::string>& m_goals;
    std::map<std::string, std::size_t>& m_uses;
    HintGate& m_gate;
};

} // namespace

DailyWish dailyWish(std::size_t weekday)
{
    return kWishes.at(weekday);
}

Puzzles dailyPuzzles(std::uint32_t seed, const Puzzles& taken, const Progress& progress)
{
    platform::SeededRandom random(seed);
    CandidateSource source(random);
    std::vector<std::string> starts = roots("RGB", kFewestChips - 1, kMostChipsOfRoot - 1);
    shuffle(starts, random);
    starts.resize(std::min(starts.size(), kRoots));
    std::array<Candidates, kDaysOfWeek> pools;
    std::size_t done = 0;
    for (const std::string& root : starts) {
        source.explore(root);
        for (unsigned moves = kWishes.front().fewest; moves <= kMostMoves; ++moves) {
            for (const Candidate& candidate :
                source.draw(moves, kDrawnOfPar, progress::kMoveCount)) {
                for (std::size_t day = 0; day < kDaysOfWeek; ++day) {
                    if (doesFit(candidate, kWishes.at(day))) {
                        pools.at(day).push_back(candidate);
                    }
                }
            }
        }
        progress(++done, starts.size());
    }

    std::set<std::string> goals;
    for (const Puzzle& puzzle : taken) {
        goals.insert(puzzle.goal);
    }
    std::map<std::string, std::size_t> uses;
    HintGate gate;
    Days days(goals, uses, gate);
    std::array<Puzzles, kDaysOfWeek> byDay;
    for (std::size_t day = 0; day < kDaysOfWeek; ++day) {
        byDay.at(day) = days.best(std::move(pools.at(day)));
        shuffle(byDay.at(day), random);
    }
    Puzzles puzzles;
    for (std::size_t week = 0; week < kWeeks; ++week) {
        for (const Puzzles& ofDay : byDay) {
            puzzles.push_back(ofDay[week]);
        }
    }
    return puzzles;
}

std::string dailyText(const Puzzles& puzzles, const std::string& firstMonday)
{
    std::string text = firstMonday;
    for (const Puzzle& puzzle : puzzles) {
        text += '\n' + play::codeOf(puzzle.root, puzzle.goal).value();
    }
    return text + '\n';
}

} // namespace veyrand::catalogue
