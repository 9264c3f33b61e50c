#pragma once

#include "engine/Rule.h"
#include "engine/Theorem.h"

#include <optional>
#include <vector>

namespace veyrand::controller {

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

// What a click on the column of the last line does, or nothing when it is refused. With highestRule
// moves open: doubling is never gated by it, the split shares its threshold with the drop between
// blues.
std::optional<MoveDecision> decideClick(
    const engine::Theorem& line, const engine::Rules& rules, unsigned column, int highestRule);

// What dropping the chip of one column onto another of the same line does, or nothing.
std::optional<MoveDecision> decideDrag(const engine::Theorem& line, const engine::Rules& rules,
    unsigned from, unsigned to, int highestRule);

// The columns offered as drop targets for a chip, whatever moves are open: the drop itself is what
// is tested against those.
std::vector<unsigned> dropTargets(const engine::Theorem& line, unsigned column);

} // namespace veyrand::controller
