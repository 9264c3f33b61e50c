#include "catalogue/Promises.h"

#include "catalogue/Metrics.h"
#include "catalogue/Steps.h"
#include "progress/RuleSets.h"

#include <algorithm>

namespace veyrand::catalogue {

namespace {

bool hasYellow(const std::string& line)
{
    return line.find('Y') != std::string::npos;
}

bool isReversed(const Puzzle& puzzle)
{
    return std::equal(
        puzzle.root.begin(), puzzle.root.end(), puzzle.goal.rbegin(), puzzle.goal.rend());
}

bool isUndone(const Puzzle& puzzle)
{
    const std::vector<Step> steps = stepsFrom(packed(puzzle.goal), openMoves(progress::kFlip));
    return std::any_of(steps.begin(), steps.end(),
        [&puzzle](const Step& step) { return step.line == packed(puzzle.root); });
}

bool areGreensTurnedBlue(const Puzzle& puzzle)
{
    return puzzle.root != puzzle.goal
        && std::equal(puzzle.root.begin(), puzzle.root.end(), puzzle.goal.begin(),
            puzzle.goal.end(),
            [](char from, char to) { return from == to || (from == 'G' && to == 'B'); });
}

} // namespace

Promise promiseOf(int level)
{
    return kPromises.at(static_cast<std::size_t>(level - kFirstLevelOfPromise));
}

std::string nameOf(Promise promise)
{
    static const std::array<std::string, kPromises.size()> kNames { "a move undone", "mirror",
        "greens turn blue", "what lies between", "one chip apart", "repainted",
        "the yellow carried to the end", "without the yellow", "from almost nothing",
        "both sides alike" };
    return kNames.at(static_cast<std::size_t>(promise));
}

std::optional<std::string> paintOf(const Puzzle& puzzle)
{
    constexpr std::string_view kColours = "RGB";
    if (puzzle.root.size() != puzzle.goal.size() || puzzle.root == puzzle.goal) {
        return std::nullopt;
    }
    std::string paint(kColours.size(), ' ');
    for (std::size_t i = 0; i < puzzle.root.size(); ++i) {
        const char from = puzzle.root[i];
        const char to = puzzle.goal[i];
        const std::size_t colour = kColours.find(from);
        if (colour == std::string_view::npos || to == 'Y') {
            if (from != to) {
                return std::nullopt;
            }
            continue;
        }
        if (paint[colour] != ' ' && paint[colour] != to) {
            return std::nullopt;
        }
        paint[colour] = to;
    }
    for (std::size_t colour = 0; colour < kColours.size(); ++colour) {
        paint[colour] = paint[colour] == ' ' ? kColours[colour] : paint[colour];
    }
    return paint;
}

bool keeps(const Puzzle& puzzle, MoveSet needed, Promise promise)
{
    constexpr std::size_t kAlmostNothing = 3; // chips
    switch (promise) {
    case Promise::Undo:
        return isUndone(puzzle);
    case Promise::Mirror:
        return isReversed(puzzle);
    case Promise::GreensTurnBlue:
        return areGreensTurnedBlue(puzzle);
    case Promise::WhatLiesBetween:
        return (needed & only(progress::kDropBetweenBlues)) != 0 && hasYellow(puzzle.goal);
    case Promise::OneChipApart:
        return difference(puzzle.root, puzzle.goal) == 1;
    case Promise::Repainted:
        return paintOf(puzzle).has_value();
    case Promise::Carried:
        return puzzle.goal == puzzle.root.substr(1) + 'Y';
    case Promise::WithoutYellow:
        return !hasYellow(puzzle.goal);
    case Promise::FromAlmostNothing:
        return puzzle.root.size() <= kAlmostNothing;
    case Promise::BothSidesAlike:
        return puzzle.goal.size() % 2 == 1 && puzzle.goal[puzzle.goal.size() / 2] == 'Y'
            && std::equal(puzzle.goal.begin(), puzzle.goal.end(), puzzle.goal.rbegin());
    }
    return false;
}

bool keepsPromiseOf(int level, const Puzzle& puzzle, MoveSet needed)
{
    const Promise promise = promiseOf(level);
    return keeps(puzzle, needed, promise)
        || (promise == Promise::Carried && keeps(puzzle, needed, Promise::Mirror));
}

} // namespace veyrand::catalogue
