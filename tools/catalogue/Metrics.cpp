#include "catalogue/Metrics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace veyrand::catalogue {

namespace {

// One step of the solution: what could have been done, and what it says of the puzzle.
void measureStep(const ShortestWays& ways, const ShortestWays::Line& from, MoveSet open,
    const std::string& goal, Metrics& metrics)
{
    const std::vector<Step> steps = stepsFrom(from.line, open);
    constexpr unsigned kFarAway = 99;
    std::size_t good = 0;
    unsigned nearestGood = kFarAway;
    unsigned nearestBad = kFarAway;
    for (const Step& step : steps) {
        const bool isGood = std::any_of(from.ways.begin(), from.ways.end(),
            [&](const auto& way) { return ways.lines()[way.to].line == step.line; });
        good += isGood ? 1 : 0;
        unsigned& nearest = isGood ? nearestGood : nearestBad;
        nearest = std::min(nearest, difference(step.line.text(), goal));
    }
    if (good > 0) {
        metrics.bits += std::log2(static_cast<double>(steps.size()) / static_cast<double>(good));
    }
    metrics.traps += nearestBad < nearestGood ? 1 : 0;
}

bool isPalindrome(std::string_view chips)
{
    return std::equal(chips.begin(), chips.end(), chips.rbegin());
}

// Whether the chips are some shorter pattern again and again.
bool isRepeated(std::string_view chips)
{
    for (std::size_t period = 1; period <= chips.size() / 2; ++period) {
        if (chips.size() % period == 0
            && chips.substr(0, chips.size() - period) == chips.substr(period)) {
            return true;
        }
    }
    return false;
}

} // namespace

Metrics measure(const ShortestWays& ways, MoveSet open)
{
    Metrics metrics;
    metrics.solutions = ways.count();
    metrics.needed = ways.needed();
    const std::string goal = ways.lines().back().line.text();
    const std::vector<std::size_t>& solution = ways.firstSolution();
    unsigned longest = 0;
    unsigned run = 0;
    MoveSet used = 0;
    unsigned last = kMostChips; // no move
    for (std::size_t i = 0; i + 1 < solution.size(); ++i) {
        const ShortestWays::Line& from = ways.lines()[solution[i]];
        const ShortestWays::Line& to = ways.lines()[solution[i + 1]];
        measureStep(ways, from, open, goal, metrics);
        longest = std::max(longest, to.line.length());
        const unsigned rule = moveBetween(from.line, to.line, open).value_or(Move {}).rule;
        metrics.changes += i > 0 && rule != last ? 1 : 0;
        run = rule == last ? run + 1 : 1;
        metrics.longestRun = std::max(metrics.longestRun, run);
        used |= only(rule);
        last = rule;
    }
    const unsigned ends
        = std::max(ways.lines().front().line.length(), ways.lines().back().line.length());
    metrics.detour = longest > ends ? longest - ends : 0;
    metrics.variety = static_cast<unsigned>(__builtin_popcount(used));
    return metrics;
}

double interest(const ShortestWays& ways, const Metrics& metrics)
{
    constexpr unsigned kWorthwhileDetour = 4;
    constexpr unsigned kTiringRun = 3;
    const unsigned moves = ways.moves();
    double sum = 0.5 * metrics.traps;
    sum += 0.3 * std::min(metrics.detour, kWorthwhileDetour);
    sum += 0.4 * metrics.variety;
    sum += moves > 1 ? 1.5 * metrics.changes / (moves - 1) : 0;
    sum -= metrics.longestRun >= kTiringRun ? 0.7 * (metrics.longestRun - kTiringRun + 1) : 0;
    sum -= metrics.solutions > 4 ? 0.25 * std::log2(static_cast<double>(metrics.solutions) / 4) : 0;
    sum += looks(ways.lines().back().line.text());
    sum += 0.5 * looks(ways.lines().front().line.text());
    return sum;
}

double looks(std::string_view line)
{
    constexpr std::size_t kShort = 5;
    std::string chips(line);
    chips.erase(std::remove(chips.begin(), chips.end(), 'Y'), chips.end());
    double sum = line.size() <= kShort ? 0.6 : 0;
    const bool isOneColour = std::count(chips.begin(), chips.end(), chips[0])
        == static_cast<std::ptrdiff_t>(chips.size());
    const bool isPattern = isPalindrome(chips) || (chips.size() >= 4 && isRepeated(chips));
    if (chips.size() >= 3 && (isOneColour || isPattern)) {
        sum += isOneColour ? 0.7 : 0.5;
    }
    if (chips.size() >= 4 && (isPalindrome(line) || line.front() == 'Y' || line.back() == 'Y')) {
        sum += 0.2;
    }
    return sum;
}

bool isMemorable(const Puzzle& puzzle)
{
    constexpr double kPleasing = 1.1;
    return looks(puzzle.root) + looks(puzzle.goal) >= kPleasing;
}

unsigned difference(std::string_view a, std::string_view b)
{
    std::array<unsigned, engine::PackedLine::kMostChips + 1> row {};
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row.at(j) = static_cast<unsigned>(j);
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        unsigned diagonal = row[0];
        row[0] = static_cast<unsigned>(i) + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const unsigned replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row.at(j + 1);
            row.at(j + 1) = std::min({ replaced, diagonal + 1, row.at(j) + 1 });
        }
    }
    return row.at(b.size());
}

} // namespace veyrand::catalogue
