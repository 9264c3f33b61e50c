#pragma once

#include <array>
#include <string_view>

namespace veyrand::play {

// Why a gesture, or another wish of the player's, is not granted; in the order in which they are
// found out. For a drag, what can be told at its start and its end comes before the lesson.
enum class Reason {
    Busy, // something is still being shown, or the puzzle is over
    Lesson, // a lesson asks for another gesture
    NoLine,
    NotLastLine,
    NoDragNow, // a drag from twelve lines on
    OtherRow,
    SameChip,
    NoChip, // let go where no chip stands
    BoardFull,
    YellowLast,
    RedNotLast,
    LoneGreen,
    NoMoveHere,
    DragReds,
    DragGreens,
    DragYellow,
    DragBlues,
    BlueBetween, // another blue lies between the two
    BluesTouch, // the two are neighbours, and no other pair has anything between it
    NotOpen, // the move of the refusal's label comes later in the game
    TooLong,
    LastMustBeGoal,
    TooFewPoints,
    NothingToHint,
    NoSuchRow, // of a removal
    NothingToUndo,
    NothingToRedo,
};
inline constexpr std::size_t kReasonCount = 27;

// Whether the refusal is heard ("No"). One that is silent is answered otherwise, by a page or a
// greyed button, or needs no answer.
enum class Heard { Silent, No };

// What there is to know of a reason. The words of tips and whispers stand under its name among the
// languages' texts.
struct ReasonEntry {
    Reason reason;
    std::string_view name;
    Heard heard;
};

// Every reason, in their order.
[[nodiscard]] const std::array<ReasonEntry, kReasonCount>& reasonTable();
[[nodiscard]] const ReasonEntry& entryOf(Reason reason);

struct Refusal {
    Reason reason = Reason::Busy;
    unsigned label = 0; // of the move that is not open: 2 for "Move #2"; otherwise 0
    // A drag that never began, on a line that is not the last: nothing sounds, where a click on
    // that line does.
    Heard heard = entryOf(reason).heard;
    friend bool operator==(const Refusal&, const Refusal&) = default;
};

// The number on a move's label: the first two are crossed, for the player learns doubling first.
[[nodiscard]] unsigned labelOf(unsigned rule);

} // namespace veyrand::play
