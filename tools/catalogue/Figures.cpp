#include "catalogue/Figures.h"

#include "catalogue/Curve.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace veyrand::catalogue {

namespace {

constexpr unsigned kMarks = kIdeas + kPromises.size();

// Ideas, and the relations of start and goal behind them.
std::vector<bool> marksOf(const Evidence& evidence)
{
    std::vector<bool> marks(kMarks);
    for (unsigned i = 0; i < kIdeas; ++i) {
        marks[i] = (evidence.ideas & only(static_cast<Idea>(i))) != 0;
    }
    for (std::size_t i = 0; i < kPromises.size(); ++i) {
        marks[kIdeas + i] = keeps(evidence.puzzle, evidence.metrics.needed, kPromises.at(i));
    }
    return marks;
}

// What two puzzles share of what either has, where a rare thing says more than a common one.
double nearness(
    const std::vector<bool>& a, const std::vector<bool>& b, const std::vector<double>& weights)
{
    double both = 0;
    double either = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        both += a[i] && b[i] ? weights[i] : 0;
        either += a[i] || b[i] ? weights[i] : 0;
    }
    return either > 0 ? both / either : 0;
}

std::size_t guessed(const std::vector<Evidence>& evidence)
{
    std::vector<std::vector<bool>> marks;
    for (int level = kFirstLevelOfAll; level <= progress::kLastLevel; ++level) {
        for (const Evidence* puzzle : levelOf(evidence, level)) {
            marks.push_back(marksOf(*puzzle));
        }
    }
    std::vector<double> weights(kMarks);
    for (std::size_t i = 0; i < kMarks; ++i) {
        const auto having = std::count_if(
            marks.begin(), marks.end(), [i](const std::vector<bool>& all) { return all[i]; });
        weights[i] = having == 0
            ? 0
            : std::log2(static_cast<double>(marks.size()) / static_cast<double>(having));
    }
    std::size_t right = 0;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        double best = -1;
        std::size_t nearest = i;
        for (std::size_t j = 0; j < marks.size(); ++j) {
            const double near = i == j ? -1 : nearness(marks[i], marks[j], weights);
            if (near > best) {
                best = near;
                nearest = j;
            }
        }
        right += nearest / progress::kLastStage == i / progress::kLastStage ? 1 : 0;
    }
    return right;
}

template <class Value> double median(const Level& puzzles, const Value& value)
{
    std::array<double, progress::kLastStage> values {};
    std::transform(puzzles.begin(), puzzles.end(), values.begin(),
        [&value](const Evidence* evidence) { return value(*evidence); });
    std::sort(values.begin(), values.end());
    return (values.at(values.size() / 2) + values.at(values.size() / 2 - 1)) / 2;
}

void addLevel(int level, const Level& puzzles, Figures& figures)
{
    constexpr double kWorldsApart = 8;
    figures.kept.push_back(promisesKept(level, puzzles));
    figures.medianSteps.push_back(median(puzzles, stepsOf));
    figures.medianBits.push_back(
        median(puzzles, [](const Evidence& evidence) { return evidence.metrics.bits; }));
    figures.ranks.push_back(rankCorrelation(puzzles));
    for (std::size_t i = 0; i < puzzles.size(); ++i) {
        figures.nearPar += puzzles.at(i)->kindness.hasNearPar() ? 1 : 0;
        figures.jumps
            += i > 0 && timesApart(*puzzles.at(i - 1), *puzzles.at(i)) >= kWorldsApart ? 1 : 0;
    }
}

} // namespace

Level levelOf(const std::vector<Evidence>& evidence, int level)
{
    Level puzzles {};
    for (int stage = 1; stage <= progress::kLastStage; ++stage) {
        puzzles.at(static_cast<std::size_t>(stage - 1))
            = &evidence.at(static_cast<std::size_t>(progress::catalogueIndex({ level, stage })));
    }
    return puzzles;
}

std::size_t promisesKept(int level, const Level& puzzles)
{
    return static_cast<std::size_t>(
        std::count_if(puzzles.begin(), puzzles.end(), [level](const Evidence* evidence) {
            return keepsPromiseOf(level, evidence->puzzle, evidence->metrics.needed);
        }));
}

double stepsOf(const Evidence& evidence)
{
    return std::max(1U, evidence.steps);
}

double timesApart(const Evidence& a, const Evidence& b)
{
    return std::max(stepsOf(a), stepsOf(b)) / std::min(stepsOf(a), stepsOf(b));
}

double rankCorrelation(const Level& puzzles)
{
    std::vector<double> ranks;
    for (const Evidence* one : puzzles) {
        double rank = 0.5; // equals share their ranks
        for (const Evidence* other : puzzles) {
            rank += other->steps < one->steps ? 1 : other->steps == one->steps ? 0.5 : 0;
        }
        ranks.push_back(rank);
    }
    const double mean = (static_cast<double>(ranks.size()) + 1) / 2;
    double together = 0;
    double ofRanks = 0;
    double ofStages = 0;
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const double rank = ranks[i] - mean;
        const double stage = static_cast<double>(i) + 1 - mean;
        together += rank * stage;
        ofRanks += rank * rank;
        ofStages += stage * stage;
    }
    return ofRanks > 0 ? together / std::sqrt(ofRanks * ofStages) : 0;
}

Figures figuresOf(const std::vector<Evidence>& evidence)
{
    Figures figures;
    std::size_t wrong = 0;
    std::size_t dead = 0;
    for (int level = kFirstLevelOfPromise; level <= progress::kLastLevel; ++level) {
        const Level puzzles = levelOf(evidence, level);
        addLevel(level, puzzles, figures);
        for (const Evidence* puzzle : puzzles) {
            if (level < kFirstLevelOfAll) {
                continue;
            }
            wrong += puzzle->kindness.wrongSteps;
            dead += puzzle->kindness.deadSteps;
            for (unsigned move = 0; only(move) <= kLateMoves; ++move) {
                if ((only(move) & kLateMoves) != 0) {
                    figures.needing[move] += (puzzle->metrics.needed & only(move)) != 0 ? 1 : 0;
                }
            }
        }
    }
    figures.dead = wrong == 0 ? 0 : static_cast<double>(dead) / static_cast<double>(wrong);
    figures.guessed = guessed(evidence);
    const auto first
        = static_cast<std::size_t>(progress::catalogueIndex({ kFirstLevelOfPromise, 1 }));
    for (std::size_t i = first; i < evidence.size(); ++i) {
        for (std::size_t j = first; j < i; ++j) {
            figures.alike = std::max(figures.alike, likeness(evidence[i].way, evidence[j].way));
        }
    }
    return figures;
}

std::vector<std::size_t> kinOf(
    const std::vector<Evidence>& evidence, std::size_t entry, std::size_t most)
{
    std::vector<std::pair<double, std::size_t>> all;
    for (std::size_t other = 1; other < evidence.size(); ++other) {
        if (other != entry) {
            all.emplace_back(-likeness(evidence[entry].way, evidence[other].way), other);
        }
    }
    std::sort(all.begin(), all.end());
    std::vector<std::size_t> kin;
    for (std::size_t i = 0; i < std::min(most, all.size()); ++i) {
        kin.push_back(all[i].second);
    }
    return kin;
}

} // namespace veyrand::catalogue
