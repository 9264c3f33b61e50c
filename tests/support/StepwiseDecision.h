#pragma once

#include "engine/Rule.h"
#include "engine/Theorem.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The rules of the board as the game applied them before a decision was one step: what a gesture
// selects, then whether the move is there, then whether its line may stand. Slower and plainer, to
// hold the game's own decisions against.
namespace veyrand::test::stepwise {

// Which choreography shows a move.
enum class MoveAnimation {
    AddGreenToEnd,
    DoubleAllAfterColumn,
    ThreeRedsToOneGreen,
    TwoGreensDisappear,
    FlipFirstAndThird,
    SplitGreensWithBlue,
    DropBetweenBlues,
};

// Whether the new line's length must be tested: a drag never lengthens a line, so only clicks are.
enum class LengthCheck { Needed, NotNeeded };

// A gesture turned into one move: rule and match say what it does (and can be written down and
// replayed), the rest how it is shown.
struct MoveDecision {
    unsigned rule; // index into the seven moves
    unsigned match; // index among the rule's matches on the line
    MoveAnimation animation;
    unsigned column; // where the animation starts
    unsigned endingColumn; // of a pair of blues; otherwise 0
    double delay; // seconds by which input is blocked for longer than for any gesture
    LengthCheck lengthCheck;
    friend bool operator==(const MoveDecision&, const MoveDecision&) = default;
};

enum RuleIndex : unsigned {
    GreenAfterRed,
    Doubling,
    RedsToGreen,
    GreensVanish,
    YellowJump,
    BlueBetweenGreens,
    BetweenBluesVanish,
};

constexpr double kUsualDelay = 0.75;
constexpr double kMergeDelay = 1.5;

inline bool holdsAt(std::string_view line, std::size_t column, std::string_view chips)
{
    return column <= line.size() && line.substr(column, chips.size()) == chips;
}

// The last match that starts at the column; the first match of all when none does.
inline unsigned matchAtColumn(
    const engine::Theorem& line, const engine::Rule& rule, unsigned column)
{
    const auto matches = line.matchesWithRule(rule).value_or(std::vector<engine::Range> {});
    unsigned chosen = 0;
    for (unsigned index = 0; index < matches.size(); ++index) {
        if (matches[index].location == column) {
            chosen = index;
        }
    }
    return chosen;
}

// A move at a column, shown from that column.
inline MoveDecision moveAt(const engine::Theorem& line, const engine::Rules& rules, unsigned rule,
    unsigned column, MoveAnimation animation)
{
    return { .rule = rule,
        .match = matchAtColumn(line, rules.at(rule), column),
        .animation = animation,
        .column = column,
        .endingColumn = 0,
        .delay = kUsualDelay,
        .lengthCheck = LengthCheck::NotNeeded };
}

inline MoveDecision clickMove(MoveDecision move)
{
    move.lengthCheck = LengthCheck::Needed;
    return move;
}

// The start of a run of equal chips that reaches from one column to the other, dragged either way.
inline std::optional<unsigned> runBetween(
    std::string_view line, unsigned from, unsigned to, std::string_view run)
{
    const unsigned start = std::min(from, to);
    const bool spansRun = std::max(from, to) - start == run.size() - 1;
    return spansRun && holdsAt(line, start, run) ? std::optional(start) : std::nullopt;
}

inline std::optional<MoveDecision> decideBlueDrag(
    const engine::Theorem& line, const engine::Rules& rules, unsigned from, unsigned to)
{
    const std::string& chips = line.theorem();
    if (!holdsAt(chips, from, "B") || !holdsAt(chips, to, "B")) {
        return std::nullopt;
    }
    const unsigned low = std::min(from, to);
    const unsigned high = std::max(from, to);
    if (chips.substr(low + 1, high - low - 1).find('B') != std::string::npos) {
        return std::nullopt;
    }
    auto move = moveAt(line, rules, BetweenBluesVanish, low, MoveAnimation::DropBetweenBlues);
    move.endingColumn = high;
    return move;
}

inline std::optional<MoveDecision> decideClick(
    const engine::Theorem& line, const engine::Rules& rules, unsigned column, int highestRule)
{
    const std::string& chips = line.theorem();
    const bool isLast = column + 1 == chips.size();
    if (!isLast && holdsAt(chips, column, "Y")) {
        return clickMove(
            moveAt(line, rules, Doubling, column, MoveAnimation::DoubleAllAfterColumn));
    }
    if (highestRule < 2) {
        return std::nullopt;
    }
    if (isLast && holdsAt(chips, column, "R")) {
        auto move
            = clickMove(moveAt(line, rules, GreenAfterRed, column, MoveAnimation::AddGreenToEnd));
        // The last match, which is the only one; and the animation is told where the green will
        // stand.
        const unsigned count = line.numberOfMatchesWithRule(rules.at(GreenAfterRed));
        move.match = count == 0 ? 0 : count - 1;
        move.column = static_cast<unsigned>(chips.size());
        return move;
    }
    if (highestRule < 6 || column + 1 >= chips.size() || !holdsAt(chips, column, "GG")) {
        return std::nullopt;
    }
    return clickMove(
        moveAt(line, rules, BlueBetweenGreens, column, MoveAnimation::SplitGreensWithBlue));
}

inline std::optional<MoveDecision> decideDrag(const engine::Theorem& line,
    const engine::Rules& rules, unsigned from, unsigned to, int highestRule)
{
    const std::string& chips = line.theorem();
    if (highestRule >= 3) {
        if (const auto start = runBetween(chips, from, to, "RRR")) {
            auto move
                = moveAt(line, rules, RedsToGreen, *start, MoveAnimation::ThreeRedsToOneGreen);
            move.delay = kMergeDelay;
            return move;
        }
    }
    if (highestRule >= 4) {
        if (const auto start = runBetween(chips, from, to, "GG")) {
            return moveAt(line, rules, GreensVanish, *start, MoveAnimation::TwoGreensDisappear);
        }
    }
    if (highestRule >= 5 && holdsAt(chips, from, "Y") && to == from + 2 && to < chips.size()) {
        return moveAt(line, rules, YellowJump, from, MoveAnimation::FlipFirstAndThird);
    }
    // Not 7: the blues can be dragged as soon as greens can be split.
    if (highestRule >= 6) {
        return decideBlueDrag(line, rules, from, to);
    }
    return std::nullopt;
}

inline std::vector<unsigned> dropTargets(const engine::Theorem& line, unsigned column)
{
    const std::string& chips = line.theorem();
    std::vector<unsigned> targets;
    if (column > 1 && holdsAt(chips, column - 2, "RRR")) {
        targets.push_back(column - 2);
    }
    if (holdsAt(chips, column, "RRR")) {
        targets.push_back(column + 2);
    }
    if (column != 0 && holdsAt(chips, column - 1, "GG")) {
        targets.push_back(column - 1);
    }
    if (holdsAt(chips, column, "GG")) {
        targets.push_back(column + 1);
    }
    if (column + 2 < chips.size() && holdsAt(chips, column, "Y")) {
        targets.push_back(column + 2);
    }
    if (holdsAt(chips, column, "B")) {
        // Adjacent blues have nothing between them to drop.
        const std::size_t left = column == 0 ? std::string::npos : chips.rfind('B', column - 1);
        if (left != std::string::npos && left + 1 != column) {
            targets.push_back(static_cast<unsigned>(left));
        }
        const std::size_t right = chips.find('B', column + 1);
        if (right != std::string::npos && right != column + 1) {
            targets.push_back(static_cast<unsigned>(right));
        }
    }
    return targets;
}

} // namespace veyrand::test::stepwise
