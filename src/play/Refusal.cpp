#include "play/Refusal.h"

#include "progress/RuleSets.h"

namespace veyrand::play {

const std::array<ReasonEntry, kReasonCount>& reasonTable()
{
    using enum Reason;
    using enum Heard;
    static constexpr std::array<ReasonEntry, kReasonCount> kTable { {
        { Busy, "Busy", Silent },
        { Lesson, "Lesson", Silent },
        { NoLine, "NoLine", No },
        { NotLastLine, "NotLastLine", No },
        { NoDragNow, "NoDragNow", Silent },
        { OtherRow, "OtherRow", Silent },
        { SameChip, "SameChip", Silent },
        { NoChip, "NoChip", Silent },
        { BoardFull, "BoardFull", No },
        { YellowLast, "YellowLast", No },
        { RedNotLast, "RedNotLast", No },
        { LoneGreen, "LoneGreen", No },
        { NoMoveHere, "NoMoveHere", No },
        { DragReds, "DragReds", No },
        { DragGreens, "DragGreens", No },
        { DragYellow, "DragYellow", No },
        { DragBlues, "DragBlues", No },
        { BlueBetween, "BlueBetween", No },
        { BluesTouch, "BluesTouch", No },
        { NotOpen, "NotOpen", No },
        { TooLong, "TooLong", No },
        { LastMustBeGoal, "LastMustBeGoal", No },
        { TooFewPoints, "TooFewPoints", Silent },
        { NothingToHint, "NothingToHint", Silent },
        { NoSuchRow, "NoSuchRow", Silent },
        { NothingToUndo, "NothingToUndo", Silent },
        { NothingToRedo, "NothingToRedo", Silent },
    } };
    return kTable;
}

const ReasonEntry& entryOf(Reason reason)
{
    return reasonTable().at(static_cast<std::size_t>(reason));
}

unsigned labelOf(unsigned rule)
{
    switch (rule) {
    case progress::kGreenToEnd:
        return progress::kDoubling + 1;
    case progress::kDoubling:
        return progress::kGreenToEnd + 1;
    default:
        return rule + 1;
    }
}

} // namespace veyrand::play
