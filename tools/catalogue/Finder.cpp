#include "catalogue/Finder.h"

#include "catalogue/Candidates.h"
#include "catalogue/Curve.h"
#include "catalogue/Promises.h"
#include "progress/RuleSets.h"

namespace veyrand::catalogue {

namespace {

// A goal that can be taken in at a glance.
bool isPlain(const std::string& goal)
{
    constexpr std::size_t kShort = 6;
    constexpr double kPleasing = 0.5;
    return goal.size() > 1 && (goal.size() <= kShort || looks(goal) >= kPleasing);
}

// What can be seen without looking at the solutions.
bool mayKeep(int level, const Puzzle& puzzle)
{
    const Promise promise = promiseOf(level);
    const bool isOpen = promise == Promise::WhatLiesBetween || promise == Promise::WithoutYellow
        || promise == Promise::FromAlmostNothing || promise == Promise::BothSidesAlike;
    return keepsPromiseOf(level, puzzle, kAllMoves) && (!isOpen || isPlain(puzzle.goal))
        && (level >= kFirstLevelWithBlue || puzzle.goal.find('B') == std::string::npos)
        && (promise == Promise::WithoutYellow || puzzle.goal.find('Y') != std::string::npos);
}

bool isDrawn(const Wanted& wanted, const Puzzle& puzzle)
{
    constexpr std::uint32_t kPrime = 16777619;
    std::uint32_t hash = 2166136261 + wanted.seed;
    for (const char chip : puzzle.root + puzzle.goal) {
        hash = (hash ^ static_cast<unsigned char>(chip)) * kPrime;
    }
    constexpr unsigned kHigh = 12;
    return (hash >> kHigh) % wanted.oneIn == 0;
}

} // namespace

std::vector<Portrait> find(const Wanted& wanted, const Progress& progress)
{
    const int highestRule = progress::highestRuleAt(wanted.level, 1);
    const std::vector<std::string> all
        = roots(wanted.level < kFirstLevelWithBlue ? "RG" : "RGB", 1, 6);
    Reach reach;
    HintSearch hints;
    Painter painter;
    std::vector<Portrait> found;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const engine::PackedLine root = packed(all[i]);
        if (promiseOf(wanted.level) == Promise::FromAlmostNothing && all[i].size() > 3) {
            continue;
        }
        reach.explore(root, wanted.most);
        for (std::size_t line = 1; line < reach.count(); ++line) {
            const Puzzle puzzle { all[i], reach.line(line).text(), reach.distance(line) };
            if (puzzle.moves < wanted.fewest || !mayKeep(wanted.level, puzzle)
                || !isDrawn(wanted, puzzle)) {
                continue;
            }
            const auto ways = ShortestWays::find(reach, reach.line(line));
            if (!ways || ways->highestRule() > highestRule
                || !keepsPromiseOf(wanted.level, puzzle, ways->needed())
                || !hints.leadsAllTheWay(*ways)) {
                continue;
            }
            if (auto portrait
                = painter.paint(reach, root, reach.line(line), openMoves(highestRule))) {
                found.push_back(std::move(*portrait));
            }
        }
        progress(i + 1, all.size());
    }
    return found;
}

} // namespace veyrand::catalogue
