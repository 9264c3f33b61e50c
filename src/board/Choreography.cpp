#include "board/Choreography.h"

#include "board/Times.h"
#include "play/Decide.h"
#include "progress/RuleSets.h"

namespace veyrand::board {

namespace {

struct Duration {
    double ends;
    double block;
};

Duration durationOf(unsigned rule)
{
    switch (rule) {
    case progress::kThreeReds:
        return { .ends = times::kMergeEnd, .block = times::kMergeBlock };
    case progress::kSplitGreens:
        return { .ends = times::kMergeEnd, .block = times::kMoveBlock };
    case progress::kTwoGreens:
    case progress::kDropBetweenBlues:
        return { .ends = times::kVanishEnd, .block = times::kMoveBlock };
    default:
        return { .ends = times::kSlideEnd, .block = times::kMoveBlock };
    }
}

} // namespace

Choreography choreographyOf(const play::Move& move, const std::string& line)
{
    const engine::Range match
        = play::matchOf(engine::Theorem(line), move).value_or(engine::Range {});
    const auto [ends, block] = durationOf(move.rule);
    const bool isPair = move.rule == progress::kDropBetweenBlues;
    return { .rule = move.rule,
        .column = match.location,
        .endingColumn = isPair ? match.location + match.length - 1 : 0,
        .ends = ends,
        .block = block };
}

void perform(MoveAnimations& animations, const Choreography& choreography, const std::string& line,
    unsigned row)
{
    switch (choreography.rule) {
    case progress::kGreenToEnd:
        return animations.addGreenToEnd(line, row);
    case progress::kDoubling:
        return animations.doubleAllAfterColumn(line, row, choreography.column);
    case progress::kThreeReds:
        return animations.threeRedsToOneGreen(line, row, choreography.column);
    case progress::kTwoGreens:
        return animations.twoGreensDisappear(line, row, choreography.column);
    case progress::kFlip:
        return animations.flipFirstAndThird(line, row, choreography.column);
    case progress::kSplitGreens:
        return animations.splitGreensWithBlue(line, row, choreography.column);
    case progress::kDropBetweenBlues:
        return animations.dropBetweenBlues(
            line, row, choreography.column, choreography.endingColumn);
    default:
        return;
    }
}

} // namespace veyrand::board
