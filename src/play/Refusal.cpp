#include "play/Refusal.h"

#include "progress/RuleSets.h"

namespace veyrand::play {

const std::array<ReasonEntry, kReasonCount>& reasonTable()
{
    using enum Reason;
    using enum Heard;
    static constexpr std::array<ReasonEntry, kReasonCount> kTable { {
        { Busy, "Busy", Silent, "" },
        { Lesson, "Lesson", Silent, "" },
        { NoLine, "NoLine", No, "There is nothing to play on." },
        { NotLastLine, "NotLastLine", No, "Only the last line can be played on." },
        { NoDragNow, "NoDragNow", Silent, "No chip can be dragged from the 12th line on." },
        { OtherRow, "OtherRow", Silent, "Drop it on a chip of its own line." },
        { SameChip, "SameChip", Silent, "Drop it on a chip of its own line." },
        { NoChip, "NoChip", Silent, "Drop it on a chip of its own line." },
        { BoardFull, "BoardFull", No, "The board is full: remove a line first." },
        { YellowLast, "YellowLast", No, "Nothing stands to its right to double." },
        { RedNotLast, "RedNotLast", No, "Only a red at the end takes a click." },
        { LoneGreen, "LoneGreen", No, "Click the first of two greens side by side." },
        { NoMoveHere, "NoMoveHere", No, "No move starts here." },
        { DragReds, "DragReds", No, "Drag: from end to end of three reds in a row." },
        { DragGreens, "DragGreens", No, "Drag: a green onto the green beside it." },
        { DragYellow, "DragYellow", No, "Drag: the yellow two places to the right." },
        { DragBlues, "DragBlues", No, "Drag: a blue onto another blue." },
        { BlueBetween, "BlueBetween", No, "Drag: no blue may lie between the two." },
        { BluesTouch, "BluesTouch", No, "Nothing lies between these two blues." },
        { NotOpen, "NotOpen", No, "Move #%@ comes later." },
        { TooLong, "TooLong", No, "A line holds 12 chips at most." },
        { LastMustBeGoal, "LastMustBeGoal", No, "The last of 13 lines must be the goal." },
        { TooFewPoints, "TooFewPoints", Silent, "" },
        { NothingToHint, "NothingToHint", Silent, "" },
        { NoSuchRow, "NoSuchRow", Silent, "" },
        { NothingToUndo, "NothingToUndo", Silent, "" },
        { NothingToRedo, "NothingToRedo", Silent, "" },
    } };
    return kTable;
}

const ReasonEntry& entryOf(Reason reason)
{
    return reasonTable().at(static_cast<std::size_t>(reason));
}

std::string wordsFor(const Refusal& refusal)
{
    constexpr std::string_view kLabel = "%@";
    std::string words(entryOf(refusal.reason).words);
    const std::size_t label = words.find(kLabel);
    if (label != std::string::npos) {
        words.replace(label, kLabel.size(), std::to_string(refusal.label));
    }
    return words;
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
